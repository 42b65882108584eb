#include "runner/input/encoding.h"

#include "runner/input/input_error.h"
#include "text/utf8.h"

#include <array>

namespace runner {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF"sv;

struct Encoding {
    std::string_view mark;
    std::string_view name;
};

/// The longer marks first: one begins like a shorter one.
constexpr std::array<Encoding, 4> otherEncodings{{{"\xFF\xFE\0\0"sv, "UTF-32 (little-endian)"},
                                                  {"\0\0\xFE\xFF"sv, "UTF-32 (big-endian)"},
                                                  {"\xFF\xFE"sv, "UTF-16 (little-endian)"},
                                                  {"\xFE\xFF"sv, "UTF-16 (big-endian)"}}};

std::string hexadecimal(unsigned char byte)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    return {'0', 'x', digits[byte / 16U], digits[byte % 16U]};
}

}  // namespace

std::string_view requireUtf8(std::string_view bytes, const std::string& fileName)
{
    for (const Encoding& encoding : otherEncodings) {
        if (bytes.starts_with(encoding.mark)) {
            throw InputError(fileName, "this file is " + std::string(encoding.name) + "; save it as UTF-8");
        }
    }
    if (bytes.starts_with(utf8Mark)) {
        bytes.remove_prefix(utf8Mark.size());
    }
    if (const auto bad = text::firstBadUtf8Byte(bytes)) {
        const std::string byte = hexadecimal(static_cast<unsigned char>(bytes[*bad]));
        throw InputError(fileName, text::countLineEnds(bytes.substr(0, *bad)) + 1,
                         "byte " + byte + " is not UTF-8; save the file as UTF-8");
    }
    return bytes;
}

}  // namespace runner
