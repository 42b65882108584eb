#include "runner/output/output_formats.h"

#include "report/formats/render_html.h"
#include "report/formats/render_json.h"
#include "report/formats/render_text.h"
#include "runner/output/output_file.h"
#include "runner/output/plot_folder.h"
#include "runner/platform/paths.h"

#include <algorithm>
#include <array>

namespace runner {

namespace {

std::string renderJson(const report::Report& report)
{
    return report::renderJson(report.documents);
}

std::string renderText(const report::Report& report)
{
    return report::renderText(report.documents);
}

template <std::string (*render)(const report::Report&)>
std::vector<std::string> writeWhole(const report::Report& report, const std::filesystem::path& file)
{
    try {
        // Rendered first: nothing is begun beside the file for as long as that takes.
        const std::string text = render(report);
        OutputFile output(file);
        output.write(text);
        output.commit();
    } catch (const OutputError& error) {
        return {error.what()};
    }
    return {};
}

struct OutputFormat {
    std::string_view ending;
    OutputWriter write;
};

constexpr std::array<OutputFormat, 4> formats = {{
    {".html", writeWhole<report::renderHtml>},
    {".json", writeWhole<renderJson>},
    {".txt", writeWhole<renderText>},
    {"/", writePlotFiles},
}};

}  // namespace

OutputWriter writerFor(std::string_view name)
{
    const std::filesystem::path place = pathOf(name);
    if (!name.empty() && !place.has_filename()) {  // ends in what parts the names of paths here
        return writePlotFiles;
    }
    const auto* format =
        std::ranges::find_if(formats, [name](const auto& known) { return name.ends_with(known.ending); });
    return format == formats.end() ? nullptr : format->write;
}

std::string knownEndings()
{
    std::string endings;
    for (const OutputFormat& format : formats) {
        const std::string_view separator = &format == &formats.back() ? " or " : ", ";
        endings += endings.empty() ? "" : separator;
        endings += format.ending;
    }
    return endings + " (a folder for the plots)";
}

}  // namespace runner
