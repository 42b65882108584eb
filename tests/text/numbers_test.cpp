#include "text/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace text {
namespace {

TEST(NumberReader, ReadsNumbersAsCDoes)
{
    EXPECT_EQ(readNumber("+12"), 12);
    EXPECT_EQ(readNumber("-1."), -1);
    EXPECT_EQ(readNumber(".5"), 0.5);
    EXPECT_EQ(readNumber("1E+3"), 1000);
    EXPECT_EQ(readNumber("0.1e-1"), 0.01);
    EXPECT_TRUE(std::signbit(readNumber("-0").value()));
    EXPECT_EQ(readNumber("1,5", ','), 1.5);
    EXPECT_EQ(readNumber("12", ','), 12);
}

TEST(NumberReader, RefusesEverythingElse)
{
    for (const char* const text : {"",   "+",   "-",     ".",  "-.",    "+-1", "-+1", " 1",   "1 ",  "1e",     "1e+",
                                   "e1", ".e1", "0x1p3", "1f", "1.5.2", "1,5", "inf", "-inf", "nan", "nan(1)", "1_0"}) {
        EXPECT_FALSE(readNumber(text)) << text;
    }
    EXPECT_FALSE(readNumber("1.5", ','));
    EXPECT_FALSE(readNumber("1,5,2", ','));
}

TEST(NumberReader, KeepsTheTooSmallAndRefusesTheTooLarge)
{
    const std::string manyZeros(400, '0');
    EXPECT_EQ(readNumber("4.9e-324"), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(readNumber("1e-310"), 1e-310);
    EXPECT_EQ(readNumber("1e-400"), 0.0);
    EXPECT_EQ(readNumber("+1e-99999999999999999999"), 0.0);
    EXPECT_EQ(readNumber("0." + manyZeros + "1"), 0.0);
    EXPECT_EQ(readNumber("0e999999"), 0.0);
    EXPECT_EQ(readNumber("1.7976931348623157e308"), std::numeric_limits<double>::max());
    for (const std::string& text : {std::string("1e309"), std::string("-1.8e308"), "1" + manyZeros}) {
        EXPECT_FALSE(readNumber(text)) << text;
    }
}

}  // namespace
}  // namespace text
