#include "report/formats/render_json.h"
#include "report/formats/render_text.h"

#include "host/output.h"
#include "standin/session/session.h"
#include "tests/support/json_text.h"

#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <cmath>
#include <limits>
#include <list>
#include <string>
#include <vector>

namespace report {
namespace {

using Documents = std::list<rapidjson::Document>;

rapidjson::Document parsed(const std::string& json)
{
    rapidjson::Document document;
    document.Parse<rapidjson::kParseFullPrecisionFlag | rapidjson::kParseNanAndInfFlag>(json.c_str());
    EXPECT_FALSE(document.HasParseError()) << json;
    return document;
}

class Chart : public StatGPLGraph {
public:
    explicit Chart(StatJSONGenerator& document)
        : StatGPLGraph(&document, "chart")
    {
    }

    void writeGPL(rapidjson::Value& graph, rapidjson::MemoryPoolAllocator<rapidjson::CrtAllocator>& allocator) override
    {
        rapidjson::Value statements(rapidjson::kArrayType);
        statements.PushBack("SOURCE", allocator);
        graph.AddMember("gpl", statements, allocator);
    }
};

Descendants* groupOf(Table& table, Cell* child)
{
    auto* group = new Descendants(&table);
    group->addCell(child);
    return group;
}

Cell* cellOf(Table& table, double number)
{
    auto* cell = new Cell(&table, CellType{1});
    cell->setValue(number);
    return cell;
}

TEST(Document, HoldsWhatWasBuiltInTheOrderOfItsForm)
{
    const standin::Session session;
    StatJSONGenerator document("Title", "");
    {
        std::string name = "name";
        Table table(&document, name);
        table.set_table_title("Table");
        table.hide_title(true);
        table.set_min_data_column_width(3);
        table.set_max_data_column_width(4);
        table.set_default_cell_format(QUVO_Format::FormatType{5}, 10, 2);
        table.addFootnoteRefs(0);
        table.add_footnote("note");
        Descendants* inner = groupOf(table, cellOf(table, 1));
        inner->set_label("in");
        inner->setShowLabel(false);
        Dimension dimension(&table, groupOf(table, inner), groupOf(table, cellOf(table, 2.5)));
        Cells body(&table);
        body.addCells({cellOf(table, -0.0)});
        table.set_dimensions(&dimension);
        table.set_cells(&body);
        table.addTableToProcedureJSON();
    }
    {
        Chart chart(document);
        std::vector<std::string> texts{"b", "a"};
        std::vector<double> numbers{1, std::nan("")};
        chart.addToDataVector(texts, "z");
        chart.addToDataVector(numbers, "a");
        chart.setDataVector({3}, false);
        chart.setDataVector({1, 2}, true);
        chart.addGPLGraphToProcedureJSON();
    }
    EXPECT_EQ(tests::json(document.getProcedureStatJSON()),
              R"({"title":"Title","objects":[)"
              R"({"type":"table","name":"name","title":"Table","hideTitle":true,"columnWidth":{"min":3,"max":4},)"
              R"("cellFormat":{"type":5,"width":10,"decimals":2},"footnoteRefs":[0],"footnotes":["note"],)"
              R"("rows":{"label":null,"showLabel":true,"children":[)"
              R"({"label":"in","showLabel":false,"children":[{"value":1.0}]}]},)"
              R"("columns":{"label":null,"showLabel":true,"children":[{"value":2.5}]},"cells":[[-0.0]]},)"
              R"({"type":"graph","name":"chart","data":{"xdata":[1.0,2.0],"ydata":[3.0],"z":["b","a"],)"
              R"("a":[1.0,"NaN"]},"gpl":["SOURCE"]}]})");
}

TEST(RenderJson, WritesNumbersThatReadBackToTheSameDouble)
{
    using Limits = std::numeric_limits<double>;
    for (const double number : {0.1, 1.0 / 3.0, 0.1 + 0.2, -0.0, 1e22, 123456789012345678.0, Limits::denorm_min(),
                                Limits::min(), Limits::max(), -Limits::max()}) {
        Documents documents(1);
        documents.front().SetDouble(number);
        const rapidjson::Document read = parsed(renderJson(documents));
        ASSERT_TRUE(read["documents"][0].IsNumber());
        EXPECT_EQ(read["documents"][0].GetDouble(), number);
        EXPECT_EQ(std::signbit(read["documents"][0].GetDouble()), std::signbit(number));
    }
}

TEST(RenderJson, WritesWhatIsNoNumberAsTextAndEveryDocumentInOrder)
{
    Documents documents(4);
    auto document = documents.begin();
    (document++)->SetDouble(std::nan(""));
    (document++)->SetDouble(std::numeric_limits<double>::infinity());
    (document++)->SetDouble(-std::numeric_limits<double>::infinity());
    document->SetString("体\"\n");
    EXPECT_EQ(tests::json(parsed(renderJson(documents))), R"({"documents":["NaN","Infinity","-Infinity","体\"\n"]})");
}

std::string group(const std::string& label, const std::string& children, bool showLabel = true)
{
    return R"({"label": )" + label + R"(, "showLabel": )" + (showLabel ? "true" : "false") + R"(, "children": [)" +
           children + "]}";
}

/// The text of a document whose one table has no title.
std::string renderedTable(const std::string& rows, const std::string& columns, const std::string& cells,
                          const std::string& footnotes = "")
{
    Documents documents;
    documents.push_back(parsed(R"({"title": "T", "objects": [{"type": "table", "title": "hidden", "hideTitle": true,
                   "cellFormat": {"decimals": 2}, "footnoteRefs": [], "footnotes": [)" +
                               footnotes + R"(], "rows": )" + rows + R"(, "columns": )" + columns + R"(, "cells": )" +
                               cells + "}]}"));
    const std::string text = renderText(documents);
    EXPECT_TRUE(text.starts_with("T\n=\n\n")) << text;
    return text.substr(std::min<std::size_t>(text.size(), 5));
}

const std::string twoRows = group("null", R"({"value": "r"}, {"value": "s"})");

TEST(RenderText, AlignsByTheRoomThatCharactersTake)
{
    EXPECT_EQ(renderedTable(group("\"lines\"", R"({"value": "身長"}, {"value": "é"}, {"value": "e\u0301x"})"),
                            group("\" \"", R"({"value": "平均値"}, {"value": "n"})"),
                            R"([[-1234.5, 1], [0.125, "ok"], ["欠", -2]])"),
              "lines    平均値      n\n"
              "身長   -1234.50   1.00\n"
              "é          0.12     ok\n"
              "e\xCC\x81x           欠  -2.00\n");
}

TEST(RenderText, CentresNestedGroupLabelsOverTheirColumns)
{
    const std::string limits = group("\"limits\"", R"({"value": "lower"}, {"value": "upper"})");
    const std::string hidden = group("\"no\"", R"({"value": "x"})", false);
    EXPECT_EQ(renderedTable(twoRows, group("\"all\"", R"({"value": "mean"}, )" + limits + "," + hidden),
                            "[[1, 2, 3, 4], [5, 6, 7, 8]]"),
              "             all\n"
              "   ------------------------\n"
              "            limits\n"
              "         ------------\n"
              "   mean  lower  upper     x\n"
              "r  1.00   2.00   3.00  4.00\n"
              "s  5.00   6.00   7.00  8.00\n");
}

TEST(RenderText, WidensTheNarrowestColumnsUnderAWideLabel)
{
    const std::string wide = group("\"a wide label\"", R"({"value": "a"}, {"value": "b"})");
    EXPECT_EQ(renderedTable(twoRows, group("null", wide + R"(, {"value": "c"})"), "[[1, 2, 3], [4, 5, 6]]"),
              "   a wide label\n"
              "   ------------\n"
              "       a      b     c\n"
              "r   1.00   2.00  3.00\n"
              "s   4.00   5.00  6.00\n");
}

TEST(RenderText, LeadsARowByTheShownLabelsOfItsGroups)
{
    const std::string inner = group("\"inner\"", R"({"value": "x"})");
    const std::string hidden = group("\"no\"", R"({"value": 7})", false);
    EXPECT_EQ(renderedTable(group("null", group("\"outer\"", inner + "," + hidden)), group("null", R"({"value": "c"})"),
                            "[[NaN], [-Infinity]]"),
              "                           c\n"
              "outer / inner / x        NaN\n"
              "outer / 7.00       -Infinity\n");
}

TEST(RenderText, MarksFootnotesByLettersThenNumbers)
{
    std::string footnotes = "\"n\"";
    for (int i = 1; i < 27; ++i) {
        footnotes += ", \"n\"";
    }
    const std::string text = renderedTable(group("null", ""), group("null", R"({"value": "c"})"), "[]", footnotes);
    EXPECT_TRUE(text.starts_with("  c\na. n\nb. n\n")) << text;
    EXPECT_TRUE(text.ends_with("z. n\n27. n\n")) << text;
}

/// A table with nothing but a title and footnotes.
std::string titledTable(const std::string& title, const std::string& footnoteRefs, const std::string& footnotes)
{
    return R"({"type": "table", "title": ")" + title + R"(", "hideTitle": false, "cellFormat": {"decimals": 0},
        "footnoteRefs": [)" +
           footnoteRefs + R"(], "footnotes": [)" + footnotes + R"(], "rows": )" + group("null", "") +
           R"(, "columns": )" + group("null", "") + R"(, "cells": []})";
}

TEST(RenderText, UnderlinesTitlesAndPutsObjectsAndDocumentsApart)
{
    const std::string table = titledTable("表", "", "");
    const std::string graph = R"({"type": "graph", "name": "g", "data": {"xdata": [1, 2]}})";
    Documents documents;
    documents.push_back(parsed(R"({"title": "One", "objects": [)" + table + "," + graph + "]}"));
    documents.push_back(parsed(R"({"title": "Two", "objects": []})"));
    EXPECT_EQ(renderText(documents), "One\n===\n\n表\n--\n\n\n[plot] g, 2 points\n\n\nTwo\n===\n");
}

/// A document with something of every kind that is longer than a line of 20 columns.
Documents longTexts()
{
    const std::string table =
        titledTable("Limits of agree\\nment\\u001b[1m", "0, 1, 2", R"("a note", "one more\ttoo long note")");
    const std::string graph = R"({"type": "graph", "name": "plot of differences", "data": {"xdata": [1, 2]}})";
    Documents documents;
    documents.push_back(parsed(R"({"title": "Bland-Altman Analysis", "objects": [)" + table + "," + graph + "]}"));
    return documents;
}

TEST(RenderText, WrapsTitlesWithTheirMarksAndNotesBesideTheirs)
{
    EXPECT_EQ(renderText(longTexts(), {.width = 20}), "Bland-Altman\n"
                                                      "Analysis\n"
                                                      "============\n"
                                                      "\n"
                                                      "Limits of agree\n"
                                                      "ment\uFFFD[1m [a, b]\n"
                                                      "---------------\n"
                                                      "\n"
                                                      "a. a note\n"
                                                      "b. one more too long\n"
                                                      "   note\n"
                                                      "\n"
                                                      "[plot] plot of\n"
                                                      "       differences,\n"
                                                      "       2 points\n");
}

std::string withoutColours(std::string text)
{
    for (std::size_t begin = text.find('\x1B'); begin != std::string::npos; begin = text.find('\x1B', begin)) {
        text.erase(begin, text.find('m', begin) + 1 - begin);
    }
    return text;
}

TEST(RenderText, AddsNothingButColours)
{
    const std::string coloured = renderText(longTexts(), {.width = 20, .colours = true});
    for (const std::string line : {"\x1B[1mAnalysis\x1B[0m\n", "\n============\n", "\n\x1B[2m   note\x1B[0m\n",
                                   "\n\x1B[2m[plot] plot of\x1B[0m\n"}) {
        EXPECT_NE(coloured.find(line), std::string::npos) << coloured;
    }
    EXPECT_EQ(withoutColours(coloured), renderText(longTexts(), {.width = 20}));
}

}  // namespace
}  // namespace report
