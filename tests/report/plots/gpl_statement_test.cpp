#include "report/plots/gpl_statement.h"

#include "report/plots/plot_error.h"

#include <gmock/gmock.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace report {
namespace {

/// An expression as a text that shows its structure: (call argument argument), [factor factor], <text>, #number.
std::string shape(const GplExpression& expression)
{
    using Kind = GplExpression::Kind;
    static const std::map<Kind, std::pair<std::string, std::string>> around = {{Kind::Name, {"", ""}},
                                                                               {Kind::Number, {"#", ""}},
                                                                               {Kind::Text, {"<", ">"}},
                                                                               {Kind::Call, {"(", ")"}},
                                                                               {Kind::Product, {"[", "]"}}};
    std::string text = around.at(expression.kind).first + expression.text;
    for (const GplExpression& argument : expression.arguments) {
        text += " " + shape(argument);
    }
    return text + around.at(expression.kind).second;
}

std::string shape(const std::string& statement)
{
    const GplStatement read = parseGplStatement(statement);
    return read.kind + "|" + read.variable + "|" + shape(read.expression);
}

TEST(GplStatement, ReadsAssignmentsCallsProductsNamesNumbersAndTexts)
{
    EXPECT_EQ(shape(R"(DATA: cref = col(source(s), name("cref"), unit.category()))"),
              "DATA|cref|(col (source s) (name <cref>) (unit.category))");
    EXPECT_EQ(shape("ELEMENT: line(position(xMinMax*y1),color(c), shape(shape.half_dash))"),
              "ELEMENT||(line (position [ xMinMax y1]) (color c) (shape shape.half_dash))");
    EXPECT_EQ(shape("  GUIDE :axis( dim( 2 ) , label(\" a \") ) "), "GUIDE||(axis (dim #2) (label < a >))");
}

TEST(GplStatement, EndsATextAtAQuoteThatClosesItsCallOnly)
{
    for (const std::string text : {R"(a"b)", R"("")", R"(a" and "b")", R"(a") b)", R"(a")) and b"))", R"(a"),b)",
                                   R"(a", label("b)", R"(a\" \)", "a'b", ")", "\"", R"(a") and "b)", R"(a")), f("b)"}) {
        EXPECT_EQ(shape("GUIDE: axis(dim(1),label(\"" + text + "\"))"),
                  "GUIDE||(axis (dim #1) (label <" + text + ">))");
    }
    // Nothing tells such a text from a text and another argument.
    EXPECT_EQ(shape(R"(X: f(label("a"), g("b")))"), "X||(f (label <a>) (g <b>))");
}

TEST(GplStatement, SaysWhereItCannotBeRead)
{
    for (const auto& [statement, reason] : std::vector<std::pair<std::string, std::string>>{
             {"", "column 1: expected the kind of the statement, found the end"},
             {"GRAPH begin()", R"(column 7: expected ":", found "b")"},
             {"GRAPH: begin(", "column 14: expected a name, a number or a text, found the end"},
             {"GRAPH: begin() end", R"(column 16: expected the end of the statement, found "e")"},
             {"X: f(a b)", "column 8: expected \")\", found \"b\""},
             {"X: f(a*)", "column 8: expected a name, found \")\""},
             {"X: f(label(\"a)", "column 12: the text that begins here does not end"},
             {"X: f(label(\"a\")", "column 12: the text that begins here does not end"}}) {
        EXPECT_THAT([&text = statement] { parseGplStatement(text); }, testing::ThrowsMessage<PlotError>(reason));
    }
}

}  // namespace
}  // namespace report
