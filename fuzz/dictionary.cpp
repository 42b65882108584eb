// A dictionary over a data set, which it leaves alone when it is refused.
#include "fuzz/target.h"
#include "standin/csv_reader.h"
#include "standin/dictionary_reader.h"
#include "standin/input_error.h"

#include <algorithm>
#include <cstdlib>

namespace {

bool areEqual(const standin::Variable& one, const standin::Variable& other)
{
    return one.label == other.label && one.level == other.level && one.valueLabels == other.valueLabels &&
           one.values == other.values;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    standin::DataSet dataSet = standin::readCsv("a,b,t\n1,2,x\n3,-9,y\n", "data.csv");
    const standin::DataSet before = dataSet;
    try {
        standin::applyDictionary(dataSet, fuzz::textOf(data, size), "names.json");
    } catch (const standin::InputError&) {
        if (!std::ranges::equal(dataSet.variables, before.variables, areEqual)) {
            std::abort();
        }
    }
    return 0;
}
