#include "report/drawing/gnuplot.h"

#include "report/drawing/child_process.h"

#include <sstream>
#include <string_view>

namespace report {

namespace {

/// Stands alone on a line of both output streams after every script. No SVG holds such a line: the texts in one
/// have none to themselves.
const std::string endOfScript = "bldatman: end of script";

/// All scripts, each followed by its marks.
std::string joined(const std::vector<std::string>& scripts)
{
    const std::string mark = "print '" + endOfScript + "'\n";
    std::string input;
    for (const std::string& script : scripts) {
        input += script + "set print '-'\n" + mark + "set print\n" + mark;
    }
    return input;
}

/// Cuts a stream that comes in pieces into what stands before each end of a script.
class ScriptOutputs {
public:
    void append(std::string_view piece)
    {
        pending_ += piece;
        const std::string mark = endOfScript + "\n";
        std::size_t end = pending_.find(mark, searched_);
        while (end != std::string::npos) {
            complete_.push_back(pending_.substr(0, end));
            pending_.erase(0, end + mark.size());
            end = pending_.find(mark);
        }
        searched_ = pending_.size() < mark.size() ? 0 : pending_.size() - mark.size();
    }

    std::size_t completeCount() const { return complete_.size(); }

    /// Of the n-th script; of the one that did not come to its end what there is, of those after it nothing.
    std::string of(std::size_t script) const
    {
        if (script < complete_.size()) {
            return complete_[script];
        }
        return script == complete_.size() ? pending_ : "";
    }

private:
    std::vector<std::string> complete_;
    std::string pending_;
    std::size_t searched_ = 0;  ///< no mark begins before this place
};

/// What follows "line 7: " in the first complaint that is no warning; what gnuplot says after it is often no more than
/// what comes of it.
std::string reasonIn(const std::string& complaints)
{
    std::istringstream lines(complaints);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t number = line.find("line ");
        const std::size_t colon = number == std::string::npos ? number : line.find(": ", number);
        if (colon != std::string::npos && line.find("warning", colon) == std::string::npos) {
            return "gnuplot says: " + line.substr(colon + 2);
        }
    }
    return "gnuplot drew nothing";
}

bool isWhole(const std::string& svg)
{
    return svg.find("</svg>") != std::string::npos;
}

}  // namespace

std::vector<DrawnPlot> drawWithGnuplot(const std::vector<std::string>& scripts,
                                       const std::function<void(std::size_t)>& drawn)
{
    ScriptOutputs svgs;
    ScriptOutputs complaints;
    // No start-up file of the user or of the system has a say.
    complaints.append(runProgram({"gnuplot", "-d"}, joined(scripts), [&](std::string_view piece) {
        svgs.append(piece);
        drawn(svgs.completeCount());
    }));
    std::vector<DrawnPlot> plots;
    for (std::size_t i = 0; i < scripts.size(); ++i) {
        const std::string svg = svgs.of(i);
        plots.push_back(isWhole(svg) ? DrawnPlot{.svg = svg} : DrawnPlot{.reason = reasonIn(complaints.of(i))});
    }
    return plots;
}

}  // namespace report
