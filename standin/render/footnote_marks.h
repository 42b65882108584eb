// How footnotes are told apart.
#pragma once

#include <cstddef>
#include <string>

namespace standin {

/// The mark of a footnote by its index from 0: a, b, c, ...; after z come numbers.
std::string footnoteMark(std::size_t index);

}  // namespace standin
