#include "report/drawing/gnuplot_text.h"

#include <array>
#include <charconv>

namespace report {

namespace {

/// Digits are not among them: after an escape they would be taken for more of it.
constexpr std::string_view plainCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz ";

std::string octalEscape(unsigned char byte)
{
    const auto digit = [byte](int shift) { return static_cast<char>('0' + ((byte >> shift) & 7)); };
    return {'\\', digit(6), digit(3), digit(0)};
}

}  // namespace

std::string gnuplotNumber(double number)
{
    std::array<char, 32> digits{};
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    return {digits.data(), end};
}

std::string gnuplotText(std::string_view text)
{
    std::string quoted = "\"";
    for (const char character : text) {
        const bool isPlain = plainCharacters.find(character) != std::string_view::npos;
        quoted += isPlain ? std::string(1, character) : octalEscape(static_cast<unsigned char>(character));
    }
    return quoted + '"';
}

std::string gnuplotText(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines) {
        text += (text.empty() ? "" : "\n") + line;
    }
    return gnuplotText(std::string_view(text));
}

}  // namespace report
