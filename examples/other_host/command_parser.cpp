// Reads the tokens of one command by the description of its syntax, and checks its variables.
#include "host/command_parser.h"

#include <iterator>

namespace {

constexpr int variableList = 16;

int positionOf(const std::string& name)
{
    const other::Variable* found = other::find(theHost.variables, name);
    return found != nullptr ? static_cast<int>(found - theHost.variables.data()) : throw std::out_of_range(name);
}

class Reader {
public:
    void readCommand(const CommandDescriptor& description, std::vector<SubComObj>& parts)
    {
        parts.push_back({"", readParameters(other::find(description.parts, "")->parameters)});
        while (const SubComDescriptor* next = other::find(description.parts, peek())) {
            expect(next->name);
            expect("(");
            parts.push_back({next->name, readParameters(next->parameters)});
            expect(")");
        }
        expect("the end");
    }

private:
    std::string peek(std::size_t further = 0) const
    {
        return at_ + further < theHost.command.size() ? other::upperCase(theHost.command[at_ + further]) : "the end";
    }

    std::string take() { return theHost.command.at(at_++); }

    bool takeIf(const std::string& token) { return peek() == token && ++at_ > 0; }

    void expect(const std::string& token)
    {
        if (!takeIf(token)) {
            throw std::invalid_argument("expected " + token + ", found " + peek());
        }
    }

    std::vector<ParamObj> readParameters(const std::vector<ParamDescriptor>& descriptions)
    {
        std::vector<ParamObj> parameters;
        while (const ParamDescriptor* next = other::find(descriptions, peek())) {
            expect(next->name);
            parameters.push_back({next->name, takeIf("=") ? readWords(*next) : std::vector<std::string>(), {}});
            if (takeIf("(")) {
                parameters.back().qualifiers = readParameters(next->qualifiers);
                expect(")");
            }
        }
        return parameters;
    }

    std::vector<std::string> readWords(const ParamDescriptor& description)
    {
        if (description.kind == variableList) {
            return readVariables();
        }
        if (!description.values.empty() && std::ranges::count(description.values, peek()) == 0) {
            throw std::invalid_argument(peek() + " is no value of " + description.name);
        }
        return {take()};
    }

    /// Names and ranges of names, in parentheses or up to the next parameter or subcommand.
    std::vector<std::string> readVariables()
    {
        std::vector<std::string> names;
        const bool bracketed = takeIf("(");
        while (bracketed ? !takeIf(")") : peek() != "the end" && peek(1) != "=" && peek(1) != "(") {
            names.push_back(take());
            for (int i = 1, last = takeIf(":") ? positionOf(take()) - positionOf(names.back()) : 0; i <= last; ++i) {
                names.push_back(theHost.variables.at(static_cast<std::size_t>(positionOf(names.back())) + 1).name);
            }
        }
        return names;
    }

    std::size_t at_ = 0;
};

}  // namespace

int UniversalParser::getCommandSpecifications()
{
    const bool parsing = call("UniversalParser::getCommandSpecifications");
    try {
        Reader().readCommand(*described, parsed->parts);
    } catch (const std::logic_error& refusal) {
        theHost.complaints.emplace_back(refusal.what());
        return 2;
    }
    return parsing ? 0 : -1;
}

bool VarSpecObj::ValidateVariables(std::vector<QuvoVarName>& variables, UPSpecTypes::RepeatVarOptions repeats)
{
    const bool validating = call("VarSpecObj::ValidateVariables", variables, repeats);
    try {
        for (const QuvoVarName& variable : variables) {
            positions.push_back(positionOf(variable.name));
        }
    } catch (const std::out_of_range& refusal) {
        theHost.complaints.push_back(*list + " of " + *part + ": there is no " + refusal.what());
        return false;
    }
    return validating;
}
