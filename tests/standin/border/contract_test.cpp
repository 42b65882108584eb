// The host checks its guest: here the guest breaks one rule of the contract after the other.
#include "host/language_paths.h"
#include "standin/session/session.h"
#include "tests/support/breaches.h"
#include "tests/support/traced_session.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>
#include <string>

namespace standin {
namespace {

using tests::Breach;

struct Hosted {
    tests::TracedSession host{"a,b;1,2;3,4"};
};

struct HostedGuest : Hosted, tests::Guest {};

std::string breachRaisedBy(const std::function<void()>& action)
{
    try {
        action();
    } catch (const ContractBreach& breach) {
        return breach.what();
    }
    return "";
}

class Contract : public testing::TestWithParam<Breach> {};

TEST_P(Contract, NamesTheOperationThatBreaksItAndEndsThere)
{
    HostedGuest guest;
    EXPECT_EQ(breachRaisedBy([&guest] { GetParam().commit(guest); }), GetParam().isRaised ? GetParam().error : "");
    EXPECT_EQ(guest.host.session.monitor.breach(), GetParam().error);
    for (int again = 0; again < 2; ++again) {
        EXPECT_EQ(breachRaisedBy([] { const OLang language; }), GetParam().error);
    }
}

std::string nameOf(const testing::TestParamInfo<Breach>& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Guest, Contract, testing::ValuesIn(tests::breaches()), nameOf);

TEST(ContractKept, WithAReferenceThatNoFootnoteFollows)
{
    HostedGuest guest;
    guest.table->addFootnoteRefs(0);
    EXPECT_NO_THROW(guest.addTable(1, 1, {1}));
}

TEST(ContractKept, WithHeadersWithoutLeavesAndAnEmptyBody)
{
    HostedGuest guest;
    EXPECT_NO_THROW(guest.addTable(0, 2, {}));
}

TEST(ContractAtDeletion, LeavesNothingToReadInARecordThatIsOver)
{
    HostedGuest guest;
    const double* kept = guest.readRecord().record->GetAll();
    EXPECT_EQ(*kept, 2.0);
    guest.readRecord();
    EXPECT_TRUE(std::isnan(*kept));
}

std::unique_ptr<OLang> forgotten;

TEST(ContractAfterACommand, FindsAHostObjectThatIsStillAlive)
{
    Session session;
    EXPECT_FALSE(session.run([] { const OLang language; }));
    EXPECT_EQ(session.monitor.breach(), "");
    session.run([] { forgotten = std::make_unique<OLang>(); });
    EXPECT_EQ(session.monitor.breach(), "OLang: a host object is still alive after the command");
    forgotten.reset();
}

}  // namespace
}  // namespace standin
