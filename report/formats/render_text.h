// The documents of a run as plain text for a terminal.
#pragma once

#include <rapidjson/document.h>

#include <cstddef>
#include <list>
#include <string>

namespace report {

struct TextStyle {
    std::size_t width = 80;  ///< the columns of a line, at least 20
    bool colours = false;    ///< titles bold, footnotes and plots dim; nothing else differs
};

/// Titles underlined, with the marks of their footnotes; tables with aligned columns and their footnotes below; the
/// name of each plot. No line is wider than the style's width, and none holds a control character but its colours.
std::string renderText(const std::list<rapidjson::Document>& documents, const TextStyle& style = {});

}  // namespace report
