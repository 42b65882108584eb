// Host calls and lines on the standard error stream, in the order in which they came.
#pragma once

#include <cstddef>
#include <ostream>
#include <streambuf>
#include <string>
#include <vector>

namespace tests {

/// Takes both a trace and, while it lives, the standard error stream. It has its memory beforehand, so that no
/// allocation of its own fails in a module that runs short of it.
class EventLog : public std::streambuf {
public:
    EventLog();
    ~EventLog() override;
    EventLog(const EventLog&) = delete;
    EventLog& operator=(const EventLog&) = delete;

    std::ostream& stream() { return stream_; }

    /// One text per event: a call as in a trace, with its tab, or a line without one.
    std::vector<std::string> events() const;

    std::size_t eventCount() const { return eventCount_; }

protected:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char* text, std::streamsize size) override;

private:
    std::string text_;
    std::size_t eventCount_ = 0;
    std::ostream stream_{this};
    std::streambuf* previousErrors_;
};

inline bool isCall(const std::string& event)
{
    return event.find('\t') != std::string::npos;
}

}  // namespace tests
