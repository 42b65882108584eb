#include "report/tables/footnote_marks.h"

#include "report/document/document_view.h"

#include <cstddef>

namespace report {

namespace {

std::string footnoteMark(std::size_t index)
{
    constexpr std::size_t letters = 26;
    return index < letters ? std::string(1, static_cast<char>('a' + index)) : std::to_string(index + 1);
}

}  // namespace

std::vector<Footnote> footnotesOf(const rapidjson::Value& table)
{
    std::vector<Footnote> footnotes;
    for (const rapidjson::Value& text : table["footnotes"].GetArray()) {
        footnotes.push_back({footnoteMark(footnotes.size()), shownText(text)});
    }
    return footnotes;
}

std::vector<std::string> titleMarks(const rapidjson::Value& table)
{
    std::vector<std::string> marks;
    for (const rapidjson::Value& reference : table["footnoteRefs"].GetArray()) {
        if (reference.GetUint() < table["footnotes"].Size()) {
            marks.push_back(footnoteMark(reference.GetUint()));
        }
    }
    return marks;
}

}  // namespace report
