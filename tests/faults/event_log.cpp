#include "tests/faults/event_log.h"

#include <algorithm>
#include <iostream>
#include <sstream>
#include <stdexcept>

namespace tests {

EventLog::EventLog()
    : previousErrors_(std::cerr.rdbuf(this))
{
    text_.reserve(std::size_t{1} << 22U);
}

EventLog::~EventLog()
{
    std::cerr.rdbuf(previousErrors_);
}

std::vector<std::string> EventLog::events() const
{
    std::vector<std::string> events;
    std::istringstream lines(text_);
    for (std::string line; std::getline(lines, line);) {
        events.push_back(line);
    }
    return events;
}

EventLog::int_type EventLog::overflow(int_type character)
{
    if (!traits_type::eq_int_type(character, traits_type::eof())) {
        const char one = traits_type::to_char_type(character);
        xsputn(&one, 1);
    }
    return traits_type::not_eof(character);
}

std::streamsize EventLog::xsputn(const char* text, std::streamsize size)
{
    const std::string_view added(text, static_cast<std::size_t>(size));
    if (text_.size() + added.size() > text_.capacity()) {
        throw std::length_error("the log is full");
    }
    text_ += added;
    eventCount_ += static_cast<std::size_t>(std::ranges::count(added, '\n'));
    return size;
}

}  // namespace tests
