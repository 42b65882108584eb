#include "text/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace text {
namespace {

using namespace std::string_literals;

const std::string manyZeros(400, '0');

TEST(NumberReader, ReadsNumbersAsCDoes)
{
    std::vector<double> numbers;
    for (const std::string& text :
         {"+12"s, "-1."s, ".5"s, "1E+3"s, "0.1e-1"s, "0e9999"s, "1e-400"s, "+1e-99999999999999999999"s,
          "0." + manyZeros + "1", "1e-310"s, "4.9e-324"s, "1.7976931348623157e308"s}) {
        numbers.push_back(readNumber(text).value());
    }
    EXPECT_EQ(numbers,
              (std::vector<double>{12, -1, 0.5, 1000, 0.01, 0, 0, 0, 0, 1e-310, 4.9e-324, 1.7976931348623157e308}));
    EXPECT_TRUE(std::signbit(readNumber("-0").value()));
    EXPECT_EQ(readNumber("1,5", ','), 1.5);
    EXPECT_EQ(readNumber("12", ','), 12);
}

TEST(NumberReader, RefusesEverythingElse)
{
    for (const char* const text :
         {"",    "+",     "-",  ".",     "-.",  "+-1", "-+1",  " 1",  "1 ",     "1e",  "1e+",   "e1",
          ".e1", "0x1p3", "1f", "1.5.2", "1,5", "inf", "-inf", "nan", "nan(1)", "1_0", "1e309", "-1.8e308"}) {
        EXPECT_FALSE(readNumber(text)) << text;
    }
    EXPECT_FALSE(readNumber("1" + manyZeros));
    EXPECT_FALSE(readNumber("1.5", ','));
    EXPECT_FALSE(readNumber("1,5,2", ','));
}

}  // namespace
}  // namespace text
