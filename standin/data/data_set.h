// The active data set of a session: variables in data-set order, each with one value per case.
#pragma once

#include "host/data_source.h"
#include "host/missing_value.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace standin {

/// The measurement levels that variables have in this host.
namespace levels {
inline constexpr QUVO_Variable_Enumerations::MeasurementLevel nominal{1};
inline constexpr QUVO_Variable_Enumerations::MeasurementLevel ordinal{2};
inline constexpr QUVO_Variable_Enumerations::MeasurementLevel scale{3};
}  // namespace levels

/// The first cell of a variable that is neither a number nor missing.
struct FirstText {
    std::size_t line;  ///< of the data file, from 1
    std::string text;
};

struct Variable {
    std::string name;   ///< UTF-8, not empty
    std::string label;  ///< empty: none
    QUVO_Variable_Enumerations::MeasurementLevel level = levels::scale;
    std::map<double, std::string> valueLabels;
    std::vector<double> values;  ///< one per case; texts as codes 1, 2, ... in the order of their appearance
    std::optional<FirstText>
        firstText;  ///< set where the cells are not all numbers: such a variable cannot be analysed
};

struct DataSet {
    std::vector<Variable> variables;  ///< names are unique
    std::size_t caseCount = 0;        ///< the length of every `values`

    /// The position of the variable of exactly that name.
    std::optional<std::size_t> find(std::string_view name) const;
};

}  // namespace standin
