#include "standin/session/session.h"

#include "host/common_areas.h"
#include "host/language_paths.h"
#include "host/procedure.h"
#include "tests/support/traced_session.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace standin {
namespace {

TEST(Session, IsTheYoungestOne)
{
    tests::TracedSession older;
    {
        tests::TracedSession younger;
        pvGetCmnBpr();
        EXPECT_EQ(older.takeTrace().size() + 2 * younger.takeTrace().size(), 2U);
    }
    pvGetCmnBpr();
    EXPECT_EQ(older.takeTrace().size(), 1U);
}

TEST(Session, IsMissedOnlyWhereItIsNeeded)
{
    EXPECT_NO_THROW(BpProcedure("NAME", 10));
    EXPECT_THROW(OLang(), std::logic_error);
}

TEST(Session, FindsAHostObjectThatIsStillAliveAfterACommand)
{
    static std::unique_ptr<OLang> forgotten;
    Session session;
    EXPECT_FALSE(session.run([] { const OLang language; }));
    EXPECT_EQ(session.monitor.breach(), "");
    session.run([] { forgotten = std::make_unique<OLang>(); });
    EXPECT_EQ(session.monitor.breach(), "OLang: a host object is still alive after the command");
    forgotten.reset();
}

}  // namespace
}  // namespace standin
