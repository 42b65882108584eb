#include "standin/runner/outputs.h"

#include "standin/drawing/picture_book.h"
#include "standin/render/render_text.h"
#include "standin/runner/messages.h"
#include "standin/runner/output_style.h"
#include "standin/runner/paths.h"
#include "standin/runner/progress_line.h"

#include <iostream>
#include <new>

namespace standin {

namespace {

using Failures = std::vector<std::string>;

Failures writeStandardOutput(const Session& session)
{
    std::cout << renderText(session.documents, standardOutputStyle()) << std::flush;
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

std::vector<std::string> writeOutputs(const Session& session, const Options& options)
{
    if (options.outputs.empty()) {
        return attempt("the standard output", [&] { return writeStandardOutput(session); });
    }
    ProgressLine line;
    const auto show = [&line](std::size_t drawn, std::size_t total) {
        if (drawn < total) {
            line.show("Drawing plots", std::to_string(drawn) + " of " + std::to_string(total));
        } else {
            line.clear();
        }
    };
    PictureBook pictures(session.documents, show);
    const Report report{session.documents, options.language, pictures};
    Failures failures;
    for (const OutputRequest& output : options.outputs) {
        const Failures more = attempt(shown(output.place), [&] { return output.write(report, output.place); });
        failures.insert(failures.end(), more.begin(), more.end());
    }
    return failures;
}

}  // namespace standin
