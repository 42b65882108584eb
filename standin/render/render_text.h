// The documents of a run as plain text for a terminal.
#pragma once

#include <rapidjson/document.h>

#include <list>
#include <string>

namespace standin {

/// Titles underlined, tables with aligned columns and their footnotes below, one line per plot.
std::string renderText(const std::list<rapidjson::Document>& documents);

}  // namespace standin
