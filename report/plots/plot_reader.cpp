#include "report/plots/plot_reader.h"

#include "report/document/document_view.h"
#include "report/plots/gpl_statement.h"
#include "report/plots/plot_error.h"
#include "text/wording.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>
#include <tuple>
#include <utility>

namespace report {

namespace {

using Kind = GplExpression::Kind;

[[noreturn]] void fail(const std::string& reason)
{
    throw PlotError(reason);
}

/// The only argument of a call, of the given kind.
const GplExpression& soleArgument(const GplExpression& call, Kind kind, const std::string& expected)
{
    if (call.arguments.size() != 1 || call.arguments[0].kind != kind) {
        fail(text::inQuotes(call.text) + " takes " + expected);
    }
    return call.arguments[0];
}

/// The argument that is a call of that name; null where there is none.
const GplExpression* findArgument(const GplExpression& call, const std::string& name)
{
    for (const GplExpression& argument : call.arguments) {
        if (argument.kind == Kind::Call && argument.text == name) {
            return &argument;
        }
    }
    return nullptr;
}

const GplExpression& argument(const GplExpression& call, const std::string& name)
{
    const GplExpression* found = findArgument(call, name);
    if (found == nullptr) {
        fail(text::inQuotes(call.text) + " lacks " + text::inQuotes(name));
    }
    return *found;
}

/// Nothing that a statement says is passed over in silence: each argument is one of the known calls, and given once.
void requireOnly(const GplExpression& call, std::vector<std::string> known)
{
    for (const GplExpression& given : call.arguments) {
        const auto found = std::ranges::find(known, given.text);
        if (given.kind != Kind::Call || found == known.end()) {
            fail("nothing is known of " + text::inQuotes(given.text) + " in " + text::inQuotes(call.text));
        }
        known.erase(found);
    }
}

std::string labelOf(const GplExpression& call)
{
    return soleArgument(argument(call, "label"), Kind::Text, "a text").text;
}

class PlotReader {
public:
    explicit PlotReader(const rapidjson::Value& columns)
        : columns_(columns)
    {
    }

    void follow(const GplStatement& statement)
    {
        if (statement.expression.kind != Kind::Call) {
            fail("a call is missing after the colon");
        }
        for (const auto& [kind, function, handler] : handlers) {
            if (statement.kind == kind && statement.expression.text == function) {
                (this->*handler)(statement);
                return;
            }
        }
        fail("nothing is known of " + text::inQuotes(statement.expression.text) + " in a statement of kind " +
             text::inQuotes(statement.kind));
    }

    Plot finish()
    {
        if (stage_ != Stage::Ended) {
            fail("the statements end inside the graph");
        }
        return std::move(plot_);
    }

private:
    using Handler = void (PlotReader::*)(const GplStatement&);
    struct HandlerEntry {
        std::string_view kind;
        std::string_view function;
        Handler handler;
    };
    static const std::array<HandlerEntry, 10> handlers;

    enum class Stage { Before, Inside, Ended };

    void defineSource(const GplStatement& statement)
    {
        requireOnly(statement.expression, {"id"});
        soleArgument(argument(statement.expression, "id"), Kind::Text, "a text");
        source_ = statement.variable;
    }

    void defineVariable(const GplStatement& statement)
    {
        const GplExpression& call = statement.expression;
        requireOnly(call, {"source", "name", "unit.category"});
        const std::string& source = soleArgument(argument(call, "source"), Kind::Name, "the name of a source").text;
        if (source != source_) {
            fail("there is no source " + text::inQuotes(source));
        }
        const std::string& column = soleArgument(argument(call, "name"), Kind::Text, "a text").text;
        const auto found = columns_.FindMember(column);
        if (found == columns_.MemberEnd()) {
            fail("there is no column " + text::inQuotes(column));
        }
        const bool isCategory = findArgument(call, "unit.category") != nullptr;
        variables_[statement.variable] = {&found->value, isCategory, isCategory ? categoryCount_++ : 0};
    }

    void beginGraph(const GplStatement& statement)
    {
        requireOnly(statement.expression, {});
        stage_ = Stage::Inside;
    }

    void endGraph(const GplStatement& statement)
    {
        requireOnly(statement.expression, {});
        stage_ = Stage::Ended;
    }

    void labelAxis(const GplStatement& statement)
    {
        requireOnly(statement.expression, {"dim", "label"});
        const std::string& dimension =
            soleArgument(argument(statement.expression, "dim"), Kind::Number, "a number").text;
        if (dimension != "1" && dimension != "2") {
            fail("there is no dimension " + dimension);
        }
        (dimension == "1" ? plot_.xLabel : plot_.yLabel) = labelOf(statement.expression);
    }

    void setTitle(const GplStatement& statement)
    {
        requireOnly(statement.expression, {"label"});
        plot_.title = labelOf(statement.expression);
    }

    void setFootnote(const GplStatement& statement)
    {
        requireOnly(statement.expression, {"label"});
        plot_.footnote = labelOf(statement.expression);
    }

    void addPoints(const GplStatement& statement) { addPointLayer(statement.expression, false); }

    void addDodgedPoints(const GplStatement& statement) { addPointLayer(statement.expression, true); }

    void addPointLayer(const GplExpression& element, bool dodged)
    {
        requireOnly(element, {"position"});
        auto [x, y] = positionOf(element);
        plot_.points.push_back({std::move(x), std::move(y), dodged});
    }

    void addLine(const GplStatement& statement)
    {
        const GplExpression& element = statement.expression;
        requireOnly(element, {"position", "color", "shape"});
        LineLayer line;
        std::tie(line.x, line.y) = positionOf(element);
        if (const GplExpression* colour = findArgument(element, "color")) {
            const std::string& variable = soleArgument(*colour, Kind::Name, "the name of a variable").text;
            line.legend = categoryOf(variable);
            line.category = find(variable).order;
        }
        line.dashed = isDashed(element);
        plot_.lines.push_back(std::move(line));
    }

    std::pair<std::vector<double>, std::vector<double>> positionOf(const GplExpression& element)
    {
        if (stage_ != Stage::Inside) {
            fail("an element stands outside the graph");
        }
        const GplExpression& product = soleArgument(argument(element, "position"), Kind::Product, "a product");
        if (product.arguments.size() != 2) {
            fail("a position has two dimensions");
        }
        std::pair position(numbersOf(product.arguments[0].text), numbersOf(product.arguments[1].text));
        if (position.first.size() != position.second.size()) {
            fail(text::inQuotes(product.arguments[0].text) + " and " + text::inQuotes(product.arguments[1].text) +
                 " differ in length");
        }
        return position;
    }

    std::vector<double> numbersOf(const std::string& variable) const
    {
        std::vector<double> numbers;
        for (const rapidjson::Value& value : numberColumn(variable).GetArray()) {
            if (!value.IsNumber()) {
                fail(text::inQuotes(variable) + " holds something other than numbers");
            }
            numbers.push_back(value.GetDouble());
        }
        return numbers;
    }

    /// The one text that a category variable holds: the elements of a line are all of one category.
    std::string categoryOf(const std::string& variable) const
    {
        const rapidjson::Value& categories = categoryColumn(variable);
        for (const rapidjson::Value& category : categories.GetArray()) {
            if (!category.IsString() || category != categories[0]) {
                fail(text::inQuotes(variable) + " does not hold one text for the whole line");
            }
        }
        return categories.Empty() ? "" : textOf(categories[0]);
    }

    static bool isDashed(const GplExpression& element)
    {
        const GplExpression* shape = findArgument(element, "shape");
        if (shape == nullptr) {
            return false;
        }
        const std::string& name = soleArgument(*shape, Kind::Name, "the name of a shape").text;
        if (name != "shape.half_dash") {
            fail("nothing is known of the shape " + text::inQuotes(name));
        }
        return true;
    }

    const rapidjson::Value& numberColumn(const std::string& variable) const
    {
        const Variable& found = find(variable);
        if (found.isCategory) {
            fail(text::inQuotes(variable) + " is a category");
        }
        return *found.column;
    }

    const rapidjson::Value& categoryColumn(const std::string& variable) const
    {
        const Variable& found = find(variable);
        if (!found.isCategory) {
            fail(text::inQuotes(variable) + " is not a category");
        }
        return *found.column;
    }

    struct Variable {
        const rapidjson::Value* column;
        bool isCategory;
        std::size_t order;  ///< among the categories
    };

    const Variable& find(const std::string& variable) const
    {
        const auto found = variables_.find(variable);
        if (found == variables_.end()) {
            fail("there is no variable " + text::inQuotes(variable));
        }
        return found->second;
    }

    const rapidjson::Value& columns_;
    std::string source_;
    std::map<std::string, Variable> variables_;
    std::size_t categoryCount_ = 0;
    Stage stage_ = Stage::Before;
    Plot plot_;
};

const std::array<PlotReader::HandlerEntry, 10> PlotReader::handlers = {{
    {"SOURCE", "userSource", &PlotReader::defineSource},
    {"DATA", "col", &PlotReader::defineVariable},
    {"GRAPH", "begin", &PlotReader::beginGraph},
    {"GRAPH", "end", &PlotReader::endGraph},
    {"GUIDE", "axis", &PlotReader::labelAxis},
    {"GUIDE", "text.title", &PlotReader::setTitle},
    {"GUIDE", "text.subsubfootnote", &PlotReader::setFootnote},
    {"ELEMENT", "point", &PlotReader::addPoints},
    {"ELEMENT", "point.dodge.symmetric", &PlotReader::addDodgedPoints},
    {"ELEMENT", "line", &PlotReader::addLine},
}};

}  // namespace

Plot readPlot(const rapidjson::Value& graph)
{
    PlotReader reader(graph["data"]);
    std::size_t number = 0;
    for (const rapidjson::Value& value : graph["gpl"].GetArray()) {
        ++number;
        const std::string statement = value.IsString() ? textOf(value) : "";
        try {
            reader.follow(parseGplStatement(statement));
        } catch (const PlotError& error) {
            fail("statement " + std::to_string(number) + ", " + statement + ": " + error.what());
        }
    }
    return reader.finish();
}

}  // namespace report
