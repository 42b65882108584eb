// Whole commands, call by call: what the module does on the host, what it writes, and the plots that come of it, each
// held against a stored file. With REWRITE_STORED_CALLS set the files are written anew, to be reviewed as a change.
//
// A file begins with its data, output language and command. Only the one of the description holds the calls before the
// parse: they are the same for every command.
#include "tests/support/command_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace {

using tests::Host;

std::vector<std::string> linesOf(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

/// The lines of a file that begins with these three.
std::vector<std::string> outcomeOf(const std::string& data, const std::string& language, const std::string& command,
                                   bool withDescription)
{
    std::vector<std::string> lines = {data, language, command};
    Host host(data);
    host.session.setLanguage(language);
    const tests::Outcome outcome = host.run(command);
    std::istringstream errors(outcome.errors);
    for (std::string line; std::getline(errors, line);) {
        lines.push_back(line);
    }
    const auto parse = std::ranges::find(outcome.trace, "UniversalParser::getCommandSpecifications\t[]");
    std::copy(withDescription ? outcome.trace.begin() : parse, outcome.trace.end(), std::back_inserter(lines));
    for (rapidjson::SizeType i = 0; outcome.delivered && i < host.document()["objects"].Size(); ++i) {
        if (host.object(i).HasMember("gpl")) {
            lines.push_back(tests::json(host.object(i)["data"]));
            for (const auto& statement : host.object(i)["gpl"].GetArray()) {
                lines.emplace_back(statement.GetString());
            }
        }
    }
    return lines;
}

TEST(StoredCalls, AreWhatWholeCommandsMake)
{
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(BLDATMAN_STORED_CALLS)) {
        const std::vector<std::string> stored = linesOf(entry.path());
        ASSERT_GE(stored.size(), 3U) << entry.path();
        const auto lines = outcomeOf(stored[0], stored[1], stored[2], entry.path().stem() == "description");
        const auto [expected, actual] = std::ranges::mismatch(stored, lines);
        EXPECT_TRUE(expected == stored.end() && actual == lines.end())
            << entry.path() << ", line " << expected - stored.begin() + 1
            << "\nstored: " << (expected == stored.end() ? "the end" : *expected)
            << "\nnow:    " << (actual == lines.end() ? "the end" : *actual);
        if (std::getenv("REWRITE_STORED_CALLS") != nullptr) {
            std::ofstream file(entry.path(), std::ios::binary);
            std::ranges::copy(lines, std::ostream_iterator<std::string>(file, "\n"));
        }
        ++count;
    }
    EXPECT_GE(count, 20U);
}

}  // namespace
