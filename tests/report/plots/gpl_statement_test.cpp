#include "report/plots/gpl_statement.h"

#include "report/plots/plot_error.h"

#include <gtest/gtest.h>

namespace report {
namespace {

using Kind = GplExpression::Kind;

/// An expression as a text that shows its structure.
std::string shape(const GplExpression& expression)
{
    std::string inner;
    for (const GplExpression& argument : expression.arguments) {
        inner += (inner.empty() ? "" : " ") + shape(argument);
    }
    switch (expression.kind) {
    case Kind::Call:
        return expression.text + "(" + inner + ")";
    case Kind::Product:
        return "[" + inner + "]";
    case Kind::Text:
        return "<" + expression.text + ">";
    case Kind::Number:
        return "#" + expression.text;
    default:
        return expression.text;
    }
}

std::string shape(const std::string& statement)
{
    const GplStatement read = parseGplStatement(statement);
    return read.kind + "|" + read.variable + "|" + shape(read.expression);
}

std::string reason(const std::string& statement)
{
    try {
        parseGplStatement(statement);
    } catch (const PlotError& error) {
        return error.what();
    }
    return "read";
}

TEST(GplStatement, ReadsAssignmentsCallsProductsNamesNumbersAndTexts)
{
    EXPECT_EQ(shape(R"(DATA: cref = col(source(s), name("cref"), unit.category()))"),
              "DATA|cref|col(source(s) name(<cref>) unit.category())");
    EXPECT_EQ(shape("ELEMENT: line(position(xMinMax*y1),color(c), shape(shape.half_dash))"),
              "ELEMENT||line(position([xMinMax y1]) color(c) shape(shape.half_dash))");
    EXPECT_EQ(shape("  GUIDE :axis( dim( 2 ) , label(\" a \") ) "), "GUIDE||axis(dim(#2) label(< a >))");
    EXPECT_EQ(shape("GRAPH: begin()"), "GRAPH||begin()");
}

TEST(GplStatement, EndsATextAtAQuoteThatClosesItsCallOnly)
{
    const auto label = [](const std::string& text) { return shape("GUIDE: axis(dim(1),label(\"" + text + "\"))"); };
    for (const std::string text : {R"(a"b)", R"("")", R"(a" and "b")", R"(a") b)", R"(a")) and b"))", R"(a"),b)",
                                   R"(a", label("b)", R"(a\" \)", "a'b", ")", "\"", R"(a") and "b)"}) {
        EXPECT_EQ(label(text), "GUIDE||axis(dim(#1) label(<" + text + ">))");
    }
    // Nothing tells such a text from a text and another argument.
    EXPECT_EQ(shape(R"(X: f(label("a"), g("b")))"), "X||f(label(<a>) g(<b>))");
}

TEST(GplStatement, SaysWhereItCannotBeRead)
{
    EXPECT_EQ(reason(""), "column 1: expected the kind of the statement, found the end");
    EXPECT_EQ(reason("GRAPH begin()"), "column 7: expected \":\", found \"b\"");
    EXPECT_EQ(reason("GRAPH: begin("), "column 14: expected a name, a number or a text, found the end");
    EXPECT_EQ(reason("GRAPH: begin() end"), "column 16: expected the end of the statement, found \"e\"");
    EXPECT_EQ(reason("X: f(a b)"), "column 8: expected \")\", found \"b\"");
    EXPECT_EQ(reason("X: f(a*)"), "column 8: expected a name, found \")\"");
    EXPECT_EQ(reason("X: f(label(\"a)"), "column 12: the text that begins here does not end");
    EXPECT_EQ(reason("X: f(label(\"a\")"), "column 12: the text that begins here does not end");
}

}  // namespace
}  // namespace report
