// How the host's complaints about variables are worded.
#pragma once

#include "standin/data_set.h"
#include "standin/text.h"

#include <string>

namespace standin {

inline std::string namedIn(const std::string& variable, const std::string& parameter)
{
    return "variable " + inQuotes(variable) + " in " + parameter;
}

inline std::string whereTextStands(const TextCell& cell)
{
    return "line " + std::to_string(cell.line) + " of the data holds " + inQuotes(cell.text);
}

}  // namespace standin
