#include "standin/command/command_reader.h"

#include "standin/command/token_reader.h"
#include "standin/command/value_parser.h"
#include "text/wording.h"

#include <algorithm>

namespace standin {

namespace {

/// The description of that name, letter case aside, or null.
template <class Description>
const Description* findDescription(const std::vector<Description>& descriptions, const Token& name)
{
    const auto found = std::ranges::find(descriptions, text::upperCase(name.text), &Description::name);
    return name.kind != Token::Kind::Word || found == descriptions.end() ? nullptr : &*found;
}

template <class Parsed>
bool isGiven(const std::string& name, const std::vector<Parsed>& before)
{
    return std::ranges::find(before, name, &Parsed::name) != before.end();
}

template <class Parsed>
void refuseSecond(const Token& place, const std::string& name, const std::vector<Parsed>& before)
{
    if (isGiven(name, before)) {
        TokenReader::fail(place, "but " + name + " is given already");
    }
}

/// Adds the names that could still be given.
template <class Description, class Parsed>
void addChoice(std::vector<std::string>& choice, const std::vector<Description>& descriptions,
               const std::vector<Parsed>& before)
{
    for (const Description& description : descriptions) {
        if (!description.name.empty() && !isGiven(description.name, before)) {
            choice.push_back(description.name);
        }
    }
}

class CommandReader {
public:
    CommandReader(const CommandText& text, const CommandDescription& description)
        : reader_(text)
        , description_(description)
        , nameMayBeMissing_(text.nameMayBeMissing)
    {
        const auto unnamed = std::ranges::find(description.subcommands, "", &SubcommandDescription::name);
        leading_ = unnamed == description.subcommands.end() ? SubcommandDescription{} : *unnamed;
    }

    ParsedCommand parse()
    {
        parseName();
        ParsedCommand command;
        command.subcommands.push_back(parseLeading());
        while (!atEnd()) {
            command.subcommands.push_back(parseSubcommand(command.subcommands));
        }
        parseEnd();
        return command;
    }

private:
    void parseName()
    {
        const bool stands = reader_.atWord() && text::upperCase(reader_.peek().text) == description_.name &&
                            !reader_.peekSecond().is("=") && !reader_.peekSecond().is("(");
        if (stands) {
            reader_.take();
        } else if (!nameMayBeMissing_) {
            TokenReader::failWithChoice(reader_.peek(), {description_.name});
        }
    }

    bool atEnd() const { return reader_.peek().kind == Token::Kind::End || reader_.peek().is(";"); }

    void parseEnd()
    {
        reader_.takeIf(";");
        if (reader_.peek().kind != Token::Kind::End) {
            TokenReader::fail(reader_.peek(), "expected nothing after the closing semicolon");
        }
    }

    ParsedSubcommand parseLeading()
    {
        ParsedSubcommand leading{"", {}};
        while (const ParameterDescription* parameter = findDescription(leading_.parameters, reader_.peek())) {
            leading.parameters.push_back(parseParameter(*parameter, leading.parameters));
        }
        const bool mayGoOn = atEnd() || findDescription(description_.subcommands, reader_.peek()) != nullptr;
        if (!mayGoOn) {
            std::vector<std::string> choice;
            addChoice(choice, leading_.parameters, leading.parameters);
            addChoice(choice, description_.subcommands, std::vector<ParsedSubcommand>());
            TokenReader::failWithChoice(reader_.peek(), choice);
        }
        requireParameters(leading.parameters, leading_.parameters);
        return leading;
    }

    ParsedSubcommand parseSubcommand(const std::vector<ParsedSubcommand>& before)
    {
        const Token& name = reader_.peek();
        const SubcommandDescription* description = findDescription(description_.subcommands, name);
        if (description == nullptr) {
            if (findDescription(leading_.parameters, name) != nullptr) {
                TokenReader::fail(name, "which must stand before the subcommands");
            }
            std::vector<std::string> choice;
            addChoice(choice, description_.subcommands, before);
            TokenReader::failWithChoice(name, choice);
        }
        refuseSecond(name, description->name, before);
        reader_.take();
        reader_.expect("(");
        return {description->name, parseParameters(description->parameters)};
    }

    /// Parameters up to a closing parenthesis, and that.
    std::vector<ParsedParameter> parseParameters(const std::vector<ParameterDescription>& descriptions)
    {
        std::vector<ParsedParameter> parameters;
        while (!reader_.peek().is(")")) {
            const ParameterDescription* parameter = findDescription(descriptions, reader_.peek());
            if (parameter == nullptr) {
                std::vector<std::string> choice;
                addChoice(choice, descriptions, parameters);
                choice.emplace_back(")");
                TokenReader::failWithChoice(reader_.peek(), choice);
            }
            parameters.push_back(parseParameter(*parameter, parameters));
        }
        requireParameters(parameters, descriptions);
        reader_.take();
        return parameters;
    }

    ParsedParameter parseParameter(const ParameterDescription& description, const std::vector<ParsedParameter>& before)
    {
        refuseSecond(reader_.peek(), description.name, before);
        reader_.take();
        if (description.kind == kinds::qualifierList) {
            return {description.name, parseQualifiers(description)};
        }
        return {description.name, parseValue(reader_, description)};
    }

    /// Qualifiers in parentheses; without parentheses there are none.
    std::vector<ParsedParameter> parseQualifiers(const ParameterDescription& description)
    {
        std::vector<ParsedParameter> qualifiers;
        if (reader_.takeIf("(")) {
            qualifiers = parseParameters(description.qualifiers);
        } else if (reader_.peek().is("=")) {
            TokenReader::fail(reader_.peek(), "expected qualifiers in parentheses after " + description.name);
        }
        return qualifiers;
    }

    void requireParameters(const std::vector<ParsedParameter>& given,
                           const std::vector<ParameterDescription>& descriptions) const
    {
        for (const ParameterDescription& parameter : descriptions) {
            if (parameter.required && !isGiven(parameter.name, given)) {
                TokenReader::fail(reader_.peek(), "but " + parameter.name + " is missing before it");
            }
        }
    }

    TokenReader reader_;
    const CommandDescription& description_;
    SubcommandDescription leading_;
    bool nameMayBeMissing_;
};

}  // namespace

ParsedCommand parseCommand(const CommandText& text, const CommandDescription& description)
{
    return CommandReader(text, description).parse();
}

}  // namespace standin
