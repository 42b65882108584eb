#include "runner/input/command_file.h"

#include "runner/input/input_error.h"
#include "standin/command/tokens.h"

#include <cstddef>
#include <memory>

namespace runner {

namespace {

using standin::CommandText;
using standin::Token;

[[noreturn]] void refuse(const std::string& text, std::size_t offset, const std::string& reason,
                         const std::string& fileName)
{
    throw InputError(fileName, standin::placeOf(text, offset).line, reason);
}

std::vector<Token> tokensOfFile(const std::string& text, const std::string& fileName)
{
    try {
        return standin::tokenize(text, 0, text.size());
    } catch (const standin::CommandError& error) {
        refuse(text, error.offset(), error.what(), fileName);
    }
}

}  // namespace

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
    // The end of the text is a token too, and the one found here unless a command is still open.
    if (first->kind != Token::Kind::End) {
        refuse(text, first->begin, "the command that begins here is not closed by a semicolon", fileName);
    }
    if (commands.empty()) {
        throw InputError(fileName, "the file holds no command");
    }
    return commands;
}

}  // namespace runner
