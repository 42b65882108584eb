#include "runner/input/command_file.h"

#include "runner/input/input_error.h"
#include "standin/command/tokens.h"

namespace runner {

namespace {

[[noreturn]] void refuse(const std::string& text, std::size_t offset, const std::string& reason,
                         const std::string& fileName)
{
    throw InputError(fileName, standin::placeOf(text, offset).line, reason);
}

std::vector<standin::Token> tokensOfFile(const std::string& text, const std::string& fileName)
{
    try {
        return standin::tokenize(text, 0, text.size());
    } catch (const standin::CommandError& error) {
        refuse(text, error.offset(), error.what(), fileName);
    }
}

}  // namespace

std::vector<standin::CommandText> cutCommands(const std::string& text, const std::string& fileName)
{
    const auto whole = std::make_shared<const std::string>(text);
    std::vector<standin::CommandText> commands;
    const standin::Token* first = nullptr;
    const std::vector<standin::Token> tokens = tokensOfFile(text, fileName);
    for (const standin::Token& token : tokens) {
        if (!token.is(";")) {
            first = first == nullptr ? &token : first;
        } else if (first != nullptr) {
            commands.push_back({whole, first->begin, token.end, false});
            first = nullptr;
        }
    }
    if (first->kind != standin::Token::Kind::End) {
        refuse(text, first->begin, "the command that begins here is not closed by a semicolon", fileName);
    }
    if (commands.empty()) {
        throw InputError(fileName, "the file holds no command");
    }
    return commands;
}

}  // namespace runner
