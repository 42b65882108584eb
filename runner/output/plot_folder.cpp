#include "runner/output/plot_folder.h"

#include "report/document/document_view.h"
#include "runner/output/output_file.h"
#include "runner/platform/paths.h"
#include "text/unicode.h"
#include "text/utf8.h"

#include <algorithm>
#include <string_view>
#include <system_error>

namespace runner {

namespace fs = std::filesystem;

namespace {

/// The title with what has no place in the name of a file replaced, and cut where names of files have to end.
std::string fileNameFor(std::string_view title)
{
    constexpr std::size_t longest = 120;
    std::string name;
    for (std::size_t i = 0; i < title.size() && name.size() < longest;) {
        const text::CodePoint character = text::codePointAt(title, i);
        if (text::isLetterOrDigit(character.value)) {
            name += title.substr(i, character.length);
        } else if (!name.empty() && name.back() != '-') {
            name += '-';
        }
        i += character.length;
    }
    return name.substr(0, name.find_last_not_of('-') + 1);
}

std::string padded(std::size_t number, std::size_t largest)
{
    const std::string digits = std::to_string(number);
    const std::size_t width = std::to_string(largest).size();
    return std::string(width - digits.size(), '0') + digits;
}

struct PlotFile {
    fs::path path;
    const report::DrawnPlot* plot;

    bool isDrawn() const { return !plot->svg.empty(); }
};

std::vector<PlotFile> plotFilesOf(const report::Report& report, const fs::path& folder)
{
    const auto graphs = report::graphsOf(report.documents);
    std::vector<PlotFile> files;
    for (const rapidjson::Value* graph : graphs) {
        const std::string number = padded(files.size() + 1, graphs.size());
        files.push_back(
            {folder / pathOf(number + "-" + fileNameFor(report::titleOf(*graph)) + ".svg"), &report.plots.of(*graph)});
    }
    return files;
}

void makeFolder(const fs::path& folder)
{
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) {
        throw OutputError(shown(folder) + ": cannot be made: " + reasonOf(error));
    }
}

void writePlot(const PlotFile& file)
{
    if (!file.isDrawn()) {
        throw OutputError(shown(file.path) + ": cannot be drawn: " + file.plot->reason);
    }
    OutputFile output(file.path);
    output.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + file.plot->svg + "\n");
    output.commit();
}

}  // namespace

std::vector<std::string> writePlotFiles(const report::Report& report, const fs::path& folder)
{
    const std::vector<PlotFile> files = plotFilesOf(report, folder);
    try {
        if (std::ranges::any_of(files, &PlotFile::isDrawn)) {
            makeFolder(folder);
        }
    } catch (const OutputError& error) {
        return {error.what()};
    }
    std::vector<std::string> failures;
    for (const PlotFile& file : files) {
        try {
            writePlot(file);
        } catch (const OutputError& error) {
            failures.emplace_back(error.what());
        }
    }
    return failures;
}

}  // namespace runner
