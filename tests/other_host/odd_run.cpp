#include "tests/other_host/odd_run.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cstdlib>
#include <limits>
#include <regex>
#include <sstream>

extern "C" void BLDATMAN();

namespace tests {

namespace {

void setData(const std::string& data)
{
    Texts rows = split(data, ';');
    for (const std::string& name : split(rows.front(), ',')) {
        theHost.variables.push_back({name});
    }
    rows.erase(rows.begin());
    for (const std::string& row : rows) {
        std::vector<double>& values = theHost.cases.emplace_back();
        for (const std::string& cell : split(row, ',')) {
            if (std::isalpha(cell.front()) != 0) {
                theHost.variables.at(values.size()).level = 1;
            }
            values.push_back(cell == "." ? std::numeric_limits<double>::lowest() : std::atof(cell.c_str()));
        }
    }
}

}  // namespace

Texts split(const std::string& text, char separator)
{
    Texts pieces;
    std::istringstream rest(text);
    for (std::string piece; std::getline(rest, piece, separator);) {
        pieces.push_back(piece);
    }
    return pieces;
}

Outcome run(const std::string& data, const std::string& command, const Oddities& oddities, const std::string& language)
{
    theHost = {};
    setData(data);
    static const std::regex token("[=():]|[^\\s=():]+");
    theHost.command.assign(std::sregex_token_iterator(command.begin(), command.end(), token), {});
    theHost.languageCode = language;
    theHost.languageFolder = "texts";  // one component: the code counts
    theHost.oddities = oddities;
    testing::internal::CaptureStderr();
    BLDATMAN();
    return {theHost.documents, testing::internal::GetCapturedStderr()};
}

}  // namespace tests
