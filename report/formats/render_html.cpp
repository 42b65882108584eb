#include "report/formats/render_html.h"

#include "report/document/document_view.h"
#include "report/languages.h"
#include "report/tables/footnote_marks.h"
#include "report/tables/header_rows.h"
#include "report/tables/table_grid.h"
#include "text/wording.h"

#include <embedded/report_templates.h>
#include <kainjow/mustache.hpp>

#include <cstddef>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

namespace report {

namespace {

using kainjow::mustache::data;
kainjow::mustache::mustache templateOf(std::string_view text)
{
    return kainjow::mustache::mustache(std::string(text));
}

/// A list as a value of a template: its elements, each made by `make`.
template <class Elements, class Make>
data listOf(const Elements& elements, Make make)
{
    data list(data::type::list);
    for (const auto& element : elements) {
        list << make(element);
    }
    return list;
}

/// Left out of the template where it is 1.
data spanData(std::size_t count)
{
    return count > 1 ? data(std::to_string(count)) : data(false);
}

data headerCellData(const HeaderCell& cell)
{
    data result("text", cell.text);
    result["empty"] = cell.kind == HeaderCell::Kind::Corner && cell.text.empty();
    result["scope"] = cell.kind == HeaderCell::Kind::Group ? "colgroup" : "col";
    result["columnSpan"] = spanData(cell.columnCount);
    result["rowSpan"] = spanData(cell.rowCount);
    return result;
}

data headerRowData(const std::vector<HeaderCell>& row)
{
    return data("cells", listOf(row, headerCellData));
}

data bodyRowData(const std::string& header, const std::vector<std::string>& texts)
{
    data row("header", header);
    row["cells"] = listOf(texts, [](const std::string& text) { return data("text", text); });
    return row;
}

data bodyData(const TableGrid& grid)
{
    data rows(data::type::list);
    for (std::size_t i = 0; i < grid.body.size(); ++i) {
        rows << bodyRowData(grid.rowHeaders[i], grid.body[i]);
    }
    return rows;
}

data footnoteData(const Footnote& footnote)
{
    data result("mark", footnote.mark);
    result["text"] = footnote.text;
    return result;
}

data tableData(const rapidjson::Value& table, const std::string& id)
{
    const TableGrid grid = layOut(table);
    const auto headers = headerRowsOf(grid);
    data result("id", id);
    result["title"] = titleOf(table);
    result["hideTitle"] = table["hideTitle"].GetBool();
    result["marks"] = listOf(titleMarks(table), [](const std::string& mark) { return data("mark", mark); });
    result["columnGroups"] =
        listOf(headers.front(), [](const HeaderCell& cell) { return data("count", std::to_string(cell.columnCount)); });
    result["headerRows"] = listOf(headers, headerRowData);
    result["rows"] = bodyData(grid);
    result["footnotes"] = listOf(footnotesOf(table), footnoteData);
    return result;
}

data plotData(const rapidjson::Value& graph, const DrawnPlot& plot, const std::string& id)
{
    data result("id", id);
    result["name"] = titleOf(graph);
    result["reason"] = text::printable(plot.reason);
    result["svg"] = plot.svg.empty() ? data(false) : data(plot.svg);
    return result;
}

/// True when two graphs show their points over one horizontal axis, as the differences and the ratios of one pair do.
bool shareHorizontalAxis(const rapidjson::Value& one, const rapidjson::Value& other, DrawnPlots& plots)
{
    return one["data"]["xdata"] == other["data"]["xdata"] && plots.of(one).xLabel == plots.of(other).xLabel;
}

/// True when a reader has to find one of several things that are alike, see `renderHtml`.
bool needsContents(const Report& report)
{
    if (report.documents.size() > 1) {
        return true;
    }
    const rapidjson::Value* firstGraph = nullptr;
    std::set<std::string> names;
    for (const rapidjson::Value& object : report.documents.front()["objects"].GetArray()) {
        if (!names.insert(textOf(object["name"])).second) {
            return true;
        }
        if (isGraph(object)) {
            firstGraph = firstGraph == nullptr ? &object : firstGraph;
            if (!shareHorizontalAxis(*firstGraph, object, report.plots)) {
                return true;
            }
        }
    }
    return false;
}

/// A longer list of contents is folded, so that the first table is in sight.
constexpr std::size_t longestOpenContents = 40;

/// Writes the objects of all documents, one after the other, and lists them.
class Page {
public:
    explicit Page(const Report& report)
        : report_(report)
    {
    }

    std::string render()
    {
        for (const rapidjson::Document& document : report_.documents) {
            addDocument(document);
        }
        const Language& language = languageOf(report_.language);
        data page("title", shownText(report_.documents.front()["title"]));
        page["language"] = std::string(language.tag);
        page["style"] = std::string(embedded::report_css);
        page["hasContents"] = needsContents(report_);
        page["contentsTitle"] = std::string(language.contents);
        page["isShort"] = contents_.list_value().size() <= longestOpenContents;
        page["contents"] = std::move(contents_);
        page["documents"] = std::move(documents_);
        return templateOf(embedded::report_mustache).render(page);
    }

private:
    void addDocument(const rapidjson::Document& document)
    {
        std::string objects;
        for (const rapidjson::Value& object : document["objects"].GetArray()) {
            const std::string id = "object-" + std::to_string(++objectCount_);
            objects += isGraph(object) ? plot_.render(plotData(object, report_.plots.of(object), id))
                                       : table_.render(tableData(object, id));
            data entry("id", id);
            entry["title"] = titleOf(object);
            contents_ << entry;
        }
        data section("objects", objects);
        section["heading"] = headingOf(document);
        documents_ << section;
    }

    /// Documents are told apart by their number where there are several: their titles are often the same.
    data headingOf(const rapidjson::Document& document) const
    {
        if (report_.documents.size() == 1) {
            return {false};
        }
        return {std::to_string(documents_.list_value().size() + 1) + ". " + shownText(document["title"])};
    }

    const Report& report_;
    kainjow::mustache::mustache table_ = templateOf(embedded::table_mustache);
    kainjow::mustache::mustache plot_ = templateOf(embedded::plot_mustache);
    data contents_{data::type::list};
    data documents_{data::type::list};
    std::size_t objectCount_ = 0;
};

}  // namespace

std::string renderHtml(const Report& report)
{
    return Page(report).render();
}

}  // namespace report
