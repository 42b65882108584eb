#include "runner/input/command_file.h"

#include "runner/input/input_error.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace runner {
namespace {

/// Each command after the line on which it begins, or why the file is refused.
std::string cutOf(const std::string& file)
{
    std::string cut;
    try {
        for (const standin::CommandText& command : cutCommands(file, "f.bld")) {
            EXPECT_FALSE(command.nameMayBeMissing);
            cut += "|" + std::to_string(standin::placeOf(*command.text, command.begin).line) + ": " +
                   command.text->substr(command.begin, command.end - command.begin);
        }
    } catch (const InputError& error) {
        return error.what();
    }
    return cut;
}

TEST(CommandFile, IsCutAtSemicolonsOutsideQuotesAndCommentsOrRefused)
{
    const std::vector<std::pair<std::string, std::string>> cuts{
        {";; # no;\n A \"x;\"\"y\" z # not; here \"\n q;; ;B;\r\n# x\r\nC\r\n  D;\r\n",
         "|2: A \"x;\"\"y\" z # not; here \"\n q;|3: B;|5: C\r\n  D;"},
        {"", "f.bld: the file holds no command"},
        {" ;\n;# A;\n", "f.bld: the file holds no command"},
        {"A;\r\n\r\n # c\r\nB\r\n x # ;", "f.bld:4: the command that begins here is not closed by a semicolon"},
        {"A;\rB \"x;\r y;", "f.bld:2: the quote that begins here is not closed"},
        {"A;\nB\xE9;", "f.bld:2: a byte here is not UTF-8"},
    };
    for (const auto& [file, cut] : cuts) {
        EXPECT_EQ(cutOf(file), cut);
    }
}

}  // namespace
}  // namespace runner
