// A data file: a data set whose columns agree, or an error that is told.
#include "fuzz/target.h"
#include "runner/input/csv_reader.h"
#include "runner/input/input_error.h"

#include <cstdlib>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    try {
        const standin::DataSet read = runner::readCsv(fuzz::asText(data, size), "data.csv");
        for (const standin::Variable& variable : read.variables) {
            if (variable.name.empty() || variable.values.size() != read.caseCount) {
                std::abort();
            }
        }
    } catch (const runner::InputError&) {  // what a user is told
    }
    return 0;
}
