// The host's check of the variables that a command names.
#include "host/command_parser.h"

#include "standin/border/host_call.h"
#include "standin/objects/data/variable_data.h"
#include "standin/objects/parser/complaints.h"
#include "standin/session/session.h"
#include "text/near_misses.h"
#include "text/wording.h"

#include <optional>
#include <string>

using standin::HostCall;
using standin::namedIn;
using standin::Session;

struct VarSpecObj::Data {
    std::string parameter;
    std::vector<int> valid;

    /// The position of a variable, or nothing after a complaint.
    std::optional<int> validate(const QuvoVarName& variable) const;
};

VarSpecObj::VarSpecObj(const std::string& parameter, const std::string& subcommand,
                       const CommandDescriptor& description, QUVO_DataSource* source, bool flag)
{
    HostCall call(HostCall::Constructor{}, "VarSpecObj::VarSpecObj", parameter, subcommand, description, source, flag);
    call.requireAlive(&description, "the description");
    call.requireAlive(source, "the data source");
    data = std::make_unique<Data>(Data{parameter, {}});
    call.creates(this);
}

VarSpecObj::~VarSpecObj()
{
    HostCall call(HostCall::Destructor{}, this, "VarSpecObj::~VarSpecObj");
    data.reset();
}

namespace {

std::string hintFor(const std::string& unknown, const standin::DataSet& dataSet)
{
    std::vector<std::string> names;
    for (const standin::Variable& variable : dataSet.variables) {
        names.push_back(variable.name);
    }
    std::string hint;
    for (const std::string& near : text::nearMisses(unknown, names)) {
        hint += (hint.empty() ? "; did you mean " : " or ") + text::inQuotes(near);
    }
    return hint;
}

}  // namespace

std::optional<int> VarSpecObj::Data::validate(const QuvoVarName& variable) const
{
    Session& session = Session::current();
    const std::string& name = variable.data->name;
    const auto position = session.dataSet.find(name);
    if (!variable.data->refusal.empty()) {
        session.complain(parameter + ": " + variable.data->refusal);
        return std::nullopt;
    }
    if (!position) {
        const std::string hint = hintFor(name, session.dataSet);
        session.complain(namedIn(name, parameter) + " does not exist" + hint + (hint.empty() ? "" : "?"));
        return std::nullopt;
    }
    const standin::Variable& found = session.dataSet.variables[*position];
    if (found.level == standin::levels::scale && found.firstText) {
        session.complain(namedIn(name, parameter) + " is declared scale, but " +
                         standin::whereTextStands(*found.firstText));
        return std::nullopt;
    }
    return static_cast<int>(*position);
}

bool VarSpecObj::ValidateVariables(const std::vector<QuvoVarName>& variables, UPSpecTypes::RepeatVarOptions repeats)
{
    HostCall call(this, "VarSpecObj::ValidateVariables", variables, repeats);
    data->valid.clear();
    for (const QuvoVarName& variable : variables) {
        if (const auto position = data->validate(variable)) {
            data->valid.push_back(*position);
        }
    }
    return data->valid.size() == variables.size();
}

std::vector<int> VarSpecObj::GetValidVarList() const
{
    HostCall call(this, "VarSpecObj::GetValidVarList");
    return data->valid;
}
