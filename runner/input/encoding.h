// The encoding that files of text must be in.
#pragma once

#include <string>
#include <string_view>

namespace runner {

/// The text of a file that must be UTF-8: all of it but a leading byte-order mark; a view into `bytes`.
///
/// @param fileName  for the messages
/// @throws InputError  naming another encoding where a byte-order mark tells it, else the first bad byte and its line
std::string_view requireUtf8(std::string_view bytes, const std::string& fileName);

}  // namespace runner
