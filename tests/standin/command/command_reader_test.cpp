#include "standin/command/command_reader.h"

#include <gtest/gtest.h>

#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace standin {
namespace {

using UPSpecTypes::ParamSpec;

/// What goes in and what must come out.
using Cases = std::vector<std::pair<std::string, std::string>>;

ParameterDescription parameter(const std::string& name, ParamSpec kind, const std::vector<std::string>& values = {},
                               std::optional<double> lower = {}, std::optional<double> upper = {})
{
    return {name, kind, false, brackets::none, true, {}, lower, upper, values, {}};
}

/// A procedure of nobody's, with a parameter of every kind.
CommandDescription widget()
{
    ParameterDescription input = parameter("INPUT", kinds::variableList);
    input.required = true;
    input.brackets = brackets::aroundVariables;
    ParameterDescription tint = parameter("TINT", kinds::keyword, {"Red", "BLUE"});
    tint.valueRequired = false;
    ParameterDescription sort = parameter("SORT", kinds::qualifierList);
    sort.qualifiers = {parameter("BY", kinds::keyword, {"MEAN", "RATIO"}), parameter("DEPTH", kinds::integer, {}, 1, 9),
                       parameter("TWICE", kinds::bareKeyword)};
    ParameterDescription key = parameter("KEY", kinds::integer);
    key.required = true;
    return {
        "WIDGET",
        {{"", {input, parameter("EXTRA", kinds::variableList), parameter("MODE", kinds::keyword, {"Fast", "slow"})}},
         {"SET",
          {tint, parameter("LIMIT", kinds::keywordOrLiteral, {"TwoSd", "95"}),
           parameter("NOTE", kinds::keywordOrLiteral), parameter("LEVEL", kinds::number, {}, 0, 100),
           parameter("COUNT", kinds::integer), parameter("FLAG", kinds::bareKeyword), sort}},
         {"LOCK", {key, parameter("LIST", kinds::variableList)}}}};
}

/// Parameters with the types of their values, so that no two kinds look alike.
std::string shown(const std::vector<ParsedParameter>& parameters)
{
    std::ostringstream text;
    for (const auto& [name, value] : parameters) {
        text << (text.tellp() > 0 ? " " : "") << name;
        if (const auto* keyword = std::get_if<KeywordText>(&value)) {
            text << (keyword->isLiteral ? "=literal " : "=") << keyword->text;
        } else if (const auto* number = std::get_if<double>(&value)) {
            text << "=number " << *number;
        } else if (const auto* integer = std::get_if<int>(&value)) {
            text << "=integer " << *integer;
        } else if (const auto* qualifiers = std::get_if<std::vector<ParsedParameter>>(&value)) {
            text << '(' << shown(*qualifiers) << ')';
        } else if (const auto* items = std::get_if<std::vector<VariableItem>>(&value)) {
            text << '=';
            for (const VariableItem& item : *items) {
                text << '<' << item.first << (item.last ? ">:<" + *item.last : "") << '>';
            }
        }
    }
    return text.str();
}

std::string shown(const ParsedCommand& command)
{
    std::string text;
    for (const auto& [name, parameters] : command.subcommands) {
        text += name.empty() ? shown(parameters) : " " + name + "{" + shown(parameters) + "}";
    }
    return text;
}

/// The parsed command, or place and reason of its refusal.
std::string outcomeOf(const std::string& text, bool nameMayBeMissing = true)
{
    CommandText command = singleCommand(text);
    command.nameMayBeMissing = nameMayBeMissing;
    try {
        return shown(parseCommand(command, widget()));
    } catch (const CommandError& error) {
        const auto [line, column] = placeOf(text, error.offset());
        return std::to_string(line) + ":" + std::to_string(column) + " " + error.what();
    }
}

void expectOutcomes(const Cases& cases, const std::string& before = "", const std::string& after = "")
{
    for (const auto& [text, outcome] : cases) {
        EXPECT_EQ(outcomeOf(before + text + after), outcome) << before << text << after;
    }
}

TEST(CommandReader, DeliversParametersInTheOrderGivenAndKeywordsInTheAllowedSpelling)
{
    expectOutcomes({
        {"WIDGET MODE=slow INPUT=a;", "MODE=slow INPUT=<a>"},
        {"INPUT=a SET()", "INPUT=<a> SET{}"},
        {"INPUT=a LOCK(KEY=1)SET(COUNT=-7 FLAG LEVEL=2.5e1)",
         "INPUT=<a> LOCK{KEY=integer 1} SET{COUNT=integer -7 FLAG LEVEL=number 25}"},
        {"INPUT=a SET(SORT(DEPTH=2 BY=RATIO) FLAG)", "INPUT=<a> SET{SORT(DEPTH=integer 2 BY=RATIO) FLAG}"},
        {"INPUT=a SET(SORT FLAG)", "INPUT=<a> SET{SORT() FLAG}"},
        {"INPUT=a SET(TINT FLAG)", "INPUT=<a> SET{TINT FLAG}"},
        {"#;\n\tINPUT = a # \"b\r\n c# SET(\r d\n SET ( FLAG)#", "INPUT=<a><c><d> SET{FLAG}"},
        {"widget Input=A mOdE=FAST Set(tint=blue)", "INPUT=<A> MODE=Fast SET{TINT=BLUE}"},
        {"INPUT=a set(limit=TWOSD Sort(by=mean))", "INPUT=<a> SET{LIMIT=TwoSd SORT(BY=MEAN)}"},
        {"INPUT=a set(note=AnyWord-7%)", "INPUT=<a> SET{NOTE=AnyWord-7%}"},
    });
}

TEST(CommandReader, TakesTheValuesOfAKindAndRefusesOthers)
{
    const std::string wholeNumber = ", expected a whole number for COUNT, from -2147483648 to 2147483647";
    expectOutcomes(
        {
            // Quotes, only where a literal may stand.
            {"LIMIT=\"twosd\"", "INPUT=<a> SET{LIMIT=literal TwoSd}"},
            {R"(NOTE="say ""no""; # (=")", R"(INPUT=<a> SET{NOTE=literal say "no"; # (=})"},
            {"LIMIT=\"96\"", "1:19 found the quoted text \"96\", expected one of 95, TwoSd"},
            {"TINT=\"Red\"", "1:18 found the quoted text \"Red\", expected one of Red, BLUE"},
            {"\"FLAG\"",
             "1:13 found the quoted text \"FLAG\", expected one of FLAG, TINT, LIMIT, NOTE, LEVEL, COUNT, SORT, )"},
            // Numbers, up to their bounds.
            {"LEVEL=0 SORT(DEPTH=9)", "INPUT=<a> SET{LEVEL=number 0 SORT(DEPTH=integer 9)}"},
            {"LEVEL=100", "INPUT=<a> SET{LEVEL=number 100}"},
            {"LEVEL=-0.001", "1:19 found \"-0.001\", expected a number not below 0"},
            {"LEVEL=100.00001", "1:19 found \"100.00001\", expected a number not above 100"},
            {"LEVEL=nan", "1:19 found \"nan\", expected a number for LEVEL"},
            {"SORT(DEPTH=10)", "1:24 found \"10\", expected a number not above 9"},
            // Whole numbers, of 32 bits.
            {"COUNT=2147483647", "INPUT=<a> SET{COUNT=integer 2147483647}"},
            {"COUNT=-2147483648", "INPUT=<a> SET{COUNT=integer -2147483648}"},
            {"COUNT=+05", "INPUT=<a> SET{COUNT=integer 5}"},
            {"COUNT=2147483648", "1:19 found \"2147483648\"" + wholeNumber},
            {"COUNT=-2147483649", "1:19 found \"-2147483649\"" + wholeNumber},
            {"COUNT=5.0", "1:19 found \"5.0\"" + wholeNumber},
            {"COUNT=", "1:19 found \")\"" + wholeNumber},
        },
        "INPUT=a SET(", ")");
}

TEST(CommandReader, TakesBareAndQuotedNamesAndRangesUpToTheNextKeyword)
{
    const std::string bareNames =
        ", expected a name of letters, digits and _ . $ @; any other name goes in double quotes";
    expectOutcomes({
        {"INPUT=größe 体重 क्षमता вес१ 2nd _.$@", "INPUT=<größe><体重><क्षमता><вес१><2nd><_.$@>"},
        {R"(INPUT="two words" "5"" disk" "INPUT=" "a:b" ";#")", "INPUT=<two words><5\" disk><INPUT=><a:b><;#>"},
        {R"(INPUT=a:d "last one" : "p q" e)", "INPUT=<a>:<d><last one>:<p q><e>"},
        {"INPUT=a:b:c", "1:10 found \":\", expected one of EXTRA, MODE, SET, LOCK"},
        {"INPUT=a:", "1:9 found the end of the command, expected the name of a variable"},
        {"INPUT=a-b", "1:7 found \"a-b\"" + bareNames},
        {"INPUT=体重→", "1:7 found \"体重→\"" + bareNames},
        {"INPUT=a \"b", "1:9 the quote that begins here is not closed"},
        {"INPUT=a b\xFF", "1:10 a byte here is not UTF-8"},
        {"INPUT=a b EXTRA=c d", "INPUT=<a><b> EXTRA=<c><d>"},
        {"INPUT=a SET b SET()", "INPUT=<a><SET><b> SET{}"},
        {"INPUT=mode MODE =slow", "INPUT=<mode> MODE=slow"},
        {"INPUT=(a b:c \"d\") ;", "INPUT=<a><b>:<c><d>"},
        {"INPUT=a LOCK(KEY=1 LIST=b c)", "INPUT=<a> LOCK{KEY=integer 1 LIST=<b><c>}"},
        {"INPUT=a WEIGHT=b", "1:9 found \"WEIGHT\", expected one of EXTRA, MODE, SET, LOCK"},
        {"INPUT=(a b", "1:11 found the end of the command, expected the name of a variable or \")\""},
        {"INPUT=a EXTRA=(b)", "1:15 found \"(\", expected the names of variables for EXTRA"},
    });
}

TEST(CommandReader, NeedsTheNameWhereItMayNotBeMissing)
{
    EXPECT_EQ(outcomeOf("WiDGET INPUT=a;", false), "INPUT=<a>");
    EXPECT_EQ(outcomeOf("INPUT=a;", false), "1:1 found \"INPUT\", expected WIDGET");
    EXPECT_EQ(outcomeOf("\n WIDGE INPUT=a;", false), "2:2 found \"WIDGE\", expected WIDGET");
}

TEST(CommandReader, RefusesWhatIsGivenTwiceOrMissingOrOutOfPlaceAndNamesWhatCouldStandThere)
{
    const std::string choice = ", expected one of ";
    expectOutcomes({
        {"INPUT=a MODE=slow input=b", "1:19 found \"input\", but INPUT is given already"},
        {"INPUT=a SET(FLAG) Set(COUNT=1)", "1:19 found \"Set\", but SET is given already"},
        {"INPUT=a SET(FLAG COUNT=1 flag)", "1:26 found \"flag\", but FLAG is given already"},
        {"INPUT=a SET(SORT(BY=MEAN by=MEAN))", "1:26 found \"by\", but BY is given already"},
        {"", "1:1 found the end of the command, but INPUT is missing before it"},
        {"WIDGET MODE=slow;", "1:17 found \";\", but INPUT is missing before it"},
        {"SET() INPUT=a", "1:1 found \"SET\", but INPUT is missing before it"},
        {"INPUT=a LOCK(LIST=b)", "1:20 found \")\", but KEY is missing before it"},
        {"INPTU=a", "1:1 found \"INPTU\"" + choice + "INPUT, EXTRA, MODE, SET, LOCK"},
        {"INPUT=a SET() lok()", "1:15 found \"lok\", expected LOCK"},
        {"INPUT=a SET() EXTRA=b", "1:15 found \"EXTRA\", which must stand before the subcommands"},
        {"INPUT=a SET(\n  CONT=1)", "2:3 found \"CONT\"" + choice + "COUNT, TINT, LIMIT, NOTE, LEVEL, FLAG, SORT, )"},
        {"INPUT=a SET(SORT=MEAN)", "1:17 found \"=\", expected qualifiers in parentheses after SORT"},
        {"INPUT=a SET(FLAG=TRUE)", "1:17 found \"=\", but FLAG stands alone"},
        {"INPUT=a SET(COUNT FLAG)", R"(1:19 found "FLAG", expected "=" and a value after COUNT)"},
        {"INPUT=a SET(FLAG", "1:17 found the end of the command" + choice + "TINT, LIMIT, NOTE, LEVEL, COUNT, SORT, )"},
        {"INPUT=größe MODE=slo", "1:18 found \"slo\"" + choice + "slow, Fast"},
        {"INPUT=a; SET()", "1:10 found \"SET\", expected nothing after the closing semicolon"},
    });
}

TEST(CommandText, PutsACaretUnderThePlace)
{
    EXPECT_EQ(lineWithCaret("abc", 0), "    abc\n    ^");
    EXPECT_EQ(lineWithCaret("a\r\n\tbé c d\r\ne", 8), "    \tbé c d\n    \t   ^");
    EXPECT_EQ(lineWithCaret("a\nbc", 4), "    bc\n      ^");
}

}  // namespace
}  // namespace standin
