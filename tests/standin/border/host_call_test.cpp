// What the module calls is counted and traced, once and under the name of the operation.
#include "standin/border/host_call.h"

#include "host/command_parser.h"
#include "host/common_areas.h"
#include "tests/support/guest.h"
#include "tests/support/traced_session.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace standin {
namespace {

using Calls = std::vector<std::string>;

class Trace : public testing::Test {
protected:
    Calls of(const std::function<void()>& action)
    {
        host_.takeTrace();
        action();
        return tests::callsOf(host_.takeTrace(), {""});
    }

    tests::TracedSession host_{"a,b;1,2"};
    tests::Guest guest_;
};

TEST_F(Trace, WritesPlainArgumentsAndLeavesOutOtherObjects)
{
    const auto action = [this] {
        guest_.texts = {"1", "2"};
        guest_.table->set_default_cell_format(QUVO_Format::FormatType{5}, 10, -3);
        guest_.chart.addToDataVector(guest_.texts, "x\"MinMax\"\n");
        guest_.chart.setDataVector({}, true);
        for (const double number : {0.1, std::nan(""), -HUGE_VAL, HUGE_VAL}) {
            guest_.spare->setValue(number);
        }
        const OPSCommonOutput output(&*guest_.validSpecs, guest_.source, &*guest_.procedure, nullptr);
        ParserMessage().NeedDepVarCont(QuvoVarName("a"), "INPUT", nullptr);
    };
    EXPECT_EQ(of(action),
              (Calls{"Table::set_default_cell_format [5,10,-3]", R"(StatGPLGraph::addToDataVector [2,"x\"MinMax\"\n"])",
                     "StatGPLGraph::setDataVector [0,true]", "Cell::setValue [0.1]", R"(Cell::setValue ["NaN"])",
                     R"(Cell::setValue ["-Infinity"])", R"(Cell::setValue ["Infinity"])",
                     "OPSCommonOutput::OPSCommonOutput [null]", "ParserMessage::ParserMessage []",
                     R"(QuvoVarName::QuvoVarName ["a"])", R"(ParserMessage::NeedDepVarCont ["INPUT",null])",
                     "QuvoVarName::~QuvoVarName []", "ParserMessage::~ParserMessage []",
                     "OPSCommonOutput::~OPSCommonOutput []"}));
}

TEST_F(Trace, ShowsTheCopiesOfTheModuleButNotThoseOfTheHost)
{
    const auto action = [] {
        const ParamDescriptor rows("ROWS", UPSpecTypes::ParamSpec{9}, false, true, UPSpecTypes::BracketOptions{0});
        SubComDescriptor print("PRINT", UPSpecTypes::SubComSpec{2}, false, false);
        print.addParamDesc(ParamDescriptor(rows));
    };
    EXPECT_EQ(of(action), (Calls{R"(ParamDescriptor::ParamDescriptor ["ROWS",9,false,true,0])",
                                 R"(SubComDescriptor::SubComDescriptor ["PRINT",2,false,false])",
                                 "ParamDescriptor::ParamDescriptor []", "SubComDescriptor::addParamDesc []",
                                 "ParamDescriptor::~ParamDescriptor []", "SubComDescriptor::~SubComDescriptor []",
                                 "ParamDescriptor::~ParamDescriptor []"}));
}

TEST_F(Trace, TakesForTheModulesWhatItsObjectsDoWhenTheHostDeletesOrCallsThem)
{
    const auto action = [this] {
        guest_.group(1);
        guest_.chart.addGPLGraphToProcedureJSON();
        EXPECT_FALSE(host_.session.monitor.insideHost());
        pvGetCmnBox();
    };
    EXPECT_EQ(of(action),
              (Calls{"Descendants::Descendants []", "Cell::Cell [1]", "Descendants::addCell []",
                     "Descendants::~Descendants []", "Cell::~Cell []", "StatGPLGraph::addGPLGraphToProcedureJSON []",
                     "StatGPLGraph::getName []", "pvGetCmnBox []"}));
}

TEST(CallMonitor, CountsApartWhatMayFailAndHasThatAloneFail)
{
    Session session;
    auto procedure = std::make_unique<BpProcedure>("NAME", 10);
    session.monitor.failAtCall(1, [] { throw std::runtime_error("ordered"); });
    EXPECT_NO_THROW(procedure.reset());
    EXPECT_NO_THROW(pvGetCmnBpr());
    EXPECT_THROW(BpProcedure("NAME", 10), std::runtime_error);
    EXPECT_NO_THROW(BpProcedure("NAME", 10));
    EXPECT_EQ(session.monitor.callCount(), 6);
    EXPECT_EQ(session.monitor.fallibleCount(), 3);
}

}  // namespace
}  // namespace standin
