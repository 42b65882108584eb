#include "standin/session/session.h"

#include "host/language_paths.h"
#include "host/procedure.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace standin {
namespace {

TEST(Session, IsTheYoungestOneAndIsMissedOnlyWhereItIsNeeded)
{
    EXPECT_NO_THROW(BpProcedure("NAME", 10));
    EXPECT_THROW(OLang(), std::logic_error);
    const Session older;
    {
        const Session younger;
        EXPECT_EQ(Session::running(), &younger);
    }
    EXPECT_EQ(Session::running(), &older);
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
