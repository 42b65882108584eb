#include "standin/command/value_parser.h"

#include "text/numbers.h"
#include "text/wording.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <locale>
#include <optional>
#include <sstream>
#include <string_view>
#include <system_error>

namespace standin {

namespace {

using Value = ParsedParameter::Value;

std::string inWords(double number)
{
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << number;
    return text.str();
}

KeywordText parseKeyword(TokenReader& reader, const ParameterDescription& description)
{
    const Token& token = reader.peek();
    const bool literal = token.kind == Token::Kind::Quoted;
    const bool readable = reader.atWord() || (literal && description.kind == kinds::keywordOrLiteral);
    if (readable && description.values.empty()) {
        return {reader.take().text, literal};
    }
    const auto allowed = std::ranges::find(description.values, text::upperCase(token.text),
                                           [](const std::string& value) { return text::upperCase(value); });
    if (!readable || allowed == description.values.end()) {
        TokenReader::failWithChoice(token, description.values);
    }
    reader.take();
    return {*allowed, literal};
}

void requireWithinBounds(const Token& token, double number, const ParameterDescription& description)
{
    if (description.lowerBound && number < *description.lowerBound) {
        TokenReader::fail(token, "expected a number not below " + inWords(*description.lowerBound));
    }
    if (description.upperBound && number > *description.upperBound) {
        TokenReader::fail(token, "expected a number not above " + inWords(*description.upperBound));
    }
}

double parseNumber(TokenReader& reader, const ParameterDescription& description)
{
    const Token& token = reader.peek();
    const auto number = reader.atWord() ? text::readNumber(token.text) : std::nullopt;
    if (!number) {
        TokenReader::fail(token, "expected a number for " + description.name);
    }
    requireWithinBounds(token, *number, description);
    reader.take();
    return *number;
}

/// The integer that a whole text spells, with or without a sign, if it fits 32 bits.
std::optional<int> readInteger(std::string_view text)
{
    if (text.starts_with('+') && !text.starts_with("+-")) {
        text.remove_prefix(1);
    }
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    return whole ? std::optional(number) : std::nullopt;
}

int parseInteger(TokenReader& reader, const ParameterDescription& description)
{
    const Token& token = reader.peek();
    const auto number = reader.atWord() ? readInteger(token.text) : std::nullopt;
    if (!number) {
        TokenReader::fail(token, "expected a whole number for " + description.name + ", from " +
                                     std::to_string(std::numeric_limits<int>::min()) + " to " +
                                     std::to_string(std::numeric_limits<int>::max()));
    }
    requireWithinBounds(token, *number, description);
    reader.take();
    return *number;
}

/// True where the name of a variable stands; a word before "=" or "(" is the next keyword.
bool atVariable(const TokenReader& reader)
{
    const bool keyword = reader.peekSecond().is("=") || reader.peekSecond().is("(");
    return reader.peek().kind == Token::Kind::Quoted || (reader.atWord() && !keyword);
}

std::string parseVariableName(TokenReader& reader)
{
    const Token& token = reader.peek();
    if (!atVariable(reader)) {
        TokenReader::fail(token, "expected the name of a variable");
    }
    if (reader.atWord() && !isBareName(token.text)) {
        TokenReader::fail(token,
                          "expected a name of letters, digits and _ . $ @; any other name goes in double quotes");
    }
    return reader.take().text;
}

VariableItem parseVariableItem(TokenReader& reader)
{
    VariableItem item{parseVariableName(reader), std::nullopt};
    if (reader.takeIf(":")) {
        item.last = parseVariableName(reader);
    }
    return item;
}

std::vector<VariableItem> parseBracketedVariables(TokenReader& reader)
{
    std::vector<VariableItem> items = {parseVariableItem(reader)};
    while (!reader.takeIf(")")) {
        if (!atVariable(reader)) {
            TokenReader::fail(reader.peek(), "expected the name of a variable or \")\"");
        }
        items.push_back(parseVariableItem(reader));
    }
    return items;
}

std::vector<VariableItem> parseVariables(TokenReader& reader, const ParameterDescription& description)
{
    if (description.brackets == brackets::aroundVariables && reader.takeIf("(")) {
        return parseBracketedVariables(reader);
    }
    if (!atVariable(reader)) {
        TokenReader::fail(reader.peek(), "expected the names of variables for " + description.name);
    }
    std::vector<VariableItem> items;
    while (atVariable(reader)) {
        items.push_back(parseVariableItem(reader));
    }
    return items;
}

}  // namespace

ParsedParameter::Value parseValue(TokenReader& reader, const ParameterDescription& description)
{
    const bool takesValue = description.kind != kinds::bareKeyword;
    if (!reader.peek().is("=")) {
        if (takesValue && description.valueRequired) {
            TokenReader::fail(reader.peek(), "expected \"=\" and a value after " + description.name);
        }
        return std::monostate();
    }
    if (!takesValue) {
        TokenReader::fail(reader.peek(), "but " + description.name + " stands alone");
    }
    reader.take();
    switch (int{description.kind}) {
    case kinds::number:
        return parseNumber(reader, description);
    case kinds::integer:
        return parseInteger(reader, description);
    case kinds::variableList:
        return parseVariables(reader, description);
    default:
        return parseKeyword(reader, description);
    }
}

}  // namespace standin
