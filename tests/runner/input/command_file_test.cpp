#include "runner/input/command_file.h"

#include "runner/input/input_error.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace runner {
namespace {

TEST(CommandFile, IsCutAtSemicolonsOutsideQuotesAndComments)
{
    std::string cut;
    for (const standin::CommandText& command :
         cutCommands(";; # no;\n A \"x;\"\"y\" z # not; here \"\n q;; ;B;C;\n", "f.bld")) {
        EXPECT_FALSE(command.nameMayBeMissing);
        cut += "|" + command.text->substr(command.begin, command.end - command.begin);
    }
    EXPECT_EQ(cut, "|A \"x;\"\"y\" z # not; here \"\n q;|B;|C;");
}

TEST(CommandFile, KeepsThePlacesOfTheWholeFile)
{
    const std::string text = "WIDGET INPUT=a;\r\n# x\r\nWIDGET INPUT=b\r\n  SET(FLOG);\r\n";
    const std::vector<standin::CommandText> commands = cutCommands(text, "f.bld");
    ASSERT_EQ(commands.size(), 2U);
    EXPECT_EQ(commands[0].begin, 0U);
    EXPECT_EQ(commands[1].end, text.find("\r\n", text.find("FLOG")));
    EXPECT_EQ(standin::placeOf(text, commands[1].begin).line, 3U);
}

TEST(CommandFile, IsRefusedWhereItCannotBeCut)
{
    const std::vector<std::pair<std::string, std::string>> refusals{
        {"", "f.bld: the file holds no command"},
        {" ;\n;# A;\n", "f.bld: the file holds no command"},
        {"A;\r\n\r\n # c\r\nB\r\n x # ;", "f.bld:4: the command that begins here is not closed by a semicolon"},
        {"A;\rB \"x;\r y;", "f.bld:2: the quote that begins here is not closed"},
        {"A;\nB\xE9;", "f.bld:2: a byte here is not UTF-8"},
    };
    for (const auto& [text, refusal] : refusals) {
        try {
            cutCommands(text, "f.bld");
            ADD_FAILURE() << text << " was cut";
        } catch (const InputError& error) {
            EXPECT_EQ(error.what(), refusal);
        }
    }
}

}  // namespace
}  // namespace runner
