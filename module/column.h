// The case values of one variable.
#pragma once

#include <vector>

namespace bldatman {

/// One value per case, in case order.
using Column = std::vector<double>;

}  // namespace bldatman
