#include "module/data/case_reader.h"

#include "host/missing_value.h"
#include "module/data/data_access.h"
#include "runner/input/dictionary.h"
#include "tests/support/traced_session.h"

#include <gmock/gmock.h>

#include <sstream>

namespace bldatman {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Columns = std::vector<std::vector<double>>;

TEST(CaseReader, GivesAColumnPerVariableInCaseOrderWithMissingValuesAsDelivered)
{
    tests::TracedSession host("a,b,c;1,2,x;.,4,y;5,6,x");
    ProcedureDataSource source;
    Columns columns;
    readCaseColumns({1, 0}, source, columns);
    EXPECT_THAT(columns, ElementsAre(ElementsAre(2, 4, 6), ElementsAre(1, systemMissingValue, 5)));
    readCaseColumns({2}, source, columns);
    EXPECT_THAT(columns[0], ElementsAre(2, 4, 6, 1, 2, 1)) << "values are appended to what is there";
}

TEST(CaseReader, GivesNoColumnsForAnEmptyDataSetAndSkipsUnknownIndices)
{
    tests::TracedSession empty("a,b");
    Columns columns;
    {
        ProcedureDataSource source;
        readCaseColumns({0, 1}, source, columns);
        EXPECT_THAT(columns, IsEmpty());
    }
    tests::TracedSession host("a,b;1,2");
    ProcedureDataSource source;
    readCaseColumns({7, 2, 1, -1}, source, columns);
    EXPECT_THAT(columns, ElementsAre(ElementsAre(2)));
}

TEST(CaseReader, DescribesEachVariableByItsLevelAndLabel)
{
    tests::TracedSession host("a,b,c,d;1,2,x,3;3,4,y,1");
    runner::applyDictionary(host.session.dataSet,
                            R"({"variables": {"a": {"label": "First"}, "b": {"level": "ordinal", "valueLabels": {"2":
                                "low", "4": "high", "6": "top"}}}})",
                            "d.json");
    host.session.dataSet.variables[3].level = static_cast<QUVO_Variable_Enumerations::MeasurementLevel>(4);
    ProcedureDataSource source;
    AlgoDataAccessFactory factory;
    const AlgoDataAccess& access = factory.createDataAccess({0, 1, 2, 3, 0}, source, {true, true, true});
    std::ostringstream description;
    access.getVarList().display(description);
    EXPECT_EQ(description.str(), "Start Variable List Display\n\n"
                                 "Variable 0, name a, label First, continuous\n"
                                 "Variable 1, name b, label b, ordinal, 3 levels, continuous\n"
                                 "Variable 2, name c, label c, nominal, 2 levels, ordinal, 2 levels, continuous\n"
                                 "Variable 3, name d, label d, continuous\n"
                                 "Frequency Weight is not defined\n\nEnd Variable List Display\n");
    ASSERT_TRUE(access.getIterator().HasMore());
    EXPECT_EQ(access.getIterator().Next()->Size(), 5) << "the host still delivers the repeated variable";
    EXPECT_EQ(&factory.createDataAccess({0}, source, {true, true, true}), &access);
}

TEST(CaseReader, DeclaresAVariableWithTheFlagsThatItIsGiven)
{
    tests::TracedSession host("a,b;1,2");
    ProcedureDataSource source;
    AlgoDataAccessFactory().createDataAccess({1}, source, {false, true, false});
    AlgoDataAccessFactory().createDataAccess({0}, source, {true, false, true});
    EXPECT_THAT(tests::callsOf(host.takeTrace(), {"ACAVarValidSpecs::AddVariable"}),
                ElementsAre("ACAVarValidSpecs::AddVariable [1,false,false,true,false]",
                            "ACAVarValidSpecs::AddVariable [0,false,true,false,true]"));
}

}  // namespace
}  // namespace bldatman
