// Goes over the tokens of a command, and says what is wrong where it cannot go on.
#pragma once

#include "standin/command/command_text.h"
#include "standin/command/tokens.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace standin {

class TokenReader {
public:
    explicit TokenReader(const CommandText& command)
        : tokens_(tokenize(*command.text, command.begin, command.end))
    {
    }

    const Token& peek() const { return tokens_[at_]; }

    /// The token after `peek()`; at the end, the end.
    const Token& peekSecond() const { return tokens_[at_ + 1 < tokens_.size() ? at_ + 1 : at_]; }

    const Token& take();

    /// Takes a symbol if it stands here.
    bool takeIf(std::string_view symbol);

    /// @throws CommandError  when something else stands here
    void expect(std::string_view symbol);

    bool atWord() const { return peek().kind == Token::Kind::Word; }

    /// @throws CommandError  at `token`: what was found, and a remark that goes on from there
    [[noreturn]] static void fail(const Token& token, const std::string& remark);

    /// The same with a choice of names, those nearest to what was found first.
    [[noreturn]] static void failWithChoice(const Token& token, const std::vector<std::string>& choice);

private:
    std::vector<Token> tokens_;
    std::size_t at_ = 0;
};

}  // namespace standin
