#include "host/output.h"
#include "standin/session/session.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// No table of the module hides its title.
TEST(Table, HidesItsTitleWhereItIsAskedTo)
{
    const standin::Session session;
    StatJSONGenerator document("Title", "");
    std::string name = "name";
    Table table(&document, name);
    table.hide_title(true);
    Dimension dimension(&table, new Descendants(&table), new Descendants(&table));
    Cells body(&table);
    table.set_dimensions(&dimension);
    table.set_cells(&body);
    table.addTableToProcedureJSON();
    EXPECT_TRUE(document.getProcedureStatJSON()["objects"][0]["hideTitle"].GetBool());
}

}  // namespace
