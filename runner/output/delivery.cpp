#include "runner/output/delivery.h"

#include "report/drawing/drawn_plots.h"
#include "report/formats/render_text.h"
#include "runner/platform/paths.h"
#include "runner/terminal/progress_line.h"
#include "runner/terminal/terminal_style.h"

#include <iostream>
#include <new>

namespace runner {

namespace {

using Failures = std::vector<std::string>;

Failures writeStandardOutput(const std::list<rapidjson::Document>& documents)
{
    std::cout << report::renderText(documents, standardOutputStyle()) << std::flush;
    return std::cout ? Failures{} : Failures{standardOutputFailed};
}

/// What `write` gives, which may run out of memory.
template <class Write>
Failures attempt(const std::string& name, Write write)
{
    try {
        return write();
    } catch (const std::bad_alloc&) {
        return {name + ": cannot be written: there is not enough memory"};
    }
}

}  // namespace

std::vector<std::string> writeOutputs(const std::list<rapidjson::Document>& documents, const std::string& language,
                                      const std::vector<OutputRequest>& outputs)
{
    if (outputs.empty()) {
        return attempt("the standard output", [&] { return writeStandardOutput(documents); });
    }
    ProgressLine line;
    const auto show = [&line](std::size_t drawn, std::size_t total) {
        if (drawn < total) {
            line.show("Drawing plots", std::to_string(drawn) + " of " + std::to_string(total));
        } else {
            line.clear();
        }
    };
    report::DrawnPlots plots(documents, show);
    const report::Report report{documents, language, plots};
    Failures failures;
    for (const OutputRequest& output : outputs) {
        const Failures more = attempt(shown(output.place), [&] { return output.write(report, output.place); });
        failures.insert(failures.end(), more.begin(), more.end());
    }
    return failures;
}

}  // namespace runner
