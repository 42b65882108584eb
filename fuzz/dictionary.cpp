// A dictionary over a data set, which it leaves alone when it is refused.
#include "fuzz/target.h"
#include "standin/csv_reader.h"
#include "standin/dictionary_reader.h"
#include "standin/input_error.h"

#include <cstdlib>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    standin::DataSet dataSet = standin::readCsv("a,b,t\n1,2,x\n3,-9,y\n", "data.csv");
    const standin::DataSet before = dataSet;
    try {
        standin::applyDictionary(dataSet, fuzz::textOf(data, size), "names.json");
    } catch (const standin::InputError&) {
        for (std::size_t i = 0; i < before.variables.size(); ++i) {
            if (dataSet.variables[i].label != before.variables[i].label ||
                dataSet.variables[i].values != before.variables[i].values) {
                std::abort();
            }
        }
    }
    return 0;
}
