// How a missing value travels: as the lowest finite double.
#pragma once

#include <limits>

constexpr double systemMissingValue = -std::numeric_limits<double>::max();
