#include "report/tables/header_rows.h"

#include <gmock/gmock.h>

namespace report {
namespace {

using Kind = HeaderCell::Kind;
using testing::ElementsAre;
using testing::FieldsAre;

TEST(HeaderRows, SpanColumnsUnderGroupsAndRowsWithoutThem)
{
    const TableGrid grid = {{{{"G", 1, 2}}, {{"H", 2, 2}}}, {"a", "b", "c", "d"}, "rows", {}, {}};
    EXPECT_THAT(headerRowsOf(grid),
                ElementsAre(ElementsAre(FieldsAre(Kind::Corner, "rows", 1, 3), FieldsAre(Kind::Column, "a", 1, 3),
                                        FieldsAre(Kind::Group, "G", 2, 1), FieldsAre(Kind::Corner, "", 1, 1)),
                            ElementsAre(FieldsAre(Kind::Column, "b", 1, 2), FieldsAre(Kind::Group, "H", 2, 1)),
                            ElementsAre(FieldsAre(Kind::Column, "c", 1, 1), FieldsAre(Kind::Column, "d", 1, 1))));
}

}  // namespace
}  // namespace report
