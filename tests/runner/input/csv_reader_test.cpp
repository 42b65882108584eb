#include "runner/input/csv_reader.h"

#include "host/missing_value.h"
#include "runner/input/input_error.h"
#include "text/utf8.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace runner {
namespace {

using namespace std::string_literals;
namespace levels = standin::levels;
using Values = std::vector<double>;

constexpr double missing = systemMissingValue;

/// What the reader says of a malformed file; empty where it accepts the file.
std::string complaintAbout(std::string_view text)
{
    try {
        readCsv(text, "d.csv");
    } catch (const InputError& error) {
        return error.what();
    }
    return "";
}

std::vector<std::string> namesIn(const standin::DataSet& dataSet)
{
    std::vector<std::string> names;
    for (const standin::Variable& variable : dataSet.variables) {
        names.push_back(variable.name);
    }
    return names;
}

TEST(CsvReader, ReadsTheSameCasesWhateverTheLineEndsAndBlankLines)
{
    for (const std::string_view text :
         {"a,b\n1,2\n3,4\n", "a,b\r\n1,2\r\n3,4", "a,b\r1,2\r3,4\r", "\xEF\xBB\xBF\na,b\n1,2\r3,4\r\n",
          "\n \t\r\n\ra,b\n\n1,2\r\n \t \r\n3,4\n\n  ", "\"a\",\"b\"\n\"1\",2\n3,\"4\""}) {
        const standin::DataSet dataSet = readCsv(text, "d.csv");
        EXPECT_EQ(dataSet.caseCount, 2U) << text;
        ASSERT_EQ(namesIn(dataSet), (std::vector{"a"s, "b"s})) << text;
        EXPECT_EQ(dataSet.variables[0].values, (Values{1, 3})) << text;
        EXPECT_EQ(dataSet.variables[1].values, (Values{2, 4})) << text;
    }
}

TEST(CsvReader, SkipsBlankLinesOfOneColumnButKeepsAQuotedEmptyCell)
{
    EXPECT_EQ(readCsv("a\n1\n\n\"\"\n2\n", "d.csv").variables[0].values, (Values{1, missing, 2}));
}

TEST(CsvReader, TakesTheDelimiterThatTheHeaderHasMostOf)
{
    const std::map<std::string, std::vector<std::string>> headers{
        {"a;b,c;d", {"a", "b,c", "d"}}, {"a\tb\t;c", {"a", "b", ";c"}},  {"a,b;c", {"a", "b;c"}},
        {"a;b\tc", {"a", "b\tc"}},      {"\"x,y,z\";b", {"x,y,z", "b"}}, {"a", {"a"}}};
    for (const auto& [header, names] : headers) {
        EXPECT_EQ(namesIn(readCsv(header, "d.csv")), names);
    }
}

TEST(CsvReader, TakesALineOfTabsForCellsWhereTheTabIsTheDelimiter)
{
    EXPECT_EQ(readCsv("\t\na\tb\n\t\n  \n1\t2\n", "d.csv").variables[1].values, (Values{missing, 2}));
}

TEST(CsvReader, ReadsADecimalCommaUnlessTheCommaIsTheDelimiter)
{
    EXPECT_EQ(readCsv("a;b\n1,5;1.5\n-,5;1e1\n", "d.csv").variables[0].values, (Values{1.5, -0.5}));
    EXPECT_EQ(readCsv("a;b\n1.234,5;1\n", "d.csv").variables[0].firstText->text, "1.234,5");
    EXPECT_EQ(readCsv("a,b\n\"1,5\",1\n", "d.csv").variables[0].firstText->text, "1,5");
}

TEST(CsvReader, KnowsEverySpellingOfAMissingCell)
{
    const standin::DataSet dataSet = readCsv("a,b\n,1\n.,1\nna,1\nNa,1\nNaN,1\n\"NAN\",1\n7,1\n", "d.csv");
    EXPECT_EQ(dataSet.variables[0].values, (Values{missing, missing, missing, missing, missing, missing, 7}));
    EXPECT_FALSE(dataSet.variables[0].firstText);
    EXPECT_EQ(readCsv("a\nNA\n", "d.csv").variables[0].level, levels::scale);
}

TEST(CsvReader, MakesAColumnWithOneTextAColumnOfTexts)
{
    const standin::DataSet dataSet = readCsv("n,t\n1,2.0\n2,NA\n3,\"say \"\"hi\"\"\"\n4,2\n5,2.0\n6, NA\n", "d.csv");
    const standin::Variable& texts = dataSet.variables[1];
    EXPECT_EQ(texts.level, levels::nominal);
    EXPECT_EQ(texts.values, (Values{1, missing, 2, 3, 1, 4}));
    EXPECT_EQ(texts.valueLabels, (std::map<double, std::string>{{1, "2.0"}, {2, "say \"hi\""}, {3, "2"}, {4, " NA"}}));
    EXPECT_EQ(texts.firstText->line, 4U);
    EXPECT_EQ(texts.firstText->text, "say \"hi\"");
    EXPECT_EQ(dataSet.variables[0].values, (Values{1, 2, 3, 4, 5, 6}));
}

TEST(CsvReader, AcceptsAHeaderWithoutRows)
{
    const standin::DataSet dataSet = readCsv("a,b", "d.csv");
    EXPECT_EQ(dataSet.caseCount, 0U);
    EXPECT_EQ(dataSet.variables.size(), 2U);
    EXPECT_FALSE(dataSet.variables[0].firstText);
}

TEST(CsvReader, CountsLinesAsTheyStandInTheFile)
{
    const std::string brokenCells = "\n\"a\r\nb\",c\r\"1\n\r2\",3\n\n";
    EXPECT_EQ(readCsv(brokenCells + "x,y\n", "d.csv").variables[1].firstText->line, 8U);
    EXPECT_EQ(readCsv("a,b\n\"\r\n\",x", "d.csv").variables[1].firstText->line, 3U);
    EXPECT_EQ(complaintAbout(brokenCells + "1\n"), "d.csv:8: this row has 1 cell, the header has 2 names");
}

TEST(CsvReader, RefusesAMalformedFileWithLineAndReason)
{
    const std::map<std::string, std::string> complaints{
        {"", "d.csv: the file has no header row"},
        {"\n \n", "d.csv: the file has no header row"},
        {"a,,b\n", "d.csv:1: column 2 has no name"},
        {"\na,b,\n", "d.csv:2: column 3 has no name"},
        {"a,b,\"a\"\n", "d.csv:1: columns 1 and 3 have the same name, \"a\""},
        {"a,b\n1,2\n1,2,\n", "d.csv:3: this row has 3 cells, the header has 2 names"},
        {"a,b\n1,\"2\n3,4\n", "d.csv:2: the quote that opens a cell here is never closed"},
        {"a,b\n1,2\"\n", "d.csv:2: a quote stands inside a cell"},
        {"a,b\n1, \"2\"\n", "d.csv:2: a quote stands inside a cell"},
        {"a,b\n\"1\n\"x,2\n", "d.csv:3: something follows the closing quote"},
    };
    for (const auto& [text, complaint] : complaints) {
        EXPECT_TRUE(complaintAbout(text).starts_with(complaint)) << text << complaintAbout(text);
    }
}

TEST(CsvReader, RefusesAnotherEncodingByItsNameOrItsFirstBadByte)
{
    const std::map<std::string, std::string> complaints{
        {"\xFF\xFE\0\0a"s, "d.csv: this file is UTF-32 (little-endian); save it as UTF-8"},
        {"\0\0\xFE\xFF"s, "d.csv: this file is UTF-32 (big-endian); save it as UTF-8"},
        {"\xFF\xFE"
         "a\0"s,
         "d.csv: this file is UTF-16 (little-endian); save it as UTF-8"},
        {"\xFE\xFF\0a"s, "d.csv: this file is UTF-16 (big-endian); save it as UTF-8"},
        {"a,b\r\n1,2\r\ncaf\xE9,2\r\n", "d.csv:3: byte 0xE9 is not UTF-8; save the file as UTF-8"},
        {"a\n12345678901\0"s, "d.csv:2: byte 0x00 is not UTF-8; save the file as UTF-8"},
    };
    for (const auto& [text, complaint] : complaints) {
        EXPECT_EQ(complaintAbout(text), complaint);
    }
}

TEST(Utf8, FindsTheFirstByteThatIsNotWellFormed)
{
    const std::map<std::string, std::size_t> texts{
        {"\x80"s, 0},         {"\xC0\x80"s, 0},         {"\xC1\xBF"s, 0},         {"\xE0\x9F\xBF"s, 0},
        {"\xED\xA0\x80"s, 0}, {"\xF0\x8F\xBF\xBF"s, 0}, {"\xF4\x90\x80\x80"s, 0}, {"\xF5\x80\x80\x80"s, 0},
        {"\xFF"s, 0},         {"12345678\0"s, 8},       {"123456\0008"s, 6},      {"\xC3\xA9\xE2\x82"s, 2},
        {"a\xE2\x82!"s, 1},   {"a\xF0\x9F\x98("s, 1},   {"1234567\xE9 12345"s, 7}};
    for (const auto& [text, offset] : texts) {
        EXPECT_EQ(text::firstBadUtf8Byte(text), offset) << testing::PrintToString(text);
        EXPECT_EQ(text::firstBadUtf8Byte("12345678abcdefg" + text), offset + 15) << testing::PrintToString(text);
    }
}

TEST(Utf8, DecodesWhatTheEncodingCanHold)
{
    const std::map<std::string, char32_t> characters{{"\x01", 0x1},
                                                     {"\x7F", 0x7F},
                                                     {"\xC2\x80", 0x80},
                                                     {"\xDF\xBF", 0x7FF},
                                                     {"\xE0\xA0\x80", 0x800},
                                                     {"\xED\x9F\xBF", 0xD7FF},
                                                     {"\xEE\x80\x80", 0xE000},
                                                     {"\xEF\xBF\xBF", 0xFFFF},
                                                     {"\xF0\x90\x80\x80", 0x10000},
                                                     {"\xF4\x8F\xBF\xBF", 0x10FFFF}};
    for (const auto& [text, value] : characters) {
        const std::string inside = "ab" + text + "c";
        EXPECT_FALSE(text::firstBadUtf8Byte(inside));
        EXPECT_EQ(text::codePointAt(inside, 2).value, value);
        EXPECT_EQ(text::codePointAt(inside, 2).length, text.size());
        EXPECT_EQ(text::countCodePoints(inside), 4U);
    }
}

}  // namespace
}  // namespace runner
