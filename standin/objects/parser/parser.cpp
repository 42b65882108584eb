// The host's parser: the tokens of the session's command, and the parse.
#include "host/command_parser.h"

#include "standin/border/host_call.h"
#include "standin/command/command_reader.h"
#include "standin/objects/parser/descriptor_data.h"
#include "standin/objects/parser/parsed_data.h"
#include "standin/session/session.h"

#include <utility>

using standin::HostCall;
using standin::ParsedParameter;
using standin::Session;

struct QUVO_TokenSequence::Data {
    standin::CommandText command;
};

QUVO_TokenSequence::QUVO_TokenSequence(bool flag)
{
    HostCall call(HostCall::Constructor{}, "QUVO_TokenSequence::QUVO_TokenSequence", flag);
    data = std::make_unique<Data>(Data{Session::current().command});
    call.creates(this);
}

QUVO_TokenSequence::~QUVO_TokenSequence()
{
    HostCall call(HostCall::Destructor{}, this, "QUVO_TokenSequence::~QUVO_TokenSequence");
    data.reset();
}

struct UniversalParser::Data {
    const QUVO_TokenSequence* tokens;
    CommandSpec* command;
    const CommandDescriptor* description;
};

UniversalParser::UniversalParser(QUVO_TokenSequenceBase& tokens, CommandSpec& command,
                                 const CommandDescriptor& description)
{
    HostCall call(HostCall::Constructor{}, "UniversalParser::UniversalParser");
    call.requireAlive(&tokens, "the token sequence");
    call.requireAlive(&command, "the command to fill");
    call.requireAlive(&description, "the description");
    const auto& sequence = dynamic_cast<QUVO_TokenSequence&>(tokens);
    data = std::make_unique<Data>(Data{&sequence, &command, &description});
    call.creates(this);
}

UniversalParser::~UniversalParser()
{
    HostCall call(HostCall::Destructor{}, this, "UniversalParser::~UniversalParser");
    data.reset();
}

namespace {

std::unique_ptr<SubComObj> makeSubcommand(standin::ParsedSubcommand parsed)
{
    auto content = std::make_unique<SubComObj::Data>();
    content->name = std::move(parsed.name);
    for (ParsedParameter& parameter : parsed.parameters) {
        content->parameters.emplace_back(std::make_unique<ParamObj::Data>(ParamObj::Data{std::move(parameter)}));
    }
    return std::make_unique<SubComObj>(std::move(content));
}

void complain(const standin::CommandError& error, const std::string& text)
{
    const standin::TextPlace place = standin::placeOf(text, error.offset());
    Session::current().complain("line " + std::to_string(place.line) + ", column " + std::to_string(place.column) +
                                ": " + error.what() + "\n" + standin::lineWithCaret(text, error.offset()));
}

}  // namespace

int UniversalParser::getCommandSpecifications()
{
    HostCall call(this, "UniversalParser::getCommandSpecifications");
    call.requireAlive(data->tokens, "the token sequence");
    call.requireAlive(data->command, "the command to fill");
    call.requireAlive(data->description, "the description");
    const standin::CommandText& text = data->tokens->data->command;
    try {
        auto parsed = standin::parseCommand(text, data->description->data->description);
        for (standin::ParsedSubcommand& subcommand : parsed.subcommands) {
            data->command->data->subcommands.push_back(makeSubcommand(std::move(subcommand)));
        }
        return 0;
    } catch (const standin::CommandError& error) {
        complain(error, *text.text);
        return 1;
    }
}
