// What the lists of variables in a command stand for, once the data set is known.
#pragma once

#include "standin/command/parsed_command.h"
#include "standin/data/data_set.h"

#include <string>
#include <vector>

namespace standin {

struct ListedVariable {
    std::string name;
    std::string refusal;  ///< why the validator must refuse the variable although it may exist; empty: nothing so far
};

/// The variables of a list in command order, each range replaced by its variables in data-set order. Of a range that
/// cannot be expanded the two ends remain, so that the validator refuses it: an end that does not exist by itself, the
/// first end of a range that runs backwards with that reason.
std::vector<ListedVariable> expandRanges(const std::vector<VariableItem>& items, const DataSet& dataSet);

}  // namespace standin
