// How the host's complaints about variables are worded.
#pragma once

#include "standin/data/data_set.h"
#include "text/wording.h"

#include <string>

namespace standin {

inline std::string namedIn(const std::string& variable, const std::string& parameter)
{
    return "variable " + text::inQuotes(variable) + " in " + parameter;
}

/// Where the first text of a column stands, and what to do about it.
inline std::string whereTextStands(const FirstText& first)
{
    return "line " + std::to_string(first.line) + " of the data holds " + text::inQuotes(first.text) +
           "; correct it, or leave the cell empty where a value is missing";
}

}  // namespace standin
