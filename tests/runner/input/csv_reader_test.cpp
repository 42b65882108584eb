#include "runner/input/csv_reader.h"

#include "runner/input/input_error.h"
#include "tests/runner/input/data_text.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace runner {
namespace {

using namespace std::string_literals;

/// A file, and the data read from it or the reason why it is refused.
using Cases = std::vector<std::pair<std::string, std::string>>;

void expectReadings(const Cases& cases)
{
    for (const auto& [file, expected] : cases) {
        std::string reading;
        try {
            reading = tests::asText(readCsv(file, "d.csv"));
        } catch (const InputError& error) {
            reading = error.what();
        }
        EXPECT_EQ(reading, expected) << testing::PrintToString(file);
    }
}

TEST(CsvReader, ReadsTheSameCasesWhateverTheLineEndsAndBlankLines)
{
    for (const char* const file :
         {"a,b\n1,2\n3,4\n", "a,b\r\n1,2\r\n3,4", "a,b\r1,2\r3,4\r", "\xEF\xBB\xBF\na,b\n1,2\r3,4\r\n",
          "\n \t\r\n\ra,b\n\n1,2\r\n \t \r\n3,4\n\n  ", "\"a\",\"b\"\n\"1\",2\n3,\"4\""}) {
        expectReadings({{file, "a = 1 3 | b = 2 4"}});
    }
    expectReadings({{"a\n1\n\n\"\"\n2\n", "a = 1 . 2"}});
}

TEST(CsvReader, TakesTheDelimiterThatTheHeaderHasMostOf)
{
    expectReadings({{"a;b,c;d", "a = | b,c = | d ="},
                    {"a\tb\t;c", "a = | b = | ;c ="},
                    {"a,b;c", "a = | b;c ="},
                    {"a;b\tc", "a = | b\tc ="},
                    {"\"x,y,z\";b", "x,y,z = | b ="},
                    {"\t\na\tb\n\t\n  \n1\t2\n", "a = . 1 | b = . 2"}});
}

TEST(CsvReader, TellsNumbersTextsAndMissingCellsApart)
{
    expectReadings({{"a;b\n1,5;1.5\n-,5;1e1\n", "a = 1.5 -0.5 | b = 1.5 10"},
                    {"a;b\n1.234,5;1\n", "a nominal {1:1.234,5} @2:1.234,5 = 1 | b = 1"},
                    {"a,b\n\"1,5\",1\n", "a nominal {1:1,5} @2:1,5 = 1 | b = 1"},
                    {"a,b\n,1\n.,1\nna,1\nNa,1\nNaN,1\n\"NAN\",1\n7,1\n", "a = . . . . . . 7 | b = 1 1 1 1 1 1 1"},
                    {"a\nNA\n", "a = ."},
                    {"n,t\n1,2.0\n2,NA\n3,\"say \"\"hi\"\"\"\n4,2\n5,2.0\n6, NA\n",
                     "n = 1 2 3 4 5 6 | t nominal {1:2.0} {2:say \"hi\"} {3:2} {4: NA} @4:say \"hi\" = 1 . 2 3 1 4"}});
}

TEST(CsvReader, CountsLinesAsTheyStandInTheFile)
{
    const std::string brokenCells = "\n\"a\r\nb\",c\r\"1\n\r2\",3\n\n";
    expectReadings({{brokenCells + "1\n", "d.csv:8: this row has 1 cell, the header has 2 names"},
                    {"a,b\n\"\r\n\",x", "a nominal {1:\r\n} @2:\r\n = 1 | b nominal {1:x} @3:x = 1"}});
}

TEST(CsvReader, RefusesAMalformedFileWithLineAndReason)
{
    const std::string noHeader = "d.csv: the file has no header row; its first row must name the variables";
    const std::string quoteInside = "d.csv:2: a quote stands inside a cell that does not begin with one; "
                                    "put such a cell in quotes and double each quote inside";
    expectReadings(
        {{"", noHeader},
         {"\n \n", noHeader},
         {"a,,b\n", "d.csv:1: column 2 has no name"},
         {"\na,b,\n", "d.csv:2: column 3 has no name"},
         {"a,b,\"a\"\n", "d.csv:1: columns 1 and 3 have the same name, \"a\""},
         {"a,b\n1,2\n1,2,\n", "d.csv:3: this row has 3 cells, the header has 2 names"},
         {"a,b\n1,\"2\n3,4\n", "d.csv:2: the quote that opens a cell here is never closed"},
         {"a,b\n1,2\"\n", quoteInside},
         {"a,b\n1, \"2\"\n", quoteInside},
         {"a,b\n\"1\n\"x,2\n",
          "d.csv:3: something follows the closing quote of a cell; double each quote that belongs to the cell"},
         {"\xFF\xFE\0\0a"s, "d.csv: this file is UTF-32 (little-endian); save it as UTF-8"},
         {"\0\0\xFE\xFF"s, "d.csv: this file is UTF-32 (big-endian); save it as UTF-8"},
         {"\xFF\xFE\x61\0"s, "d.csv: this file is UTF-16 (little-endian); save it as UTF-8"},
         {"\xFE\xFF\0a"s, "d.csv: this file is UTF-16 (big-endian); save it as UTF-8"},
         {"a,b\r\n1,2\r\ncaf\xE9,2\r\n", "d.csv:3: byte 0xE9 is not UTF-8; save the file as UTF-8"},
         {"a\n12345678901\0"s, "d.csv:2: byte 0x00 is not UTF-8; save the file as UTF-8"}});
}

}  // namespace
}  // namespace runner
