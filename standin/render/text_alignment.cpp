#include "standin/render/text_alignment.h"

#include "standin/unicode.h"

namespace standin {

namespace {

std::string blanks(std::size_t width, std::size_t taken)
{
    return std::string(width > taken ? width - taken : 0, ' ');
}

}  // namespace

std::string alignedRight(std::string_view text, std::size_t width)
{
    return blanks(width, textWidth(text)) + std::string(text);
}

std::string alignedLeft(std::string_view text, std::size_t width)
{
    return std::string(text) + blanks(width, textWidth(text));
}

std::string centred(std::string_view text, std::size_t width)
{
    const std::string left = blanks((width + textWidth(text)) / 2, textWidth(text));
    return alignedLeft(left + std::string(text), width);
}

}  // namespace standin
