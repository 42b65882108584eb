#include "standin/render/render_html.h"

#include "standin/languages.h"
#include "standin/render/footnote_marks.h"
#include "standin/render/header_rows.h"
#include "standin/render/report_templates.h"
#include "standin/render/table_grid.h"
#include "standin/text.h"

#include <kainjow/mustache.hpp>

#include <set>
#include <string_view>
#include <utility>

namespace standin {

namespace {

using kainjow::mustache::data;
using Pictures = std::vector<std::vector<Picture>>;

kainjow::mustache::mustache templateOf(std::string_view text)
{
    return kainjow::mustache::mustache(std::string(text));
}

std::string textOf(const rapidjson::Value& value)
{
    return printable({value.GetString(), value.GetStringLength()});
}

std::string spanAttributes(const HeaderCell& cell)
{
    const auto attribute = [](const char* name, std::size_t count) {
        return count > 1 ? std::string(" ") + name + "=\"" + std::to_string(count) + "\"" : "";
    };
    return attribute("colspan", cell.columnCount) + attribute("rowspan", cell.rowCount);
}

/// One for each cell of the first header row.
data columnGroupData(const std::vector<HeaderCell>& firstRow)
{
    data groups(data::type::list);
    for (const HeaderCell& cell : firstRow) {
        groups << data("count", std::to_string(cell.columnCount));
    }
    return groups;
}

data headerRowData(const std::vector<HeaderCell>& row)
{
    data cells(data::type::list);
    for (const HeaderCell& cell : row) {
        data object;
        object["text"] = cell.text;
        object["empty"] = cell.kind == HeaderCell::Kind::Corner && cell.text.empty();
        object["scope"] = cell.kind == HeaderCell::Kind::Group ? "colgroup" : "col";
        object["span"] = spanAttributes(cell);
        cells << object;
    }
    return data("cells", cells);
}

data bodyRowData(const std::string& header, const std::vector<std::string>& texts)
{
    data cells(data::type::list);
    for (const std::string& text : texts) {
        cells << data("text", text);
    }
    data row("header", header);
    row.set("cells", cells);
    return row;
}

/// The references that a footnote follows, as marks of the title.
data markData(const rapidjson::Value& table)
{
    data marks(data::type::list);
    for (const rapidjson::Value& reference : table["footnoteRefs"].GetArray()) {
        if (reference.GetUint() < table["footnotes"].Size()) {
            marks << data("mark", footnoteMark(reference.GetUint()));
        }
    }
    return marks;
}

data footnoteData(const rapidjson::Value& table)
{
    data footnotes(data::type::list);
    for (const rapidjson::Value& text : table["footnotes"].GetArray()) {
        data footnote("text", textOf(text));
        footnote["mark"] = footnoteMark(footnotes.list_value().size());
        footnotes << footnote;
    }
    return footnotes;
}

data tableData(const rapidjson::Value& table, const std::string& id)
{
    const TableGrid grid = layOut(table);
    const auto headers = headerRowsOf(grid);
    data headerRows(data::type::list);
    for (const auto& row : headers) {
        headerRows << headerRowData(row);
    }
    data rows(data::type::list);
    for (std::size_t i = 0; i < grid.body.size(); ++i) {
        rows << bodyRowData(grid.rowHeaders[i], grid.body[i]);
    }
    data result("id", id);
    result["title"] = textOf(table["title"]);
    result["hideTitle"] = table["hideTitle"].GetBool();
    result["marks"] = markData(table);
    result["columnGroups"] = columnGroupData(headers.front());
    result.set("headerRows", headerRows);
    result.set("rows", rows);
    result["footnotes"] = footnoteData(table);
    return result;
}

data plotData(const rapidjson::Value& graph, const Picture& picture, const std::string& id)
{
    data result("id", id);
    result["name"] = textOf(graph["name"]);
    result["reason"] = printable(picture.reason);
    if (!picture.svg.empty()) {
        result["picture"] = picture.svg;
    }
    return result;
}

bool isTable(const rapidjson::Value& object)
{
    return object["type"] == "table";
}

/// See `renderHtml`.
bool hasSeveralSubjects(const Report& report, const Pictures& pictures)
{
    if (report.documents.size() > 1) {
        return true;
    }
    std::set<std::string> tables;
    for (const rapidjson::Value& object : report.documents.front()["objects"].GetArray()) {
        if (isTable(object) && !tables.insert(textOf(object["name"])).second) {
            return true;
        }
    }
    std::set<std::string> horizontalAxes;
    for (const Picture& picture : pictures.front()) {
        horizontalAxes.insert(picture.horizontalAxis);
    }
    return horizontalAxes.size() > 1;
}

/// Writes the objects of all documents, one after the other, and lists them.
class Page {
public:
    explicit Page(const Report& report)
        : report_(report)
        , pictures_(report.pictures.pictures())
    {
    }

    std::string render()
    {
        auto picturesOfDocument = pictures_.begin();
        for (const rapidjson::Document& document : report_.documents) {
            addDocument(document, *picturesOfDocument++);
        }
        const Language& language = languageOf(report_.language);
        data page("title", textOf(report_.documents.front()["title"]));
        page["language"] = std::string(language.tag);
        page["style"] = std::string(report_css);
        page["hasContents"] = hasSeveralSubjects(report_, pictures_);
        page["contentsTitle"] = std::string(language.contents);
        page.set("contents", contents_);
        page.set("documents", documents_);
        return templateOf(report_mustache).render(page);
    }

private:
    void addDocument(const rapidjson::Document& document, const std::vector<Picture>& pictures)
    {
        std::string objects;
        auto picture = pictures.begin();
        for (const rapidjson::Value& object : document["objects"].GetArray()) {
            const std::string id = "object-" + std::to_string(++objectCount_);
            const bool table = isTable(object);
            objects += table ? table_.render(tableData(object, id)) : plot_.render(plotData(object, *picture++, id));
            data entry("id", id);
            entry["title"] = textOf(object[table ? "title" : "name"]);
            contents_ << entry;
        }
        addSection(textOf(document["title"]), objects);
    }

    /// Documents are told apart by their number, where there are several: their titles are often the same.
    void addSection(const std::string& title, const std::string& objects)
    {
        data section("objects", objects);
        if (report_.documents.size() > 1) {
            section["heading"] = std::to_string(documents_.list_value().size() + 1) + ". " + title;
        }
        documents_ << section;
    }

    const Report& report_;
    const Pictures& pictures_;
    kainjow::mustache::mustache table_ = templateOf(table_mustache);
    kainjow::mustache::mustache plot_ = templateOf(plot_mustache);
    data contents_{data::type::list};
    data documents_{data::type::list};
    std::size_t objectCount_ = 0;
};

}  // namespace

std::string renderHtml(const Report& report)
{
    return Page(report).render();
}

}  // namespace standin
