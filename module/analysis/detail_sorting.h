// The order of the rows in the details table.
#pragma once

#include "module/analysis/pair_result.h"

#include <cstddef>
#include <string>
#include <vector>

namespace bldatman {

class BldatmanDetailSorting {
public:
    /// Reorders the five vectors of a record together. The key is "MEAN", "RATIO",
    /// "DIFFERENCE" or "MEASUREMENT" (the values of A). Rows with equal keys stay in case order; keys that are not
    /// numbers come last, whichever the direction.
    ///
    /// @throws std::invalid_argument  "Invalid sort key: " and the key; "The selected vector for sorting is empty."
    /// @throws std::runtime_error  "Mismatch in vector sizes within the result structure."
    static void sortDetails(BldatmanPairResult& record, const std::string& key, bool descending);

    /// Replaces `values` by the vector whose element i is the old element at `positions[i]`.
    static void applyPermutation(std::vector<double>& values, const std::vector<std::size_t>& positions);
};

}  // namespace bldatman
