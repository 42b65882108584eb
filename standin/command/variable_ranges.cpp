#include "standin/command/variable_ranges.h"

namespace standin {

namespace {

std::vector<ListedVariable> expandRange(const std::string& first, const std::string& last, const DataSet& dataSet)
{
    const auto from = dataSet.find(first);
    const auto to = dataSet.find(last);
    if (!from || !to) {
        return {{first, ""}, {last, ""}};
    }
    if (*from > *to) {
        const std::string range = first + ":" + last;
        return {{first, "the range " + range + " runs backwards: " + last + " stands before " + first + " in the data"},
                {last, ""}};
    }
    std::vector<ListedVariable> variables;
    for (std::size_t i = *from; i <= *to; ++i) {
        variables.push_back({dataSet.variables[i].name, ""});
    }
    return variables;
}

}  // namespace

std::vector<ListedVariable> expandRanges(const std::vector<VariableItem>& items, const DataSet& dataSet)
{
    std::vector<ListedVariable> variables;
    for (const VariableItem& item : items) {
        if (item.last) {
            const auto range = expandRange(item.first, *item.last, dataSet);
            variables.insert(variables.end(), range.begin(), range.end());
        } else {
            variables.push_back({item.first, ""});
        }
    }
    return variables;
}

}  // namespace standin
