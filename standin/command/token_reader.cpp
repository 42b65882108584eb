#include "standin/command/token_reader.h"

#include "text/near_misses.h"
#include "text/wording.h"

namespace standin {

namespace {

constexpr std::size_t mostChoicesShown = 12;

std::string found(const Token& token)
{
    switch (token.kind) {
    case Token::Kind::End:
        return "found the end of the command";
    case Token::Kind::Quoted:
        return "found the quoted text " + text::inQuotes(token.text);
    default:
        return "found " + text::inQuotes(token.text);
    }
}

}  // namespace

const Token& TokenReader::take()
{
    const Token& token = peek();
    if (token.kind != Token::Kind::End) {
        ++at_;
    }
    return token;
}

bool TokenReader::takeIf(std::string_view symbol)
{
    const bool stands = peek().is(symbol);
    if (stands) {
        take();
    }
    return stands;
}

void TokenReader::expect(std::string_view symbol)
{
    if (!takeIf(symbol)) {
        fail(peek(), "expected " + text::inQuotes(symbol));
    }
}

void TokenReader::fail(const Token& token, const std::string& remark)
{
    throw CommandError(token.begin, found(token) + ", " + remark);
}

void TokenReader::failWithChoice(const Token& token, const std::vector<std::string>& choice)
{
    if (choice.empty()) {
        fail(token, "expected nothing more");
    }
    std::string expected = choice.size() == 1 ? "expected " : "expected one of ";
    const std::vector<std::string> ordered = text::nearestFirst(token.text, choice);
    for (std::size_t i = 0; i < ordered.size() && i < mostChoicesShown; ++i) {
        expected += (i > 0 ? ", " : "") + ordered[i];
    }
    if (ordered.size() > mostChoicesShown) {
        expected += ", ...";
    }
    fail(token, expected);
}

}  // namespace standin
