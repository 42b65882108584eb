// What every fuzzing target defines: libFuzzer calls it with one input after the other. Whatever must not happen ends
// in `std::abort` or a sanitizer's report.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

inline std::string asText(const std::uint8_t* data, std::size_t size)
{
    return {data, data + size};
}

}  // namespace fuzz
