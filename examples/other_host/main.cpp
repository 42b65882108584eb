// other-host-run DATA.csv COMMANDS LANGUAGE TRACE: runs each command of a file on the data and prints the documents,
// one to a line. TRACE is a file for what the module did with the host's objects.
#include "host/missing_value.h"
#include "this_host.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <regex>
#include <sstream>

/// The module's one entry point.
extern "C" void BLDATMAN();

namespace {

std::vector<std::string> cellsOf(const std::string& line)
{
    std::vector<std::string> cells;
    std::istringstream rest(line.substr(0, line.find('\r')) + ',');
    for (std::string cell; std::getline(rest, cell, ',');) {
        cells.push_back(cell);
    }
    return cells;
}

/// Names in the first line, a case in each further one: numbers between commas, nothing for a missing value.
void readData(std::ifstream file)
{
    std::string line;
    std::getline(file, line);
    for (const std::string& name : cellsOf(line)) {
        theHost.variables.push_back({name});
    }
    while (std::getline(file, line)) {
        std::vector<double>& values = theHost.cases.emplace_back();
        for (const std::string& cell : cellsOf(line)) {
            values.push_back(cell.empty() ? systemMissingValue : std::atof(cell.c_str()));
        }
    }
}

/// Each command ends in a semicolon; a comment runs from '#' to the end of its line.
void runCommands(std::ifstream file)
{
    static const std::regex pattern("#[^\n]*|[=():;]|[^\\s=():;#]+");
    const std::string text(std::istreambuf_iterator<char>(file), {});
    for (std::sregex_iterator token(text.begin(), text.end(), pattern); token != std::sregex_iterator(); ++token) {
        if (token->str() == ";") {
            BLDATMAN();
            theHost.command.clear();
        } else if (token->str() != "BLDATMAN" && !token->str().starts_with('#')) {
            theHost.command.push_back(token->str());
        }
    }
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 5) {
        std::cerr << "usage: other-host-run DATA.csv COMMANDS LANGUAGE TRACE\n";
        return 2;
    }
    readData(std::ifstream(argv[1]));
    theHost.languageFolder = std::string("C:\\host\\texts\\") + argv[3] + "\\";
    runCommands(std::ifstream(argv[2]));
    std::ranges::copy(theHost.documents, std::ostream_iterator<std::string>(std::cout, "\n"));
    std::ranges::copy(theHost.complaints, std::ostream_iterator<std::string>(std::cerr, "\n"));
    std::ofstream trace(argv[4]);
    std::ranges::copy(theHost.trace, std::ostream_iterator<std::string>(trace, "\n"));
    return theHost.documents.empty() ? 1 : 0;
}
