// The host checks its guest: here the guest breaks one rule of the contract after the other, or keeps them all while
// one call after the other fails.
#include "host/command_parser.h"
#include "host/language_paths.h"
#include "tests/support/breaches.h"
#include "tests/support/json_text.h"
#include "tests/support/traced_session.h"

#include <gmock/gmock.h>

#include <cmath>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace standin {
namespace {

using testing::ThrowsMessage;

struct Hosted {
    tests::TracedSession host{"a,b;1,2;3,4"};
};

struct HostedGuest : Hosted, tests::Guest {};

TEST(Contract, NamesTheOperationThatBreaksItAndEndsThere)
{
    for (const auto& [name, commit, error, isRaised] : tests::breaches()) {
        SCOPED_TRACE(name);
        HostedGuest guest;
        const auto raisesIt = ThrowsMessage<ContractBreach>(error);
        const auto breakIt = [&guest, commit = commit] { commit(guest); };
        if (isRaised) {
            EXPECT_THAT(breakIt, raisesIt);
        } else {
            EXPECT_NO_THROW(breakIt());
        }
        EXPECT_EQ(guest.host.session.monitor.breach(), error);
        EXPECT_THAT([] { const OLang language; }, raisesIt);
        EXPECT_THAT([] { const OLang language; }, raisesIt) << "and from then on";
    }
}

TEST(ContractKept, WithAReferenceThatNoFootnoteFollowsAndHeadersOverAnEmptyBody)
{
    HostedGuest guest;
    guest.table->addFootnoteRefs(0);
    EXPECT_NO_THROW(guest.addTable(0, 2, {}));
}

TEST(ContractKept, LeavesNothingToReadInARecordThatIsOver)
{
    HostedGuest guest;
    const double* kept = guest.readRecord().record->GetAll();
    EXPECT_EQ(*kept, 2.0);
    guest.readRecord();
    EXPECT_TRUE(std::isnan(*kept));
}

/// A guest of many steps, each of one call that may fail; a step that fails is taken once more.
struct StubbornGuest : HostedGuest {
    /// Everything that comes out.
    std::string run()
    {
        for (const auto& step : steps) {
            try {
                step();
            } catch (const std::runtime_error&) {
                ++failures;
                step();
            }
        }
        output += std::to_string(host.session.complaints.size());
        return output + tests::json(document->getProcedureStatJSON());
    }

    int failures = 0;
    std::string output;
    CommandDescriptor description{"NAME"};
    VarSpecObj validator{"INPUT", "", description, &source, true};
    const std::vector<QuvoVarName> unknown{QuvoVarName("c")};
    std::vector<Descendants*> groups;  ///< the host's, once they are in the dimension
    std::vector<Cell*> cells;          ///< likewise

    const std::vector<std::function<void()>> steps{
        [this] { validSpecs->AddVariable(0, false, true, true, true); },
        [this] { iterator.emplace(*adapter, true); },
        [this] { record = iterator->Next(); },
        [this] { output += std::to_string(record->Size()) + std::to_string(*record->GetAll()); },
        [this] { validator.ValidateVariables(unknown, UPSpecTypes::RepeatVarOptions{0}); },
        [this] { table->addFootnoteRefs(0); },
        [this] { table->add_footnote("note"); },
        [this] { groups.push_back(new Descendants(&*table)); },
        [this] { groups.push_back(new Descendants(&*table)); },
        [this] { cells.push_back(new Cell(&*table, CellType{1})); },
        [this] { groups[0]->addCell(cells[0]); },
        [this] { cells.push_back(new Cell(&*table, CellType{1})); },
        [this] { groups[1]->addCell(cells[1]); },
        [this] { cells.push_back(new Cell(&*table, CellType{1})); },
        [this] { cells[2]->setValue(1.5); },
        [this] { body->addCells({cells[2]}); },
        [this] { dimension.emplace(&*table, groups[0], groups[1]); },
        [this] { table->addTableToProcedureJSON(); },
        [this] { chart.setDataVector(numbers, true); },
        [this] { chart.addToDataVector(numbers, "numbers"); },
        [this] { chart.addGPLGraphToProcedureJSON(); },
    };
};

TEST(ContractKept, WhenACallThatFailsHasDoneNothingAndTakenNothing)
{
    StubbornGuest undisturbed;
    const long before = undisturbed.host.session.monitor.fallibleCount();
    const std::string expected = undisturbed.run();
    const long calls = undisturbed.host.session.monitor.fallibleCount() - before;
    ASSERT_EQ(calls, 24);
    for (long n = 1; n < calls; ++n) {  // the last one is the look at the document
        StubbornGuest guest;
        guest.host.session.monitor.failAtCall(n, [] { throw std::runtime_error("ordered"); });
        EXPECT_EQ(guest.run(), expected) << n;
        EXPECT_EQ(guest.failures, 1) << n;
        EXPECT_EQ(guest.host.session.monitor.breach(), "") << n;
    }
}

}  // namespace
}  // namespace standin
