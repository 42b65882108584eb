#include "module/charts/output_chart.h"

#include <array>

namespace bldatman {

namespace {

using Allocator = BldatmanOutputChart::Allocator;

/// The statements of one chart, in order.
class StatementList {
public:
    explicit StatementList(Allocator& allocator)
        : statements_(rapidjson::kArrayType)
        , allocator_(allocator)
    {
    }

    /// A statement that never changes; it is referred to, not copied.
    void addConstant(const char* statement)
    {
        statements_.PushBack(rapidjson::Value(rapidjson::StringRef(statement)), allocator_);
    }

    void add(const std::string& statement)
    {
        statements_.PushBack(rapidjson::Value(statement, allocator_), allocator_);
    }

    rapidjson::Value& array() { return statements_; }

private:
    rapidjson::Value statements_;
    Allocator& allocator_;
};

const char* const closing = "\"))";

void addSource(StatementList& statements, const std::string& name)
{
    statements.add("SOURCE: s = userSource(id(\"" + name + closing);
}

void addColumns(StatementList& statements)
{
    for (const std::string column :
         {"xdata", "ydata", "xMinMax", "y0", "y1", "y2", "y3", "y4", "y5", "y6", "y7", "y8", "y9"}) {
        statements.add("DATA: " + column + " = col(source(s), name(\"" + column + closing);
    }
    for (const std::string column : {"cref", "calimits", "cmean", "cMeanDiffCI", "crefALimitsCI"}) {
        statements.add("DATA: " + column + " = col(source(s), name(\"" + column + "\"), unit.category())");
    }
}

void addGuides(StatementList& statements, const std::string& xAxisLabel, const std::string& yAxisLabel,
               const std::string& title)
{
    statements.add("GUIDE: axis(dim(2),label(\"" + yAxisLabel + closing);
    statements.add("GUIDE: axis(dim(1),label(\"" + xAxisLabel + closing);
    statements.add("GUIDE: text.title(label(\"" + title + closing);
}

void addPoints(StatementList& statements, bool dodge)
{
    if (dodge) {
        statements.addConstant("ELEMENT: point.dodge.symmetric(position(xdata*ydata))");
    } else {
        statements.addConstant("ELEMENT: point(position(xdata*ydata))");
    }
}

using Plot = BldatmanPlotSubcommand;

struct LineElement {
    bool Plot::*shownBy;  ///< null: always
    const char* statement;
};

/// The lines in the order in which they are drawn: reference, upper limit with the dashed bounds of its interval, lower
/// limit with the bounds of its, bias with its bounds. What "y0" to "y9" hold is settled in plot_assembly.cpp.
constexpr std::array<LineElement, 10> lineElements = {{
    {&Plot::refLine, "ELEMENT: line(position(xMinMax*y0),color(cref))"},
    {&Plot::agreementLimits, "ELEMENT: line(position(xMinMax*y2),color(calimits))"},
    {&Plot::agreementLimitsCi, "ELEMENT: line(position(xMinMax*y1),color(crefALimitsCI), shape(shape.half_dash))"},
    {&Plot::agreementLimitsCi, "ELEMENT: line(position(xMinMax*y3),color(crefALimitsCI), shape(shape.half_dash))"},
    {&Plot::agreementLimits, "ELEMENT: line(position(xMinMax*y5),color(calimits))"},
    {&Plot::agreementLimitsCi, "ELEMENT: line(position(xMinMax*y4),color(crefALimitsCI), shape(shape.half_dash))"},
    {&Plot::agreementLimitsCi, "ELEMENT: line(position(xMinMax*y6),color(crefALimitsCI), shape(shape.half_dash))"},
    {nullptr, "ELEMENT: line(position(xMinMax*y8),color(cmean))"},
    {&Plot::ciMeanDiff, "ELEMENT: line(position(xMinMax*y7),color(cMeanDiffCI), shape(shape.half_dash))"},
    {&Plot::ciMeanDiff, "ELEMENT: line(position(xMinMax*y9),color(cMeanDiffCI), shape(shape.half_dash))"},
}};

void addLines(StatementList& statements, const Plot& plot)
{
    for (const LineElement& line : lineElements) {
        if (line.shownBy == nullptr || plot.*line.shownBy) {
            statements.addConstant(line.statement);
        }
    }
}

/// The blank before the footnote belongs to the statement's format.
void addFootnote(StatementList& statements, const std::string& footnote)
{
    statements.add("GUIDE: text.subsubfootnote(label(\" " + footnote + closing);
}

}  // namespace

BldatmanOutputChart::BldatmanOutputChart(StatJSONGenerator& generator, const BldatmanInputSetting& settings,
                                         const std::string& title, const BldatmanTextCatalogue& catalogue)
    : StatGPLGraph(&generator, title)
    , settings_(&settings)
    , catalogue_(&catalogue)
{
}

void BldatmanOutputChart::setAxisLabel(bool isX, const std::string& label)
{
    (isX ? xAxisLabel_ : yAxisLabel_) = label;
}

void BldatmanOutputChart::addStatements(rapidjson::Value& graph, Allocator& allocator)
{
    StatementList statements(allocator);
    addSource(statements, getName());
    addColumns(statements);
    statements.addConstant("GRAPH: begin()");
    addGuides(statements, xAxisLabel_, yAxisLabel_, getName());
    addPoints(statements, dodge_);
    addLines(statements, settings_->plotSubcommand());
    addFootnote(statements, footnote());
    statements.addConstant("GRAPH: end()");
    graph.AddMember("gpl", statements.array(), allocator);
}

std::string BldatmanOutputChart::footnote() const
{
    const char* key = dodge_ ? "Overlapping points are displayed using dodge to enhance visibility."
                             : "Note : Disabled dodge for potential performance gains, Overlapping data points will be "
                               "hidden";
    return catalogue_->getText(key);
}

}  // namespace bldatman
