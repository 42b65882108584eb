#include "report/tables/text_alignment.h"

#include "text/unicode.h"
#include "text/wrapping.h"

#include <algorithm>
#include <numeric>

namespace report {

namespace {

std::string blanks(std::size_t width, std::size_t taken)
{
    return std::string(width > taken ? width - taken : 0, ' ');
}

}  // namespace

std::string alignedRight(std::string_view text, std::size_t width)
{
    return blanks(width, text::textWidth(text)) + std::string(text);
}

std::string alignedLeft(std::string_view text, std::size_t width)
{
    return std::string(text) + blanks(width, text::textWidth(text));
}

std::string centred(std::string_view text, std::size_t width)
{
    const std::string left = blanks((width + text::textWidth(text)) / 2, text::textWidth(text));
    return alignedLeft(left + std::string(text), width);
}

std::vector<std::string> hangingLines(const std::string& first, const std::string& rest, std::string_view text,
                                      std::size_t width)
{
    std::vector<std::string> lines =
        text::wrapText(text, width - std::max(text::textWidth(first), text::textWidth(rest)));
    for (std::size_t i = 0; i < lines.size(); ++i) {
        lines[i].insert(0, i == 0 ? first : rest);
    }
    return lines;
}

std::size_t widest(const std::vector<std::string>& texts)
{
    const auto wider = [](std::size_t width, const std::string& text) {
        return std::max(width, text::textWidth(text));
    };
    return std::accumulate(texts.begin(), texts.end(), std::size_t{0}, wider);
}

}  // namespace report
