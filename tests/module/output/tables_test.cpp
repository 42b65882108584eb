#include "host/command_parser.h"
#include "module/output/output.h"
#include "tests/support/command_run.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using tests::Host;
using tests::json;

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

TEST(Output, MakesLabelsOnRequestAndIsAsEmptyAsItsRecords)
{
    const Host host("a,b;1,2;3,2");
    BpProcedure procedure("P", 10);
    ProcedureDataSource source;
    CommandSpec command;
    CommandDescriptor descriptor("P");
    const bldatman::BldatmanInputSetting settings(command, descriptor, source);
    std::vector<bldatman::BldatmanPairResult> results;
    bldatman::BldatmanOutput output(procedure, source, results, settings);
    EXPECT_EQ(bldatman::BldatmanOutput::formatLevel(99.999), "100.00");
    EXPECT_EQ(output.agreementLabel(), "95.00% Agreement");
    EXPECT_EQ(output.makeAgreementLimitLabel(), "95.00% Agreement Limit");
    EXPECT_EQ(output.generate(), 1);
    EXPECT_TRUE(host.session.documents.empty());
    results.push_back({});  // a pair without cases
    EXPECT_EQ(output.generate(), 0);
    EXPECT_EQ(json(host.object(0)["data"]["xMinMax"]), "[0.0,0.0]");
}

}  // namespace
