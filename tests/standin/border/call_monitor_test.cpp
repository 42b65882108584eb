#include "standin/session/call_monitor.h"

#include "host/case_adapter.h"
#include "host/command_parser.h"
#include "host/common_areas.h"
#include "host/output.h"
#include "host/procedure.h"
#include "standin/command/syntax_description.h"
#include "standin/session/session.h"
#include "tests/support/json_text.h"
#include "tests/support/traced_session.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace standin {
namespace {

using Action = std::function<void()>;
using Calls = std::vector<std::string>;

struct Ordered : std::runtime_error {
    Ordered()
        : std::runtime_error("ordered by the test")
    {
    }
};

[[noreturn]] void raiseOrdered()
{
    throw Ordered();
}

/// A chart whose statements call the host back.
class Chart : public StatGPLGraph {
public:
    explicit Chart(StatJSONGenerator& document)
        : StatGPLGraph(&document, "chart")
    {
    }

    void writeGPL(rapidjson::Value& graph, rapidjson::MemoryPoolAllocator<rapidjson::CrtAllocator>& allocator) override
    {
        insideHost = Session::current().monitor.insideHost();
        rapidjson::Value statements(rapidjson::kArrayType);
        statements.PushBack(rapidjson::Value(getName(), allocator), allocator);
        graph.AddMember("gpl", statements, allocator);
    }

    bool insideHost = true;
};

class Trace : public testing::Test {
protected:
    /// The calls that an action makes.
    Calls of(const Action& action)
    {
        host_.takeTrace();
        action();
        return tests::callsOf(host_.takeTrace(), {""});
    }

    tests::TracedSession host_;
    StatJSONGenerator document_{"", ""};
    std::string name_ = "name";
    Table table_{&document_, name_};
    Cell cell_{&table_, CellType{1}};
};

TEST_F(Trace, WritesPlainArgumentsAndLeavesOutOtherObjects)
{
    const double infinity = std::numeric_limits<double>::infinity();
    Chart chart(document_);
    std::vector<std::string> texts{"1", "2"};
    EXPECT_EQ(of([&] { table_.set_default_cell_format(QUVO_Format::FormatType{5}, 10, -3); }),
              (Calls{"Table::set_default_cell_format [5,10,-3]"}));
    EXPECT_EQ(of([&] { chart.addToDataVector(texts, "x\"MinMax\"\n"); }),
              (Calls{"StatGPLGraph::addToDataVector [2,\"x\\\"MinMax\\\"\\n\"]"}));
    EXPECT_EQ(of([&] { chart.setDataVector({}, true); }), (Calls{"StatGPLGraph::setDataVector [0,true]"}));
    EXPECT_EQ(of([&] { cell_.setValue(0.1); }), (Calls{"Cell::setValue [0.1]"}));
    EXPECT_EQ(of([&] { cell_.setValue(std::nan("")); }), (Calls{"Cell::setValue [\"NaN\"]"}));
    EXPECT_EQ(of([&] { cell_.setValue(infinity); }), (Calls{"Cell::setValue [\"Infinity\"]"}));
    EXPECT_EQ(of([&] { cell_.setValue(-infinity); }), (Calls{"Cell::setValue [\"-Infinity\"]"}));
    EXPECT_EQ(of([] { pvGetCmnBox(); }), (Calls{"pvGetCmnBox []"}));
}

TEST_F(Trace, WritesANullPointerAsNull)
{
    ACAVarValidSpecs validSpecs(true, true, true);
    ProcedureDataSource source;
    BpProcedure procedure("NAME", 10);
    EXPECT_EQ(of([&] { const OPSCommonOutput output(&validSpecs, source, &procedure, nullptr); }),
              (Calls{"OPSCommonOutput::OPSCommonOutput [null]", "OPSCommonOutput::~OPSCommonOutput []"}));
    ParserMessage message;
    const QuvoVarName variable("a");
    EXPECT_EQ(of([&] { message.NeedDepVarCont(variable, "INPUT", nullptr); }),
              (Calls{"QuvoVarName::QuvoVarName []", "ParserMessage::NeedDepVarCont [\"INPUT\",null]",
                     "QuvoVarName::~QuvoVarName []"}));
}

TEST_F(Trace, ShowsTheCopiesOfTheModuleButNotThoseOfTheHost)
{
    EXPECT_EQ(
        of([] {
            const ParamDescriptor rows("ROWS", kinds::integer, false, true, brackets::none);
            ParamDescriptor copy(rows);
            SubComDescriptor print("PRINT", UPSpecTypes::SubComSpec{2}, false, false);
            copy.setValueRequired(false);
            print.addParamDesc(copy);
        }),
        (Calls{"ParamDescriptor::ParamDescriptor [\"ROWS\",9,false,true,0]", "ParamDescriptor::ParamDescriptor []",
               "SubComDescriptor::SubComDescriptor [\"PRINT\",2,false,false]",
               "ParamDescriptor::setValueRequired [false]", "SubComDescriptor::addParamDesc []",
               "SubComDescriptor::~SubComDescriptor []", "ParamDescriptor::~ParamDescriptor []",
               "ParamDescriptor::~ParamDescriptor []"}));
}

TEST_F(Trace, ShowsWhatTheHostDeletesForTheModule)
{
    auto group = std::make_unique<Descendants>(&table_);
    group->addCell(std::make_unique<Cell>(&table_, CellType{1}).release());
    EXPECT_EQ(of([&group] { group.reset(); }), (Calls{"Descendants::~Descendants []", "Cell::~Cell []"}));
}

TEST_F(Trace, TakesACallFromACallbackForTheModules)
{
    Chart chart(document_);
    EXPECT_EQ(of([&chart] { chart.addGPLGraphToProcedureJSON(); }),
              (Calls{"StatGPLGraph::addGPLGraphToProcedureJSON []", "StatGPLGraph::getName []"}));
    EXPECT_FALSE(chart.insideHost);
    EXPECT_FALSE(host_.session.monitor.insideHost());
}

TEST(CallMonitor, CountsWhatTheModuleCallsAndApartFromItWhatMayFail)
{
    Session session;
    {
        const BpProcedure procedure("NAME", 10);
        pvGetCmnBpr();
        SubComDescriptor leading("", UPSpecTypes::SubComSpec{1}, false, false);
        CommandDescriptor command("NAME");
        command.addSubComDesc(leading);
    }
    EXPECT_EQ(session.monitor.callCount(), 8);
    EXPECT_EQ(session.monitor.fallibleCount(), 4);
}

TEST(CallMonitor, LetsDestructorsAndLoadGettersPass)
{
    Session session;
    auto procedure = std::make_unique<BpProcedure>("NAME", 10);
    session.monitor.failAtCall(1, raiseOrdered);
    EXPECT_NO_THROW(procedure.reset());
    EXPECT_NO_THROW(pvGetCmnBpr());
    EXPECT_THROW(BpProcedure("NAME", 10), Ordered);
    EXPECT_NO_THROW(BpProcedure("NAME", 10));
}

/// A module in steps of one call each that may fail; a step that fails is taken once more.
class StubbornGuest {
public:
    /// Everything that came out, the n-th call having failed; 0: none.
    std::string run(long n)
    {
        if (n > 0) {
            host.session.monitor.failAtCall(n, raiseOrdered);
        }
        for (const Action& step : steps_) {
            try {
                step();
            } catch (const Ordered&) {
                ++failures;
                step();
            }
        }
        output_ += tests::json(document_->getProcedureStatJSON());
        for (const std::string& complaint : host.session.complaints) {
            output_ += complaint;
        }
        return output_;
    }

    tests::TracedSession host{"a,t;1,x;2,y"};
    int failures = 0;

private:
    ProcedureDataSource source_;
    CommandDescriptor description_{"NAME"};
    const std::vector<QuvoVarName> unknown_{QuvoVarName("b")};
    ACAVarValidSpecs validSpecs_{true, true, true};
    ACAInputAdapter adapter_{validSpecs_, source_};
    std::optional<ACAProcDataSourceIter> cases_;
    const RecKit::Record* record_ = nullptr;
    std::optional<VarSpecObj> validator_;
    std::optional<StatJSONGenerator> document_;
    std::string name_ = "name";
    std::optional<Table> table_;
    Descendants* rows_ = nullptr;     // the host's, once they are in the dimension
    Descendants* columns_ = nullptr;  // likewise
    Cell* cell_ = nullptr;            // the last one made
    std::optional<Dimension> dimension_;
    std::optional<Cells> body_;
    std::vector<double> column_{1, 2};
    std::optional<Chart> chart_;
    std::string output_;

    const std::vector<Action> steps_{
        [this] { validSpecs_.AddVariable(0, false, true, true, true); },
        [this] { cases_.emplace(adapter_, true); },
        [this] { record_ = cases_->Next(); },
        [this] { output_ += std::to_string(*record_->GetAll()); },
        [this] { validator_.emplace("INPUT", "", description_, &source_, true); },
        [this] { validator_->ValidateVariables(unknown_, UPSpecTypes::RepeatVarOptions{0}); },
        [this] { document_.emplace("title", ""); },
        [this] { table_.emplace(&*document_, name_); },
        [this] { table_->addFootnoteRefs(0); },
        [this] { table_->add_footnote("note"); },
        [this] { rows_ = new Descendants(&*table_); },
        [this] { columns_ = new Descendants(&*table_); },
        [this] { cell_ = new Cell(&*table_, CellType{1}); },
        [this] { rows_->addCell(cell_); },
        [this] { cell_ = new Cell(&*table_, CellType{1}); },
        [this] { columns_->addCell(cell_); },
        [this] { dimension_.emplace(&*table_, rows_, columns_); },
        [this] { body_.emplace(&*table_); },
        [this] { cell_ = new Cell(&*table_, CellType{1}); },
        [this] { cell_->setValue(1.5); },
        [this] { body_->addCells({cell_}); },
        [this] { table_->set_dimensions(&*dimension_); },
        [this] { table_->set_cells(&*body_); },
        [this] { table_->addTableToProcedureJSON(); },
        [this] { chart_.emplace(*document_); },
        [this] { chart_->setDataVector(column_, true); },
        [this] { chart_->addToDataVector(column_, "numbers"); },
        [this] { chart_->addGPLGraphToProcedureJSON(); },
    };
};

TEST(CallMonitor, HasACallThatFailsDoNothingAndTakeNothing)
{
    StubbornGuest undisturbed;
    const long before = undisturbed.host.session.monitor.fallibleCount();
    const std::string expected = undisturbed.run(0);
    const long calls = undisturbed.host.session.monitor.fallibleCount() - before;
    ASSERT_EQ(calls, 30);
    for (long n = 1; n < calls; ++n) {  // the last one is the look at the document
        StubbornGuest guest;
        EXPECT_EQ(guest.run(n), expected) << n;
        EXPECT_EQ(guest.failures, 1) << n;
        EXPECT_EQ(guest.host.session.monitor.breach(), "") << n;
    }
}

}  // namespace
}  // namespace standin
