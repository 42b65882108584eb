#include "standin/command/command_text.h"

#include "text/unicode.h"
#include "text/utf8.h"

#include <algorithm>

namespace standin {

namespace {

std::size_t lineStart(std::string_view text, std::size_t offset)
{
    const std::size_t lineEnd = text.substr(0, offset).find_last_of("\r\n");
    return lineEnd == std::string_view::npos ? 0 : lineEnd + 1;
}

}  // namespace

CommandText singleCommand(const std::string& text)
{
    return {std::make_shared<const std::string>(text), 0, text.size(), true};
}

TextPlace placeOf(std::string_view text, std::size_t offset)
{
    const std::size_t start = lineStart(text, offset);
    return {text::countLineEnds(text.substr(0, offset)) + 1,
            text::countCodePoints(text.substr(start, offset - start)) + 1};
}

std::string lineWithCaret(std::string_view text, std::size_t offset)
{
    const std::size_t start = lineStart(text, offset);
    const std::size_t lineEnd = std::min(text.find_first_of("\r\n", offset), text.size());
    std::string indent;
    for (std::size_t i = start; i < offset;) {
        const text::CodePoint character = text::codePointAt(text, i);
        indent += text[i] == '\t' ? "\t" : std::string(text::characterWidth(character.value), ' ');
        i += character.length;
    }
    return "    " + std::string(text.substr(start, lineEnd - start)) + "\n    " + indent + "^";
}

}  // namespace standin
