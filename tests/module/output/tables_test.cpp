#include "host/command_parser.h"
#include "module/output/output.h"
#include "tests/support/command_run.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <limits>

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using tests::callsOf;
using tests::Host;
using tests::json;

const char* const twoCases = "a,b;1,2;3,2";

const std::vector<std::string> outputClasses = {"Table::", "Descendants::", "Cell::", "Cells::", "Dimension::"};

/// The calls that build the first table of a command, up to its release.
std::vector<std::string> tableCalls(Host& host, const std::string& command)
{
    std::vector<std::string> calls = callsOf(host.run(command), outputClasses);
    const auto end = std::find(calls.begin(), calls.end(), "Table::addTableToProcedureJSON []");
    calls.erase(end, calls.end());
    return calls;
}

void append(std::vector<std::string>& calls, const std::vector<std::string>& more)
{
    calls.insert(calls.end(), more.begin(), more.end());
}

std::vector<std::string> headerCell(const std::string& text)
{
    return {"Cell::Cell [1]", "Cell::setValue [\"" + text + "\"]", "Descendants::addCell []"};
}

std::vector<std::string> bodyRow(const std::vector<std::string>& values)
{
    std::vector<std::string> calls;
    for (const std::string& value : values) {
        append(calls, {"Cell::Cell [1]", "Cell::setValue [" + value + "]"});
    }
    append(calls, {"Cells::addCells [" + std::to_string(values.size()) + "]"});
    return calls;
}

std::vector<std::string> tableBegin(const std::string& name)
{
    return {"Table::Table [\"" + name + "\"]", "Table::set_table_title [\"" + name + " (a and b)\"]",
            "Table::hide_title [false]", "Table::set_min_data_column_width [100]",
            "Table::set_max_data_column_width [300]"};
}

const std::string defaultFormat = "Table::set_default_cell_format [5,10,3]";
const std::vector<std::string> tableEnd = {"Dimension::Dimension []", "Table::set_dimensions []",
                                           "Table::set_cells []"};

TEST(DetailsTable, IsBuiltInTheOrderOfTheRecipe)
{
    Host host(twoCases);
    std::vector<std::string> expected = tableBegin("Bland-Altman Analysis Details");
    append(expected,
           {defaultFormat, "Table::addFootnoteRefs [0]", R"(Table::add_footnote ["First 2 records are printed."])",
            "Table::addFootnoteRefs [1]",
            "Table::add_footnote [\"For cases where the mean between the two measurements is zero, the ratio "
            "is set to zero, reflecting identical measurements and included in all plots.\"]",
            "Table::addFootnoteRefs [2]", R"(Table::add_footnote ["a is sorted in descending order"])",
            "Descendants::Descendants []", R"(Descendants::set_label [" "])", "Descendants::setShowLabel [false]"});
    for (const char* header : {"a", "b", "Mean", "Difference", "Difference/Mean"}) {
        append(expected, headerCell(header));
    }
    append(expected, {"Cells::Cells []", "Descendants::Descendants []"});
    append(expected, bodyRow({"3.0", "2.0", "2.5", "1.0", "0.4"}));
    append(expected, headerCell("1"));
    append(expected, bodyRow({"1.0", "2.0", "1.5", "-1.0", "-0.667"}));
    append(expected, headerCell("2"));
    append(expected, tableEnd);
    EXPECT_THAT(tableCalls(host, "VARIABLE=a WITH=b PRINT(DETAILS SORT)"), ElementsAreArray(expected));
}

TEST(MeanDifferenceTable, PutsTheFormatAfterTheFootnoteAndTheLabelsAfterTheRows)
{
    Host host("a,b;0,0;0,0");
    std::vector<std::string> expected = tableBegin("Confidence Intervals of Mean Differences");
    append(expected, {"Table::addFootnoteRefs [0]", R"(Table::add_footnote ["Data are log-transformed"])",
                      defaultFormat, "Descendants::Descendants []", "Descendants::Descendants []",
                      R"(Descendants::set_label ["90.00% Confidence Interval"])", R"(Descendants::set_label [" "])",
                      "Descendants::setShowLabel [false]"});
    append(expected, headerCell("Lower"));
    append(expected, headerCell("Upper"));
    append(expected, headerCell("Mean Difference"));
    append(expected, {"Descendants::addCell []", "Cells::Cells []", "Descendants::Descendants []"});
    append(expected, bodyRow({"0.0", "0.0", "0.0"}));
    append(expected, bodyRow({"0.0", "0.0", "0.0"}));
    append(expected, headerCell("a - b"));
    append(expected, headerCell("(a-b)/Mean %"));
    append(expected, tableEnd);
    EXPECT_THAT(tableCalls(host, "VARIABLE=a WITH=b PRINT(MEANDIFF) "
                                 "CRITERIA(LOGTRANSFORM=TRUE PERCENTAGE=TRUE CILEVEL_MEANDIFF=90)"),
                ElementsAreArray(expected));
}

TEST(AgreementLimitTable, PutsTheFormatBeforeTheFootnoteAndShowsItsGroupsAfterAddingThem)
{
    Host host("a,b;0,0;0,0");
    std::vector<std::string> expected = tableBegin("Confidence Intervals of Agreement Limits");
    append(expected,
           {defaultFormat, "Table::addFootnoteRefs [0]", R"(Table::add_footnote ["Data are log-transformed"])"});
    for (const char* limit : {"Limit Lower", "Limit Upper"}) {
        append(expected, {"Descendants::Descendants []", R"(Descendants::set_label ["2 SD Agreement"])"});
        append(expected, headerCell(limit));
        append(expected, {"Descendants::Descendants []", R"(Descendants::set_label ["99.50% Confidence Interval"])"});
        append(expected, headerCell("Lower"));
        append(expected, headerCell("Upper"));
    }
    append(expected, {"Descendants::Descendants []"});
    for (int group = 0; group < 4; ++group) {
        append(expected, {"Descendants::addCell []", "Descendants::setShowLabel [true]"});
    }
    append(expected, {"Cells::Cells []", "Descendants::Descendants []", R"(Descendants::set_label [" "])"});
    append(expected, bodyRow({"0.0", "0.0", "0.0", "0.0", "0.0", "0.0"}));
    append(expected, bodyRow({"0.0", "0.0", "0.0", "0.0", "0.0", "0.0"}));
    append(expected, headerCell("a - b"));
    append(expected, headerCell("(a-b)/Mean"));
    append(expected, tableEnd);
    EXPECT_THAT(tableCalls(host, "VARIABLE=a WITH=b PRINT(AGREEMENT) "
                                 "CRITERIA(LOGTRANSFORM=TRUE AGREEMENT_LIMITS=TWOSD CILEVEL_AGREEMENT=99.5)"),
                ElementsAreArray(expected));
}

TEST(Tables, AreReleasedTableFirstThenDimensionThenCells)
{
    Host host(twoCases);
    const auto calls = callsOf(host.run("VARIABLE=a WITH=b PRINT(DETAILS ROWS=0)"),
                               {"Table::~", "Dimension::~", "Cells::~", "Table::add_", "Table::addT"});
    EXPECT_THAT(calls, ElementsAre(R"(Table::add_footnote ["First 0 records are printed."])",
                                   testing::StartsWith("Table::add_footnote [\"For cases"),
                                   "Table::addTableToProcedureJSON []", "Table::~Table []", "Dimension::~Dimension []",
                                   "Cells::~Cells []"));
}

TEST(Document, IsTitledInItsLanguage)
{
    Host host(twoCases);
    host.session.setLanguage("de");
    host.run("VARIABLE=a WITH=b");
    EXPECT_STREQ(host.document()["title"].GetString(), "Bland-Altman-Analyse");
}

TEST(Tables, ComePairByPairBeforeAllPlots)
{
    Host host("a,b,c;1,2,3;3,2,9");
    host.run("VARIABLE=a WITH=b c PRINT(DETAILS MEANDIFF AGREEMENT)");
    std::vector<std::string> names;
    for (const auto& object : host.document()["objects"].GetArray()) {
        names.emplace_back(object.HasMember("title") ? object["title"].GetString() : object["name"].GetString());
    }
    EXPECT_THAT(names, ElementsAre("Bland-Altman Analysis Details (a and b)",
                                   "Confidence Intervals of Mean Differences (a and b)",
                                   "Confidence Intervals of Agreement Limits (a and b)",
                                   "Bland-Altman Analysis Details (a and c)",
                                   "Confidence Intervals of Mean Differences (a and c)",
                                   "Confidence Intervals of Agreement Limits (a and c)",
                                   "Bland-Altman Plot of Differences (a-b)", "Bland-Altman Plot of Differences (a-c)"));
}

std::string csvOf(int cases)
{
    std::string csv = "a,b";
    for (int i = 1; i <= cases; ++i) {
        csv += ";" + std::to_string(i) + "," + std::to_string(i * i);
    }
    return csv;
}

TEST(DetailsTable, ShowsTheFewestOfTheCasesTheRowsAndAThousand)
{
    for (const auto& [cases, rows, shown] :
         {std::tuple(25, "", 10U), {5, "ROWS=10", 5U}, {1200, "ROWS=2000", 1000U}, {1200, "ROWS=-1", 1000U}}) {
        Host host(csvOf(cases));
        host.run(std::string("VARIABLE=a WITH=b PRINT(DETAILS ") + rows + ")");
        EXPECT_EQ(host.object(0)["cells"].Size(), shown);
        EXPECT_EQ(host.object(0)["footnotes"][0].GetString(),
                  "First " + std::to_string(shown) + " records are printed.");
        EXPECT_EQ(host.object(0)["rows"]["children"][shown - 1]["value"].GetString(), std::to_string(shown));
    }
}

TEST(DetailsTable, NumbersTheSortNoteAfterTheLogNote)
{
    Host host(twoCases);
    const auto footnotes = [&host](const std::string& options) {
        host.run("VARIABLE=a WITH=b " + options);
        std::vector<std::string> texts;
        for (const auto& footnote : host.object(0)["footnotes"].GetArray()) {
            texts.emplace_back(footnote.GetString());
        }
        texts.erase(texts.begin(), texts.begin() + 2);
        texts.push_back(json(host.object(0)["footnoteRefs"]));
        return texts;
    };
    EXPECT_THAT(footnotes("PRINT(DETAILS)"), ElementsAre("[0,1]"));
    EXPECT_THAT(footnotes("CRITERIA(LOGTRANSFORM=TRUE) PRINT(DETAILS)"),
                ElementsAre("Data are log-transformed", "[0,1,2]"));
    EXPECT_THAT(footnotes("CRITERIA(LOGTRANSFORM=TRUE) PRINT(DETAILS SORT(BY=RATIO DESCENDING=FALSE))"),
                ElementsAre("Data are log-transformed", "Difference/Mean is sorted in ascending order", "[0,1,2,3]"));
    for (const auto& [by, note] : {std::pair("MEAN", "Mean is sorted in descending order"),
                                   {"DIFFERENCE", "Difference is sorted in descending order"},
                                   {"MEASUREMENT", "a is sorted in descending order"}}) {
        EXPECT_THAT(footnotes(std::string("PRINT(DETAILS SORT(BY=") + by + "))"), ElementsAre(note, "[0,1,2]"));
    }
    host.session.setLanguage("es");
    EXPECT_THAT(footnotes("PRINT(DETAILS SORT(BY=MEAN))"),
                ElementsAre("Mean is sorted in descending order", "[0,1,2]"));
}

TEST(DetailsTable, WritesANotANumberAsATextInTheMeasurementsAlone)
{
    Host host("a,b;1,2;3,2;4,4");
    host.session.dataSet.variables[1].values[0] = std::numeric_limits<double>::quiet_NaN();
    host.session.dataSet.variables[0].values[1] = std::numeric_limits<double>::infinity();
    host.run("VARIABLE=a WITH=b CRITERIA(PERCENTAGE=TRUE) PRINT(DETAILS)");
    EXPECT_EQ(json(host.object(0)["cells"]),
              R"([[1.0,"nan","NaN","NaN","NaN"],["Infinity",2.0,"Infinity","Infinity","NaN"],[4.0,4.0,4.0,0.0,0.0]])");
    EXPECT_TRUE(host.object(0)["cells"][0][1].IsString());
    EXPECT_TRUE(host.object(0)["cells"][0][2].IsNumber());
    EXPECT_STREQ(host.object(0)["columns"]["children"][4]["value"].GetString(), "Difference/Mean%");
}

TEST(IntervalTables, FormTheRatioRowInTheirTwoWays)
{
    Host host("a,b;10,9;12,12;14,11");
    host.run("VARIABLE=a WITH=b CRITERIA(PERCENTAGE=TRUE) PRINT(MEANDIFF AGREEMENT)");
    const double bias = host.object(0)["cells"][0][0].GetDouble();
    const double lower = host.object(1)["cells"][0][0].GetDouble();
    const double mean = 34.0 / 3.0;
    EXPECT_EQ(host.object(0)["cells"][1][0].GetDouble(), bias / mean * 100.0);
    EXPECT_EQ(host.object(1)["cells"][1][0].GetDouble(), 100.0 * (lower / mean));
    EXPECT_STREQ(host.object(1)["rows"]["children"][1]["value"].GetString(), "(a-b)/Mean %");
    EXPECT_EQ(json(host.object(1)["rows"]["label"]), R"(" ")");
    EXPECT_EQ(json(host.object(0)["rows"]["label"]), "null");
}

TEST(IntervalTables, SetTheRatioRowToZeroWhereTheMeanOfMeansIs)
{
    Host host("a,b;1,1;-1,-1;3,-3");
    host.run("VARIABLE=a WITH=b PRINT(MEANDIFF AGREEMENT)");
    EXPECT_EQ(json(host.object(0)["cells"][1]), "[0.0,0.0,0.0]");
    EXPECT_EQ(json(host.object(1)["cells"][1]), "[0.0,0.0,0.0,0.0,0.0,0.0]");
    EXPECT_EQ(host.object(0)["cells"][0][0].GetDouble(), 2.0);
}

TEST(Labels, TellTheAgreementAndTheLevelsInEveryForm)
{
    Host host(twoCases);
    const auto labels = [&host](const std::string& criteria) {
        host.run("VARIABLE=a WITH=b PRINT(AGREEMENT) CRITERIA(" + criteria + ")");
        const auto groups = host.object(0)["columns"]["children"].GetArray();
        return std::string(groups[0]["label"].GetString()) + " | " + groups[1]["label"].GetString();
    };
    EXPECT_EQ(labels(""), "95.00% Agreement | 95.00% Confidence Interval");
    EXPECT_EQ(labels("AGREEMENT_LIMITS=90 CILEVEL_AGREEMENT=99.999"), "90.00% Agreement | 100.00% Confidence Interval");
    EXPECT_EQ(labels("AGREEMENT_LIMITS=THREESD CILEVEL_AGREEMENT=0"), "3 SD Agreement | 0.00% Confidence Interval");
    host.session.setLanguage("fr");
    EXPECT_EQ(labels(""), "95.00% Accord | 95.00% Intervalle de Confiance");
    host.session.setLanguage("xx");
    EXPECT_EQ(labels("AGREEMENT_LIMITS=TWOSD"), "^1 Agreement | ^1 Confidence Interval");
    EXPECT_STREQ(host.object(0)["title"].GetString(), "Confidence_Intervals_of_Agreement_Limits (^1 and ^2)");
    EXPECT_STREQ(host.object(0)["name"].GetString(), "Confidence Intervals of Agreement Limits");
}

TEST(Labels, OfTablesAndPlotsAreMadeOtherwise)
{
    const Host host(twoCases);
    BpProcedure procedure("P", 10);
    ProcedureDataSource source;
    CommandSpec command;
    CommandDescriptor descriptor("P");
    const bldatman::BldatmanInputSetting settings(command, descriptor, source);
    const std::vector<bldatman::BldatmanPairResult> results;
    const bldatman::BldatmanOutput output(procedure, source, results, settings);
    EXPECT_EQ(bldatman::BldatmanOutput::formatLevel(99.999), "100.00");
    EXPECT_EQ(output.agreementLabel(), "95.00% Agreement");
    EXPECT_EQ(output.makeAgreementLimitLabel(), "95.00% Agreement Limit");
}

}  // namespace
