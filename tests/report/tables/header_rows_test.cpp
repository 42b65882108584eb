#include "report/tables/header_rows.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace report {
namespace {

using testing::ElementsAre;

TEST(HeaderRows, SpanColumnsUnderGroupsAndRowsWithoutThem)
{
    const auto shape = [](const TableGrid& grid) {
        std::vector<std::string> rows;
        for (const auto& row : headerRowsOf(grid)) {
            std::string& text = rows.emplace_back();
            for (const HeaderCell& cell : row) {
                text += "[" + cell.text + " " + std::to_string(cell.columnCount) + "x" + std::to_string(cell.rowCount) +
                        "]";
            }
        }
        return rows;
    };
    TableGrid grid;
    grid.columnHeaders = {"a", "b", "c", "d"};
    EXPECT_THAT(shape(grid), ElementsAre("[ 1x1][a 1x1][b 1x1][c 1x1][d 1x1]"));
    grid.groupRows = {{{"G", 1, 2}}};
    grid.rowsLabel = "rows";
    EXPECT_THAT(shape(grid), ElementsAre("[rows 1x2][a 1x2][G 2x1][d 1x2]", "[b 1x1][c 1x1]"));
    grid.groupRows = {{{"G", 1, 2}}, {{"H", 2, 2}}};
    EXPECT_THAT(shape(grid), ElementsAre("[rows 1x3][a 1x3][G 2x1][ 1x1]", "[b 1x2][H 2x1]", "[c 1x1][d 1x1]"));
}

}  // namespace
}  // namespace report
