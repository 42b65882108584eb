#include "standin/drawing/gnuplot.h"

#include "standin/drawing/child_process.h"

#include <string_view>

namespace standin {

namespace {

/// Stands alone on a line of both output streams after every script. No picture holds such a line: the texts in one
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
        for (std::size_t end = find(mark); end != std::string::npos; end = find(mark)) {
            complete_.push_back(pending_.substr(0, end));
            pending_.erase(0, end + mark.size());
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
    std::size_t find(const std::string& mark)
    {
        const std::size_t found = pending_.find(mark, searched_);
        searched_ = 0;
        return found;
    }

    std::vector<std::string> complete_;
    std::string pending_;
    std::size_t searched_ = 0;  ///< no mark begins before this place
};

/// Of a complaint, which shows the command and then says "line 7: reason", the reason.
std::string reasonIn(const std::string& complaint)
{
    const std::size_t end = complaint.find_last_not_of(" \n");
    if (end == std::string::npos) {
        return "gnuplot drew nothing";
    }
    const std::size_t begin = complaint.rfind('\n', end) + 1;
    const std::string line = complaint.substr(begin, end + 1 - begin);
    const std::size_t number = line.find("line ");
    const std::size_t colon = number == std::string::npos ? number : line.find(": ", number);
    return "gnuplot says: " + (colon == std::string::npos ? line : line.substr(colon + 2));
}

bool isWhole(const std::string& svg)
{
    return svg.find("</svg>") != std::string::npos;
}

}  // namespace

std::vector<Drawing> drawWithGnuplot(const std::vector<std::string>& scripts,
                                     const std::function<void(std::size_t)>& drawn)
{
    ScriptOutputs pictures;
    ScriptOutputs complaints;
    // No start-up file of the user or of the system has a say.
    complaints.append(runProgram({"gnuplot", "-d"}, joined(scripts), [&](std::string_view piece) {
        pictures.append(piece);
        drawn(pictures.completeCount());
    }));
    std::vector<Drawing> drawings;
    for (std::size_t i = 0; i < scripts.size(); ++i) {
        const std::string svg = pictures.of(i);
        drawings.push_back(isWhole(svg) ? Drawing{svg, ""} : Drawing{"", reasonIn(complaints.of(i))});
    }
    return drawings;
}

}  // namespace standin
