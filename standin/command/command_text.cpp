#include "standin/command/command_text.h"

#include "standin/command/tokens.h"
#include "standin/input_error.h"
#include "standin/unicode.h"
#include "standin/utf8.h"

#include <algorithm>

namespace standin {

namespace {

std::size_t lineStart(std::string_view text, std::size_t offset)
{
    const std::size_t lineEnd = text.substr(0, offset).find_last_of("\r\n");
    return lineEnd == std::string_view::npos ? 0 : lineEnd + 1;
}

[[noreturn]] void refuse(const std::string& text, std::size_t offset, const std::string& reason,
                         const std::string& fileName)
{
    throw InputError(fileName, placeOf(text, offset).line, reason);
}

std::vector<Token> tokensOfFile(const std::string& text, const std::string& fileName)
{
    try {
        return tokenize(text, 0, text.size());
    } catch (const CommandError& error) {
        refuse(text, error.offset(), error.what(), fileName);
    }
}

}  // namespace

CommandText singleCommand(const std::string& text)
{
    return {std::make_shared<const std::string>(text), 0, text.size(), true};
}

TextPlace placeOf(std::string_view text, std::size_t offset)
{
    const std::size_t start = lineStart(text, offset);
    return {countLineEnds(text.substr(0, offset)) + 1, countCodePoints(text.substr(start, offset - start)) + 1};
}

std::string lineWithCaret(std::string_view text, std::size_t offset)
{
    const std::size_t start = lineStart(text, offset);
    const std::size_t lineEnd = std::min(text.find_first_of("\r\n", offset), text.size());
    std::string indent;
    for (std::size_t i = start; i < offset;) {
        const CodePoint character = codePointAt(text, i);
        indent += text[i] == '\t' ? "\t" : std::string(characterWidth(character.value), ' ');
        i += character.length;
    }
    return "    " + std::string(text.substr(start, lineEnd - start)) + "\n    " + indent + "^";
}

std::vector<CommandText> cutCommands(const std::string& text, const std::string& fileName)
{
    const auto whole = std::make_shared<const std::string>(text);
    std::vector<CommandText> commands;
    const Token* first = nullptr;
    const std::vector<Token> tokens = tokensOfFile(text, fileName);
    for (const Token& token : tokens) {
        if (!token.is(";")) {
            first = first == nullptr ? &token : first;
        } else if (first != nullptr) {
            commands.push_back({whole, first->begin, token.end, false});
            first = nullptr;
        }
    }
    if (first->kind != Token::Kind::End) {
        refuse(text, first->begin, "the command that begins here is not closed by a semicolon", fileName);
    }
    if (commands.empty()) {
        throw InputError(fileName, "the file holds no command");
    }
    return commands;
}

}  // namespace standin
