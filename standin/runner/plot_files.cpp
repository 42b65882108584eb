#include "standin/runner/plot_files.h"

#include "standin/runner/files.h"
#include "standin/text.h"
#include "standin/unicode.h"
#include "standin/utf8.h"

#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace standin {

namespace fs = std::filesystem;

namespace {

/// The title with what has no place in the name of a file replaced, and cut where names of files have to end.
std::string fileNameFor(std::string_view title)
{
    constexpr std::size_t longest = 120;
    std::string name;
    for (std::size_t i = 0; i < title.size();) {
        const CodePoint character = codePointAt(title, i);
        const bool kept = isLetterOrDigit(character.value);
        if (name.size() + character.length > longest) {
            break;
        }
        if (kept) {
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

struct Plot {
    std::string name;
    const Picture* picture;
};

std::vector<Plot> plotsOf(const Report& report)
{
    std::vector<Plot> plots;
    auto pictures = report.pictures.pictures().begin();
    for (const rapidjson::Document& document : report.documents) {
        auto picture = (pictures++)->begin();
        for (const rapidjson::Value& object : document["objects"].GetArray()) {
            if (object["type"] == "graph") {
                plots.push_back({object["name"].GetString(), &*picture++});
            }
        }
    }
    return plots;
}

void writePlot(const Plot& plot, const fs::path& file)
{
    if (plot.picture->svg.empty()) {
        throw OutputError(file.string() + ": cannot be drawn: " + plot.picture->reason);
    }
    OutputFile output(file);
    output.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + plot.picture->svg + "\n");
    output.commit();
}

}  // namespace

void writePlotFiles(const Report& report, const fs::path& folder)
{
    const std::vector<Plot> plots = plotsOf(report);
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) {
        throw OutputError(folder.string() + ": cannot be made: " + error.message());
    }
    std::string failures;
    for (std::size_t i = 0; i < plots.size(); ++i) {
        const std::string name = padded(i + 1, plots.size()) + "-" + fileNameFor(plots[i].name) + ".svg";
        try {
            writePlot(plots[i], folder / fs::u8path(name));
        } catch (const OutputError& failure) {
            failures += (failures.empty() ? "" : "\n") + std::string(failure.what());
        }
    }
    if (!failures.empty()) {
        throw OutputError(failures);
    }
}

}  // namespace standin
