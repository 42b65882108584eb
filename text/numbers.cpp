#include "text/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <locale>
#include <sstream>
#include <string>
#include <system_error>

namespace text {

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Shuts out what `from_chars` reads but this project does not: "inf", "nan", a second sign.
bool startsLikeNumber(std::string_view text)
{
    if (text.starts_with('+') || text.starts_with('-')) {
        text.remove_prefix(1);
    }
    return !text.empty() && (isDigit(text.front()) || text.front() == '.');
}

/// For numbers beyond the range of normal doubles: `from_chars` does not tell the too small from the too large.
std::optional<double> readExtremeNumber(std::string_view text)
{
    std::istringstream stream{std::string(text)};
    stream.imbue(std::locale::classic());
    double value = 0;
    if (!(stream >> value) || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

std::optional<double> readWithPoint(std::string_view text)
{
    if (!startsLikeNumber(text)) {
        return std::nullopt;
    }
    if (text.front() == '+') {
        text.remove_prefix(1);
    }
    const char* const end = text.data() + text.size();
    double value = 0;
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (stop != end) {
        return std::nullopt;
    }
    if (error == std::errc::result_out_of_range) {
        return readExtremeNumber(text);
    }
    return error == std::errc{} ? std::optional(value) : std::nullopt;
}

}  // namespace

std::optional<double> readNumber(std::string_view text, char decimalMark)
{
    if (decimalMark == '.') {
        return readWithPoint(text);
    }
    if (text.find('.') != std::string_view::npos) {
        return std::nullopt;
    }
    std::string withPoint(text);
    std::ranges::replace(withPoint, decimalMark, '.');
    return readWithPoint(withPoint);
}

std::string formatFixed(double number, int decimals)
{
    if (!std::isfinite(number)) {
        return std::isnan(number) ? "NaN" : (number > 0 ? "Infinity" : "-Infinity");
    }
    // The largest double has 309 digits before the point.
    std::array<char, 400> digits{};
    const auto [end, error] =
        std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed, decimals);
    return error == std::errc() ? std::string(digits.data(), end) : std::string();
}

}  // namespace text
