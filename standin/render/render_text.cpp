#include "standin/render/render_text.h"

#include "standin/render/footnote_marks.h"
#include "standin/render/table_grid.h"
#include "standin/render/text_alignment.h"
#include "standin/render/text_table.h"
#include "standin/text.h"
#include "standin/text_wrapping.h"

#include <string_view>
#include <utility>
#include <vector>

namespace standin {

namespace {

constexpr std::string_view plain;
constexpr std::string_view bold = "\x1B[1m";
constexpr std::string_view dim = "\x1B[2m";
constexpr std::string_view reset = "\x1B[0m";

/// The marks of the footnotes that a title refers to. A reference to a footnote that does not exist has none.
std::string referenceMarks(const rapidjson::Value& table)
{
    std::string marks;
    for (const rapidjson::Value& reference : table["footnoteRefs"].GetArray()) {
        if (reference.GetUint() < table["footnotes"].Size()) {
            marks += (marks.empty() ? " [" : ", ") + footnoteMark(reference.GetUint());
        }
    }
    return marks.empty() ? "" : marks + "]";
}

/// The text of a run, written from top to bottom.
class TextPage {
public:
    explicit TextPage(const TextStyle& style)
        : style_(style)
    {
    }

    void addDocument(const rapidjson::Document& document)
    {
        if (!text_.empty()) {
            add({"", ""}, plain);
        }
        addTitle(document["title"].GetString(), '=');
        for (const rapidjson::Value& object : document["objects"].GetArray()) {
            add({""}, plain);
            if (object["type"] == "table") {
                addTable(object);
            } else {
                addGraph(object);
            }
        }
    }

    std::string take() { return std::move(text_); }

private:
    void addTable(const rapidjson::Value& table)
    {
        if (!table["hideTitle"].GetBool()) {
            addTitle(table["title"].GetString() + referenceMarks(table), '-');
        }
        add(drawTable(layOut(table), style_.width), plain);
        const auto footnotes = table["footnotes"].GetArray();
        for (rapidjson::SizeType i = 0; i < footnotes.Size(); ++i) {
            addNote(footnoteMark(i) + ". ", footnotes[i].GetString());
        }
    }

    void addGraph(const rapidjson::Value& graph)
    {
        const std::string points = std::to_string(graph["data"]["xdata"].Size()) + " points";
        addNote("[plot] ", graph["name"].GetString() + (", " + points));
    }

    void addTitle(const std::string& title, char underline)
    {
        const std::vector<std::string> lines = wrapText(printable(title), style_.width);
        add(lines, bold);
        add({std::string(widest(lines), underline)}, plain);
    }

    void addNote(const std::string& lead, const std::string& text)
    {
        const std::string indent(lead.size(), ' ');
        add(hangingLines(lead, indent, printable(text), style_.width), dim);
    }

    void add(const std::vector<std::string>& lines, std::string_view look)
    {
        for (const std::string& line : lines) {
            const bool shows = style_.colours && !look.empty() && !line.empty();
            text_.append(shows ? look : "").append(line).append(shows ? reset : "").append("\n");
        }
    }

    TextStyle style_;
    std::string text_;
};

}  // namespace

std::string renderText(const std::list<rapidjson::Document>& documents, const TextStyle& style)
{
    TextPage page(style);
    for (const rapidjson::Document& document : documents) {
        page.addDocument(document);
    }
    return page.take();
}

}  // namespace standin
