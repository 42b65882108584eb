#include "standin/render/footnote_marks.h"

namespace standin {

std::string footnoteMark(std::size_t index)
{
    constexpr std::size_t letters = 26;
    return index < letters ? std::string(1, static_cast<char>('a' + index)) : std::to_string(index + 1);
}

}  // namespace standin
