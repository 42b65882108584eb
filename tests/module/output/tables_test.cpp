#include "host/command_parser.h"
#include "module/output/output.h"
#include "tests/support/command_run.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <limits>

namespace {

using tests::Host;
using tests::json;

const char* const twoCases = "a,b;1,2;3,2";

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
    const auto lastFootnote = [&host](const std::string& options) {
        host.run("VARIABLE=a WITH=b PRINT(DETAILS " + options);
        const auto& footnotes = host.object(0)["footnotes"];
        return json(host.object(0)["footnoteRefs"]) + " " + footnotes[footnotes.Size() - 1].GetString();
    };
    const std::string log = ") CRITERIA(LOGTRANSFORM=TRUE)";
    EXPECT_EQ(lastFootnote(log), "[0,1,2] Data are log-transformed");
    EXPECT_EQ(lastFootnote("SORT" + log), "[0,1,2,3] a is sorted in descending order");
    for (const auto& [by, subject] : {std::pair("MEASUREMENT", "a"),
                                      {"MEAN", "Mean"},
                                      {"RATIO", "Difference/Mean"},
                                      {"DIFFERENCE", "Difference"}}) {
        for (const auto& [descending, order] : {std::pair("TRUE", "descending"), {"FALSE", "ascending"}}) {
            EXPECT_EQ(lastFootnote(std::string("SORT(BY=") + by + " DESCENDING=" + descending + "))"),
                      std::string("[0,1,2] ") + subject + " is sorted in " + order + " order");
        }
    }
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
