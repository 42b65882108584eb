// Contract: how a missing case value travels from the host to the module.
#pragma once

#include <limits>

/// The system-missing value: the lowest finite double. The case adapter delivers it for every missing value, so that
/// all columns keep one length; only exact equality means missing.
inline constexpr double systemMissingValue = std::numeric_limits<double>::lowest();
