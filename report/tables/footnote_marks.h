// The footnotes of a table and the marks that they are told apart by.
#pragma once

#include <rapidjson/document.h>

#include <string>
#include <vector>

namespace report {

struct Footnote {
    std::string mark;  ///< a, b, c, ...; after z numbers
    std::string text;  ///< printable
};

/// @param table  a table object of a document
std::vector<Footnote> footnotesOf(const rapidjson::Value& table);

/// The marks that the title bears, one for each reference; a reference that no footnote follows has none.
std::vector<std::string> titleMarks(const rapidjson::Value& table);

}  // namespace report
