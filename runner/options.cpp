#include "runner/options.h"

#include "report/languages.h"
#include "runner/input/input_error.h"
#include "runner/messages.h"
#include "runner/output/delivery.h"
#include "runner/platform/paths.h"
#include "text/utf8.h"
#include "text/wrapping.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstddef>
#include <iostream>
#include <iterator>
#include <string>

namespace runner {

namespace fs = std::filesystem;

namespace {

const char* const footer = R"text(
A command names the variables to compare and what to print and plot;
docs/command.md tells all of its keywords.

Exit status: 0 every command delivered a document, 1 some command did not,
2 bad usage or input, 3 an output could not be written, 4 the module broke the
host's contract.)text";

constexpr std::size_t namesWidth = 25;
constexpr std::size_t descriptionsWidth = 54;

/// The description of an option in lines of one width, below it an example of its use.
std::string described(const std::string& description, const std::string& example)
{
    std::string lines;
    for (const std::string& line : text::wrapText(description, descriptionsWidth)) {
        lines += line + "\n";
    }
    return lines + "  " + example;
}

/// "en English, es Spanish, ..."
std::string languageList()
{
    std::string list;
    for (const report::Language& language : report::languages) {
        list += (list.empty() ? "" : ", ") + std::string(language.code) + " " + std::string(language.name);
    }
    return list;
}

CLI::Option* addFile(CLI::App& app, const std::string& name, fs::path& file, const std::string& description)
{
    const auto take = [&file](const std::string& text) { file = pathOf(text); };
    return app.add_option_function<std::string>(name, take, description)->option_text("F");
}

void addInputOptions(CLI::App& app, Options& options)
{
    addFile(app, "DATA.csv", options.dataFile,
            described("the data: CSV in UTF-8, one variable per column, names in the first row; required",
                      "examples/peakflow.csv -f examples/full.bld"))
        ->option_text(" ")
        ->required();
    const auto takeCommand = [&options](const std::string& text) { options.command = text; };
    auto* command = app.add_option_function<std::string>(
        "-c,--command", takeCommand,
        described("one command; the leading word BLDATMAN and the closing semicolon may be left out",
                  "-c \"VARIABLE=wright1 WITH=mini1 PRINT(AGREEMENT)\""));
    command->option_text("TEXT");
    addFile(
        app, "-f,--command-file", options.commandFile,
        described("a file of commands, each closed by a semicolon, run in order over the data", "-f examples/full.bld"))
        ->excludes(command);
    addFile(app, "-d,--dictionary", options.dictionaryFile,
            described("JSON with labels, levels, value labels and missing codes of the variables",
                      "-d examples/peakflow.json"));
}

void addOutputOptions(CLI::App& app, Options& options, std::vector<std::string>& outputs)
{
    app.add_option("-l,--language", options.language,
                   described("the language of the output, en unless given: " + languageList(), "-l pt_BR"))
        ->option_text("CODE");
    app.add_option(
           "-o,--output", outputs,
           described("write a file, by its ending a report for a browser (.html), text (.txt) or data (.json), or "
                     "with a closing slash the plots as .svg files into a folder; may be repeated; without it, "
                     "text on the standard output",
                     "-o report.html -o report.json -o plots/"))
        ->option_text("F")
        ->allow_extra_args(false);
    addFile(app, "--trace", options.traceFile,
            described("write every call between module and host, one line each, in order", "--trace trace.txt"));
}

void addOptions(CLI::App& app, Options& options, std::vector<std::string>& outputs)
{
    app.get_formatter()->column_width(namesWidth);
    app.allow_windows_style_options(false);  // "/data/x.csv" is a file on every system
    addInputOptions(app, options);
    addOutputOptions(app, options, outputs);
    addFile(app, "--module", options.module,
            described("the library to load, the one that came with this program unless given",
                      "--module build/sanitize/lib/libbldatman.so"));
    app.set_help_flag("-h,--help", described("print this and exit", "bldatman-run --help"));
    app.set_version_flag("--version", std::string("bldatman-run ") + BLDATMAN_VERSION,
                         described("print the version and exit", "bldatman-run --version"));
    app.footer(footer);
}

OutputRequest outputRequest(const std::string& name)
{
    const OutputWriter writer = writerFor(name);
    if (writer == nullptr) {
        throw InputError(name, "the name of an output must end in " + knownEndings());
    }
    return {pathOf(name), writer};
}

/// No output may take the place of an input or of another output.
void requireDistinctFiles(const Options& options)
{
    std::vector<fs::path> taken = {options.dataFile, options.commandFile, options.dictionaryFile, options.module};
    std::vector<fs::path> written;
    for (const OutputRequest& output : options.outputs) {
        written.push_back(output.place);
    }
    written.push_back(options.traceFile);
    std::erase(taken, fs::path());
    std::erase(written, fs::path());
    for (const fs::path& file : written) {
        const auto other = std::ranges::find_if(taken, [&](const fs::path& used) { return isSameFile(file, used); });
        if (other != taken.end()) {
            throw InputError(shown(file), "would be written over " + shown(*other) + ", which is used already");
        }
        taken.push_back(file);
    }
}

/// What the options add up to, once each of them has been read.
void complete(const CLI::App& app, Options& options, const std::vector<std::string>& outputs)
{
    if (app.count("--command") + app.count("--command-file") == 0) {
        throw InputError("there is no command: give one with -c or a file of commands with -f");
    }
    if (text::firstBadUtf8Byte(options.language)) {
        throw InputError("the language code is not UTF-8");
    }
    std::ranges::transform(outputs, std::back_inserter(options.outputs), outputRequest);
    requireDistinctFiles(options);
}

}  // namespace

CommandLine readCommandLine(std::vector<std::string> arguments)
{
    CLI::App app("Runs Bland-Altman method-comparison commands over a CSV file.", "bldatman-run");
    Options options;
    std::vector<std::string> outputs;
    addOptions(app, options, outputs);
    try {
        std::ranges::reverse(arguments);  // as the library takes them
        app.parse(arguments);
        complete(app, options, outputs);
        return {options, exitDelivered};
    } catch (const CLI::Success& helpOrVersion) {
        app.exit(helpOrVersion);
        if (std::cout.flush()) {
            return {std::nullopt, exitDelivered};
        }
        writeMessage(standardOutputFailed);
        return {std::nullopt, exitOutputNotWritten};
    } catch (const CLI::ParseError& error) {
        writeMessage(std::string(error.what()) + "\nRun with --help for the options.");
    } catch (const InputError& error) {
        writeMessage(error.what());
    }
    return {std::nullopt, exitBadInput};
}

}  // namespace runner
