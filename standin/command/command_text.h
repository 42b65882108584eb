// The text of commands, and where in it something stands.
#pragma once

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

namespace standin {

/// One command: the part [begin, end) of a text that may hold more.
struct CommandText {
    std::shared_ptr<const std::string> text;
    std::size_t begin = 0;
    std::size_t end = 0;
    bool nameMayBeMissing = false;  ///< the command's name need not lead it
};

/// A whole text as one command whose name may be missing.
CommandText singleCommand(const std::string& text);

/// Line and column of a place, both from 1; the column counts characters.
struct TextPlace {
    std::size_t line;
    std::size_t column;
};

TextPlace placeOf(std::string_view text, std::size_t offset);

/// The line around `offset` with a caret under it, both indented, the last without a line end.
std::string lineWithCaret(std::string_view text, std::size_t offset);

/// What is wrong with a command, and where in its text.
class CommandError : public std::runtime_error {
public:
    CommandError(std::size_t offset, const std::string& reason)
        : std::runtime_error(reason)
        , offset_(offset)
    {
    }

    std::size_t offset() const { return offset_; }

private:
    std::size_t offset_;
};

}  // namespace standin
