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
#include <iostream>
#include <string>

namespace runner {

namespace {

/// As the command line has it, before it is looked at closely.
struct RawOptions {
    std::string dataFile;
    std::string command;
    std::string commandFile;
    std::string dictionaryFile;
    std::string language = "en";
    std::vector<std::string> outputs;
    std::string module;
    std::string traceFile;
};

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
    std::string text;
    for (const std::string& line : text::wrapText(description, descriptionsWidth)) {
        text += line + "\n";
    }
    return text + "  " + example;
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

void addInputOptions(CLI::App& app, RawOptions& raw)
{
    app.add_option("DATA.csv", raw.dataFile,
                   described("the data: CSV in UTF-8, one variable per column, names in the first row; required",
                             "examples/peakflow.csv -f examples/full.bld"))
        ->option_text(" ")
        ->required();
    auto* command =
        app.add_option("-c,--command", raw.command,
                       described("one command; the leading word BLDATMAN and the closing semicolon may be left out",
                                 "-c \"VARIABLE=wright1 WITH=mini1 PRINT(AGREEMENT)\""));
    auto* commandFile =
        app.add_option("-f,--command-file", raw.commandFile,
                       described("a file of commands, each closed by a semicolon, run in order over the data",
                                 "-f examples/full.bld"));
    command->option_text("TEXT")->excludes(commandFile);
    commandFile->option_text("F");
    app.add_option("-d,--dictionary", raw.dictionaryFile,
                   described("JSON with labels, levels, value labels and missing codes of the variables",
                             "-d examples/peakflow.json"))
        ->option_text("F");
}

void addOutputOptions(CLI::App& app, RawOptions& raw)
{
    app.add_option("-l,--language", raw.language,
                   described("the language of the output, en unless given: " + languageList(), "-l pt_BR"))
        ->option_text("CODE");
    app.add_option(
           "-o,--output", raw.outputs,
           described("write a file, by its ending a report for a browser (.html), text (.txt) or data (.json), or "
                     "with a closing slash the plots as .svg files into a folder; may be repeated; without it, "
                     "text on the standard output",
                     "-o report.html -o report.json -o plots/"))
        ->option_text("F")
        ->allow_extra_args(false);
    app.add_option("--trace", raw.traceFile,
                   described("write every call between module and host, one line each, in order", "--trace trace.txt"))
        ->option_text("F");
}

void addOptions(CLI::App& app, RawOptions& raw)
{
    app.get_formatter()->column_width(namesWidth);
    app.allow_windows_style_options(false);  // "/data/x.csv" is a file on every system
    addInputOptions(app, raw);
    addOutputOptions(app, raw);
    app.add_option("--module", raw.module,
                   described("the library to load, the one that came with this program unless given",
                             "--module build/sanitize/lib/libbldatman.so"))
        ->option_text("F");
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
    std::vector<std::filesystem::path> taken = {options.dataFile, options.commandFile, options.dictionaryFile,
                                                options.module};
    std::erase(taken, std::filesystem::path());
    std::vector<std::filesystem::path> written;
    for (const OutputRequest& output : options.outputs) {
        written.push_back(output.place);
    }
    if (!options.traceFile.empty()) {
        written.push_back(options.traceFile);
    }
    for (const std::filesystem::path& file : written) {
        for (const std::filesystem::path& other : taken) {
            if (isSameFile(file, other)) {
                throw InputError(shown(file), "would be written over " + shown(other) + ", which is used already");
            }
        }
        taken.push_back(file);
    }
}

Options checked(const CLI::App& app, const RawOptions& raw)
{
    if (app.count("--command") + app.count("--command-file") == 0) {
        throw InputError("there is no command: give one with -c or a file of commands with -f");
    }
    if (text::firstBadUtf8Byte(raw.language)) {
        throw InputError("the language code is not UTF-8");
    }
    Options options;
    options.dataFile = pathOf(raw.dataFile);
    if (app.count("--command") > 0) {
        options.command = raw.command;
    }
    options.commandFile = pathOf(raw.commandFile);
    options.dictionaryFile = pathOf(raw.dictionaryFile);
    options.language = raw.language;
    for (const std::string& file : raw.outputs) {
        options.outputs.push_back(outputRequest(file));
    }
    options.module = pathOf(raw.module);
    options.traceFile = pathOf(raw.traceFile);
    requireDistinctFiles(options);
    return options;
}

}  // namespace

CommandLine readCommandLine(std::vector<std::string> arguments)
{
    CLI::App app("Runs Bland-Altman method-comparison commands over a CSV file.", "bldatman-run");
    RawOptions raw;
    addOptions(app, raw);
    try {
        std::ranges::reverse(arguments);  // as the library takes them
        app.parse(arguments);
        return {checked(app, raw), exitDelivered};
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
