// How far something long has come, for whoever shows it.
#pragma once

#include <cstddef>
#include <functional>

namespace runner {

/// Told now and then how much is done of how much; the latter is 0 where it is not known. May be empty.
using Progress = std::function<void(std::size_t done, std::size_t total)>;

}  // namespace runner
