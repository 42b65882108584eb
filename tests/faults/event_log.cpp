#include "tests/faults/event_log.h"

#include <algorithm>
#include <iostream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string_view>

namespace tests {

namespace {

constexpr std::size_t room = std::size_t{1} << 22U;
constexpr std::string_view allocation = "allocation";

}  // namespace

EventLog::EventLog()
    : text_(std::make_unique_for_overwrite<char[]>(room))  // NOLINT(modernize-avoid-c-arrays): as declared
    , previousErrors_(std::cerr.rdbuf(this))
{
    setp(text_.get(), text_.get() + room);
}

EventLog::~EventLog()
{
    std::cerr.rdbuf(previousErrors_);
}

void EventLog::noteAllocation()
{
    sputn(allocation.data(), allocation.size());
    sputc('\n');
}

Lines EventLog::events() const
{
    if (pptr() == epptr()) {
        throw std::length_error("the log is full");
    }
    Lines events;
    std::istringstream text(std::string(pbase(), pptr()));
    for (std::string line; std::getline(text, line);) {
        events.push_back(line);
    }
    return events;
}

bool isCall(const std::string& event)
{
    return event.find('\t') != std::string::npos;
}

bool isAllocation(const std::string& event)
{
    return event == allocation;
}

Lines linesAmong(const Lines& events, std::size_t count)
{
    Lines lines;
    std::copy_if(events.begin(), events.begin() + static_cast<std::ptrdiff_t>(count), std::back_inserter(lines),
                 [](const auto& event) { return !isCall(event) && !isAllocation(event); });
    return lines;
}

}  // namespace tests
