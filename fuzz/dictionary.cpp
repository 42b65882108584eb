// A dictionary over a data set, which it leaves alone when it is refused.
#include "runner/input/dictionary.h"
#include "fuzz/target.h"
#include "runner/input/csv_reader.h"
#include "runner/input/input_error.h"

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
    standin::DataSet dataSet = runner::readCsv("a,b,t\n1,2,x\n3,-9,y\n", "data.csv");
    const standin::DataSet before = dataSet;
    try {
        runner::applyDictionary(dataSet, fuzz::asText(data, size), "names.json");
    } catch (const runner::InputError&) {
        if (!std::ranges::equal(dataSet.variables, before.variables, areEqual)) {
            std::abort();
        }
    }
    return 0;
}
