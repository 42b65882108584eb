#include "report/formats/render_text.h"

#include "report/document/document_view.h"
#include "report/tables/footnote_marks.h"
#include "report/tables/table_grid.h"
#include "report/tables/text_alignment.h"
#include "report/tables/text_table.h"
#include "text/wrapping.h"

#include <string_view>
#include <utility>
#include <vector>

namespace report {

namespace {

constexpr std::string_view plain;
constexpr std::string_view bold = "\x1B[1m";
constexpr std::string_view dim = "\x1B[2m";
constexpr std::string_view reset = "\x1B[0m";

/// " [a, b]" for the marks of a title, nothing where it has none.
std::string inBrackets(const std::vector<std::string>& marks)
{
    std::string text;
    for (const std::string& mark : marks) {
        text += (text.empty() ? " [" : ", ") + mark;
    }
    return text.empty() ? "" : text + "]";
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
        addTitle(shownText(document["title"]), '=');
        for (const rapidjson::Value& object : document["objects"].GetArray()) {
            add({""}, plain);
            if (isGraph(object)) {
                addGraph(object);
            } else {
                addTable(object);
            }
        }
    }

    std::string take() { return std::move(text_); }

private:
    void addTable(const rapidjson::Value& table)
    {
        if (!table["hideTitle"].GetBool()) {
            addTitle(titleOf(table) + inBrackets(titleMarks(table)), '-');
        }
        add(drawTable(layOut(table), style_.width), plain);
        for (const Footnote& footnote : footnotesOf(table)) {
            addNote(footnote.mark + ". ", footnote.text);
        }
    }

    void addGraph(const rapidjson::Value& graph)
    {
        const std::string points = std::to_string(graph["data"]["xdata"].Size()) + " points";
        addNote("[plot] ", titleOf(graph) + ", " + points);
    }

    void addTitle(const std::string& title, char underline)
    {
        const std::vector<std::string> lines = text::wrapText(title, style_.width);
        add(lines, bold);
        add({std::string(widest(lines), underline)}, plain);
    }

    void addNote(const std::string& lead, const std::string& text)
    {
        const std::string indent(lead.size(), ' ');
        add(hangingLines(lead, indent, text, style_.width), dim);
    }

    void add(const std::vector<std::string>& lines, std::string_view style)
    {
        for (const std::string& line : lines) {
            const bool shows = style_.colours && !style.empty() && !line.empty();
            text_.append(shows ? style : "").append(line).append(shows ? reset : "").append("\n");
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

}  // namespace report
