#include "standin/render/output_formats.h"

#include "standin/render/render_html.h"
#include "standin/render/render_json.h"
#include "standin/render/render_text.h"

#include <algorithm>
#include <array>

namespace standin {

namespace {

struct OutputFormat {
    std::string_view ending;
    Renderer render;
};

constexpr std::array<OutputFormat, 3> formats = {{
    {".json", [](const Report& report) { return renderJson(report.documents); }},
    {".html", renderHtml},
    {".txt", [](const Report& report) { return renderText(report.documents); }},
}};

}  // namespace

Renderer rendererFor(std::string_view fileName)
{
    const auto* format =
        std::ranges::find_if(formats, [fileName](const auto& known) { return fileName.ends_with(known.ending); });
    return format == formats.end() ? nullptr : format->render;
}

std::string knownEndings()
{
    std::string endings;
    for (const OutputFormat& format : formats) {
        const std::string_view separator = &format == &formats.back() ? " or " : ", ";
        endings += endings.empty() ? "" : separator;
        endings += format.ending;
    }
    return endings;
}

}  // namespace standin
