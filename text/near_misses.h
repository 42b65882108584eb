// Which of the known names somebody may have meant.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace text {

/// `known` with the names that differ from `text` by little (a letter case, a few letters) first, nearest first; the
/// others follow in their order.
std::vector<std::string> nearestFirst(std::string_view text, const std::vector<std::string>& known);

/// Only the names that differ by little, nearest first, at most three.
std::vector<std::string> nearMisses(std::string_view text, const std::vector<std::string>& known);

}  // namespace text
