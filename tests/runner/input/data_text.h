// Data sets as texts, to be compared as a whole.
#pragma once

#include "standin/data/data_set.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace tests {

/// The variables, as in
///
///     a = 1 . 3 | b "Age" ordinal {1:x} = 2 2 2 | t nominal {1:x} {2:y} @3:x = 1 2 1
///
/// with a dot for a missing value, and after the name what there is of: the label, a level other than scale, the value
/// labels, the line and the cell of the first text.
inline std::string asText(const standin::DataSet& dataSet)
{
    std::ostringstream text;
    text.precision(12);
    for (const standin::Variable& variable : dataSet.variables) {
        text << (text.tellp() > 0 ? " | " : "") << variable.name;
        text << (variable.label.empty() ? "" : " \"" + variable.label + "\"");
        text << (variable.level == standin::levels::nominal   ? " nominal"
                 : variable.level == standin::levels::ordinal ? " ordinal"
                                                              : "");
        for (const auto& [value, label] : variable.valueLabels) {
            text << " {" << value << ':' << label << '}';
        }
        if (variable.firstText) {
            text << " @" << variable.firstText->line << ':' << variable.firstText->text;
        }
        text << " =";
        for (const double value : variable.values) {
            value == systemMissingValue ? text << " ." : text << ' ' << value;
        }
        EXPECT_EQ(variable.values.size(), dataSet.caseCount) << text.str();
    }
    return text.str();
}

}  // namespace tests
