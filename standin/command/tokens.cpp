#include "standin/command/tokens.h"

#include "standin/command/command_text.h"
#include "text/unicode.h"
#include "text/utf8.h"

#include <algorithm>

namespace standin {

namespace {

constexpr std::string_view blanks = " \t\r\n\f\v";
constexpr std::string_view symbols = "=():;";
constexpr std::string_view wordEnds = " \t\r\n\f\v=():;\"#";

bool contains(std::string_view set, char character)
{
    return set.find(character) != std::string_view::npos;
}

/// Moves over the text and takes one token at a time.
class Tokenizer {
public:
    Tokenizer(std::string_view text, std::size_t begin)
        : text_(text)
        , at_(begin)
    {
    }

    Token next()
    {
        skipBlanksAndComments();
        if (at_ == text_.size()) {
            return {Token::Kind::End, "", at_, at_};
        }
        if (text_[at_] == '"') {
            return takeQuoted();
        }
        if (contains(symbols, text_[at_])) {
            return take(Token::Kind::Symbol, at_ + 1);
        }
        return take(Token::Kind::Word, std::min(text_.find_first_of(wordEnds, at_), text_.size()));
    }

private:
    void skipBlanksAndComments()
    {
        while (at_ < text_.size() && (contains(blanks, text_[at_]) || text_[at_] == '#')) {
            at_ = text_[at_] == '#' ? std::min(text_.find_first_of("\r\n", at_), text_.size()) : at_ + 1;
        }
    }

    Token take(Token::Kind kind, std::size_t end)
    {
        const std::size_t begin = at_;
        at_ = end;
        return {kind, std::string(text_.substr(begin, end - begin)), begin, end};
    }

    Token takeQuoted()
    {
        const std::size_t begin = at_;
        std::string content;
        for (std::size_t i = begin + 1; i < text_.size(); ++i) {
            if (text_[i] == '"' && (i + 1 == text_.size() || text_[i + 1] != '"')) {
                at_ = i + 1;
                return {Token::Kind::Quoted, content, begin, at_};
            }
            i += static_cast<std::size_t>(text_[i] == '"');
            content += text_[i];
        }
        throw CommandError(begin, "the quote that begins here is not closed");
    }

    std::string_view text_;
    std::size_t at_;
};

void requireWellFormed(const std::string& text)
{
    if (const auto bad = text::firstBadUtf8Byte(text)) {
        throw CommandError(*bad, "a byte here is not UTF-8");
    }
}

bool isNameCharacter(char32_t character)
{
    return text::isLetterOrDigit(character) || (character < 0x80 && contains("_.$@", static_cast<char>(character)));
}

}  // namespace

std::vector<Token> tokenize(const std::string& text, std::size_t begin, std::size_t end)
{
    requireWellFormed(text);
    Tokenizer tokenizer(std::string_view(text).substr(0, end), begin);
    std::vector<Token> tokens;
    do {
        tokens.push_back(tokenizer.next());
    } while (tokens.back().kind != Token::Kind::End);
    return tokens;
}

bool isBareName(std::string_view text)
{
    for (std::size_t i = 0; i < text.size();) {
        const text::CodePoint character = text::codePointAt(text, i);
        if (!isNameCharacter(character.value)) {
            return false;
        }
        i += character.length;
    }
    return !text.empty();
}

}  // namespace standin
