// The host's complaints to the user about variables that a procedure cannot use.
#include "host/command_parser.h"

#include "standin/border/host_call.h"
#include "standin/objects/data/variable_data.h"
#include "standin/objects/parser/complaints.h"
#include "standin/session/session.h"

using standin::HostCall;
using standin::namedIn;
using standin::Session;

/// This host has no use for the names that a procedure gives itself.
struct ParserMessage::Data {};

ParserMessage::ParserMessage()
{
    HostCall call(HostCall::Constructor{}, "ParserMessage::ParserMessage");
    data = std::make_unique<Data>();
    call.creates(this);
}

ParserMessage::~ParserMessage()
{
    HostCall call(HostCall::Destructor{}, this, "ParserMessage::~ParserMessage");
    data.reset();
}

void ParserMessage::SetCommandName(const std::string& name)
{
    HostCall call(this, "ParserMessage::SetCommandName", name);
}

void ParserMessage::SetProcedureTitle(const std::string& title)
{
    HostCall call(this, "ParserMessage::SetProcedureTitle", title);
}

namespace {

const char* levelName(QUVO_Variable_Enumerations::MeasurementLevel level)
{
    switch (int{level}) {
    case standin::levels::nominal:
        return "nominal";
    case standin::levels::ordinal:
        return "ordinal";
    case standin::levels::scale:
        return "scale";
    default:
        return "of unknown level";
    }
}

std::string whyNotContinuous(const standin::Variable& variable)
{
    if (variable.firstText) {
        return " is not numeric: " + standin::whereTextStands(*variable.firstText);
    }
    return std::string(" is ") + levelName(variable.level) +
           "; it must be scale here: if it is one, give it \"level\": \"scale\" in the dictionary";
}

}  // namespace

void ParserMessage::NeedDepVarCont(QuvoVarName variable, const char* parameter, const char* extra)
{
    HostCall call(this, "ParserMessage::NeedDepVarCont", variable, parameter, extra);
    Session& session = Session::current();
    const std::string& name = variable.data->name;
    const auto position = session.dataSet.find(name);
    session.complain(namedIn(name, parameter) +
                     (position ? whyNotContinuous(session.dataSet.variables[*position]) : " must be continuous") +
                     (extra != nullptr ? std::string(" ") + extra : ""));
}
