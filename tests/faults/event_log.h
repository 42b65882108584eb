// What happens in a run, in the order in which it came: host calls, allocations, lines on the standard error stream.
#pragma once

#include <memory>
#include <ostream>
#include <streambuf>
#include <string>
#include <vector>

namespace tests {

using Lines = std::vector<std::string>;

/// Takes a trace, allocations and, while it lives, the standard error stream. It has its memory beforehand, so that no
/// allocation of its own fails in a module that runs short of it.
class EventLog : public std::streambuf {
public:
    EventLog();
    ~EventLog() override;
    EventLog(const EventLog&) = delete;
    EventLog& operator=(const EventLog&) = delete;

    std::ostream& stream() { return stream_; }

    void noteAllocation();

    /// One text per event: a call as in a trace, with its tab, "allocation", or a line.
    Lines events() const;

private:
    std::unique_ptr<char[]> text_;  // NOLINT(modernize-avoid-c-arrays): room that nobody clears for each of many runs
    std::ostream stream_{this};
    std::streambuf* previousErrors_;
};

bool isCall(const std::string& event);

bool isAllocation(const std::string& event);

/// The lines among the first events, up to so many.
Lines linesAmong(const Lines& events, std::size_t count);

}  // namespace tests
