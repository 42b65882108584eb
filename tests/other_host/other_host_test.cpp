// The module in the second host, which does what the stand-in never does: refuses, fails half-way, loses records.
#include "tests/other_host/odd_run.h"

#include <gmock/gmock.h>

#include <rapidjson/document.h>

#include <cfenv>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <regex>

namespace {

using other::Oddity;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using tests::Outcome;
using tests::run;
using tests::split;
using tests::Texts;

const char* const twoColumns = "a,b;1,2;3,5;2,4";

/// The calls that any host sees: without what one does of its own accord when the module copies and deletes, and
/// without the path of the language.
std::string commonCalls(const Texts& lines)
{
    static const std::regex own("(Cells?|Descendants|Dimension)::~.*|(QUVO_Variable|QuvoVarName)::~?Q.*|QUVOMB.*");
    std::string calls;
    for (const std::string& line : lines) {
        if (line.find('\t') != std::string::npos && !std::regex_match(line, own)) {
            calls += line + '\n';
        }
    }
    return calls;
}

TEST(OtherHost, SeesTheStoredCalls)
{
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(BLDATMAN_STORED_CALLS)) {
        std::ifstream file(entry.path(), std::ios::binary);
        const Texts stored = split({std::istreambuf_iterator<char>(file), {}}, '\n');
        if (stored[0].find('"') == std::string::npos) {  // this host knows no quotes
            run(stored[0], stored[2], {}, stored[1]);
            const auto parse = std::ranges::find(theHost.trace, "UniversalParser::getCommandSpecifications\t[]");
            const bool whole = entry.path().stem() == "description";
            EXPECT_EQ(commonCalls({whole ? theHost.trace.begin() : parse, theHost.trace.end()}), commonCalls(stored))
                << entry.path();
            ++count;
        }
    }
    EXPECT_GE(count, 20U);
}

TEST(OtherHost, HasItsSyntaxDescribedPartByPart)
{
    run(twoColumns, "VARIABLE=a WITH=b");
    std::string described;
    for (const std::string& receiver : theHost.receivers) {
        const std::size_t operation = receiver.find("ParamDescriptor::");
        if (operation != std::string::npos && receiver.find("get") == std::string::npos) {
            described += receiver.substr(0, operation) + receiver.substr(receiver.find("::") + 2) + '\n';
        }
    }
    std::ifstream file(BLDATMAN_SYNTAX, std::ios::binary);
    EXPECT_EQ(described, std::string(std::istreambuf_iterator<char>(file), {}));
}

struct Ignored {
    const char* call;
    const char* command;
    const char* sameAs;
};

TEST(OtherHost, MayLackOrRefuseWhatTheCommandNames)
{
    for (const Ignored& ignored : std::initializer_list<Ignored>{
             {"CommandSpec::getSubComObj\t[\"CRITERIA\"]", "CRITERIA(PERCENTAGE=TRUE) PRINT(DETAILS)",
              "PRINT(DETAILS)"},
             {"CommandSpec::getSubComObj\t[\"PRINT\"]", "PRINT(DETAILS)", ""},
             {"CommandSpec::getSubComObj\t[\"PLOT\"]", "PLOT(RATIO REFLINE)", ""},
             {"ParamObj::getUpStringGeneric",
              "PAIRED=YES CRITERIA(SCOPE=LISTWISE CLASSMISSING=INCLUDE LOGTRANSFORM=TRUE PERCENTAGE=TRUE) "
              "PRINT(DETAILS SORT(BY=MEAN DESCENDING=FALSE)) PLOT(AGREEMENT_LIMITS=CI)",
              "PRINT(DETAILS SORT(BY=MEASUREMENT)) PLOT(AGREEMENT_LIMITS)"},
             {"ParamObj::getStringOrLiteral", "CRITERIA(AGREEMENT_LIMITS=90) PRINT(AGREEMENT)", "PRINT(AGREEMENT)"},
             {"ParamObj::getNumberValue",
              "CRITERIA(CILEVEL_AGREEMENT=80 CILEVEL_MEANDIFF=90) PRINT(AGREEMENT MEANDIFF)",
              "PRINT(AGREEMENT MEANDIFF)"},
             {"ParamObj::getIntegerValue", "PRINT(DETAILS ROWS=1)", "PRINT(DETAILS)"},
             {"ParamObj::getStringQualList", "PRINT(DETAILS SORT(BY=MEAN))", "PRINT(DETAILS)"},
             {"CommandDescriptor::getSubComDesc", "PRINT(DETAILS SORT(BY=MEAN))", "PRINT(DETAILS)"},
             {"SubComDescriptor::getParamDesc", "PRINT(DETAILS SORT(BY=MEAN))", "PRINT(DETAILS)"},
         }) {
        const std::string lists = "VARIABLE=a WITH=b ";
        const Outcome odd = run(twoColumns, lists + ignored.command, {{ignored.call, Oddity::ComesToNothing}});
        EXPECT_EQ(odd, run(twoColumns, lists + ignored.sameAs)) << ignored.call;
        EXPECT_NE(odd, run(twoColumns, lists + ignored.command)) << ignored.call;
    }
}

TEST(OtherHost, MayDeliverNoRecordNoValuesAndRecordsOfAnyLength)
{
    const std::string command = "VARIABLE=a b PRINT(DETAILS)";
    const Outcome without = run("a,b;1,2;2,4", command);
    for (const char* call : {"RecKit::RecordIterator::Next\t[] 2 ", "RecKit::Record::GetAll\t[] 2 "}) {
        EXPECT_EQ(run(twoColumns, command, {{call, Oddity::ComesToNothing}}), without) << call;
    }
    EXPECT_EQ(run("a,b;1,2;3;2,4", command), run("a,b;1,2;3,4", command));
    EXPECT_EQ(run("a,b;1,2;2,4;3", command), without);
    EXPECT_EQ(run("a,b;1;3,2;2,4", command), run("a,b;1,2;3,4", command));
    EXPECT_EQ(run("a,b;1,2;2,4,9", command).errors,
              "BLDATMAN: Standard exception: A column of case values has no variable name.\n");
}

TEST(OtherHost, EndsTheCommandWithItsReason)
{
    const std::string step2 = "bldatman_entry: Step2 Unknown error occurred.\n";
    const std::string step3 = "Error: get_Subcommand_Global sub-command : \n"
                              "BldatmanInputSetting::start: Standard exception: Error encountered while syntax "
                              "parsing.\nbldatman_entry: Step3 Unknown error occurred.\n";
    struct Refusal {
        const char* call;
        Oddity oddity;
        std::string errors;
    };
    for (const Refusal& refusal : std::initializer_list<Refusal>{
             {"UniversalParser::getCommandSpecifications", Oddity::ComesToNothing, step2},
             {"CommandSpec::getSubComObj\t[\"\"]", Oddity::ComesToNothing, step3},
             {"SubComObj::getParamObj\t[\"VARIABLE\"]", Oddity::ComesToNothing, step3},
             {"VarSpecObj::ValidateVariables\t[1,0] 1 ", Oddity::ComesToNothing,
              "get_Subcommand_Global: Error during ValidateVariables.\n" + step3},
             {"VarSpecObj::ValidateVariables\t[1,0] 2 ", Oddity::ComesToNothing,
              "get_Subcommand_Global: Error during ValidateVariables.\n" + step3},
             {"Table::addTableToProcedureJSON", Oddity::Raises,
              "BLDATMAN: Standard exception: Table::addTableToProcedureJSON\n"},
         }) {
        const Outcome outcome = run(twoColumns, "VARIABLE=a WITH=b PRINT(DETAILS)", {{refusal.call, refusal.oddity}});
        EXPECT_EQ(outcome.errors, refusal.errors) << refusal.call;
        EXPECT_THAT(outcome.documents, IsEmpty()) << refusal.call;
    }
    EXPECT_EQ(run(twoColumns, "VARIABLE=a PRONT(DETAILS)").errors, step2);
    run(twoColumns, "VARIABLE=a WITH=x");
    EXPECT_THAT(theHost.complaints, ElementsAre("WITH of : there is no x"));
}

TEST(OtherHost, MayRefuseTheDocument)
{
    const std::string command = "VARIABLE=a WITH=b PRINT(DETAILS)";
    run(twoColumns, command);
    const Texts trace = theHost.trace;
    const Outcome refused = run(twoColumns, command, {{"StatJSONConverter::generateOutput", Oddity::ComesToNothing}});
    EXPECT_EQ(refused, Outcome{});
    EXPECT_EQ(theHost.trace, trace);
}

TEST(OtherHost, GetsItsObjectsBackInOneOrder)
{
    const std::string command = "VARIABLE=a WITH=b PRINT(DETAILS)";
    static const std::regex end("(Table|Dimension|Descendants|Cells?)::~.*");
    const auto* const body = "Cells::~Cells\t[]";
    const auto* const headers = "Descendants::~Descendants\t[]";
    for (const auto& [failing, last] : {std::pair("no call", body),
                                        {"Table::addTableToProcedureJSON", body},
                                        {"Table::set_cells", body},
                                        {"Cells::addCells", body},
                                        {"Descendants::set_label", headers},
                                        {"Descendants::addCell", "Cell::~Cell\t[]"}}) {
        run(twoColumns, command, {{failing, Oddity::Raises}});
        Texts ends;
        std::ranges::copy_if(theHost.trace, std::back_inserter(ends),
                             [](const std::string& line) { return std::regex_match(line, end); });
        EXPECT_EQ(ends.front(), "Table::~Table\t[]") << failing;
        EXPECT_EQ(ends.back(), last) << failing;
        EXPECT_THAT(theHost.releasedTables, ElementsAre("Bland-Altman Analysis Details")) << failing;
    }
}

TEST(OtherHost, MayThrowFromItsErrorStream)
{
    struct : std::streambuf {
    } full;  // takes nothing
    std::streambuf* previous = std::cerr.rdbuf(&full);
    std::cerr.exceptions(std::ios::badbit);
    EXPECT_NO_THROW(run(twoColumns, "VARIABLE=a PRONT(DETAILS)"));
    EXPECT_TRUE(std::cerr.bad());
    std::cerr.exceptions(std::ios::goodbit);
    std::cerr.rdbuf(previous);
}

/// The cells of the first table in thousandths.
std::vector<std::vector<long>> thousandths(const std::string& document)
{
    rapidjson::Document parsed;
    parsed.Parse(document);
    std::vector<std::vector<long>> rows;
    for (const auto& row : parsed["objects"][0]["cells"].GetArray()) {
        rows.emplace_back();
        for (const auto& cell : row.GetArray()) {
            rows.back().push_back(std::lround(cell.GetDouble() * 1000));
        }
    }
    return rows;
}

TEST(OtherHost, MayRoundAsItLikes)
{
    // Differences of 65 and of 63 parts in 1024 come to 63.48 and 61.52 thousandths, without a rounding on the way.
    const std::string data = "a,b;1.0634765625,1;1.0615234375,1;2,2";
    const std::string command = "VARIABLE=a WITH=b PRINT(DETAILS)";
    const auto usual = thousandths(run(data, command).documents.at(0));
    EXPECT_EQ(usual[0][3], 63);
    EXPECT_EQ(usual[1][3], 62);
    for (const int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
        ASSERT_EQ(std::fesetround(mode), 0);
        const Outcome outcome = run(data, command);
        std::fesetround(FE_TONEAREST);
        EXPECT_EQ(thousandths(outcome.documents.at(0)), usual) << mode;
    }
}

#ifdef __GLIBC__
TEST(OtherHost, MayTrapDivisionsByZero)
{
    const std::string data = "a,b;1,-1;2,3;3,5";
    for (const char* command : {"VARIABLE=a WITH=b PRINT(DETAILS)", "VARIABLE=a WITH=b CRITERIA(PERCENTAGE=TRUE)"}) {
        const Outcome usual = run(data, command);
        ASSERT_NE(feenableexcept(FE_DIVBYZERO), -1);
        const Outcome trapping = run(data, command);
        fedisableexcept(FE_DIVBYZERO);
        EXPECT_EQ(trapping, usual) << command;
        EXPECT_THAT(usual.documents, SizeIs(1));
    }
}
#endif

}  // namespace
