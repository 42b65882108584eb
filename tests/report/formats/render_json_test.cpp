#include "report/formats/render_json.h"

#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <bit>
#include <cstdint>
#include <limits>
#include <list>

namespace report {
namespace {

using Limits = std::numeric_limits<double>;

TEST(RenderJson, WritesNumbersThatReadBackToTheSameDouble)
{
    for (const double number : {0.1, 1.0 / 3.0, 0.1 + 0.2, -0.0, 1e22, 123456789012345678.0, Limits::denorm_min(),
                                Limits::min(), Limits::max(), -Limits::max()}) {
        std::list<rapidjson::Document> documents(1);
        documents.front().SetDouble(number);
        rapidjson::Document read;
        read.Parse<rapidjson::kParseFullPrecisionFlag>(renderJson(documents).c_str());
        ASSERT_TRUE(read["documents"][0].IsDouble());
        EXPECT_EQ(std::bit_cast<std::uint64_t>(read["documents"][0].GetDouble()), std::bit_cast<std::uint64_t>(number));
    }
}

TEST(RenderJson, WritesWhatIsNoNumberAsTextAndEveryDocumentInOrder)
{
    std::list<rapidjson::Document> documents(4);
    auto document = documents.begin();
    (document++)->SetDouble(Limits::quiet_NaN());
    (document++)->SetDouble(Limits::infinity());
    (document++)->SetDouble(-Limits::infinity());
    document->SetString("体\"\n");
    EXPECT_EQ(renderJson(documents), "{\n \"documents\": [\"NaN\", \"Infinity\", \"-Infinity\", \"体\\\"\\n\"]\n}\n");
}

}  // namespace
}  // namespace report
