#include "module/charts/plot_assembly.h"

#include "module/charts/output_chart.h"
#include "module/texts/labels.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace bldatman {

namespace {

/// With more points than this, overlapping points are not moved apart.
constexpr std::size_t maxDodgedPoints = 10000;

std::vector<double> level(double value)
{
    return {value, value};
}

std::vector<std::string> legend(const std::string& text)
{
    return {text, text};
}

/// The two ends of the horizontal lines: the range of the means, widened by a quarter on either side.
std::vector<double> lineEnds(const std::vector<double>& means)
{
    if (means.empty()) {
        return {0.0, 0.0};
    }
    const double largest = *std::ranges::max_element(means);
    const double smallest = *std::ranges::min_element(means);
    const double span = (largest - smallest) * 0.25;
    return {smallest - span, largest + span};
}

/// What the two plots of a pair share.
struct PlotFrame {
    std::string xAxisLabel;
    std::vector<double> xMinMax;
    std::vector<double> y0;
    std::vector<std::string> cref;
    std::vector<std::string> calimits;
    std::vector<std::string> crefALimitsCI;
};

/// What is a plot's own.
struct PlotContent {
    std::string title;
    std::string yAxisLabel;
    const std::vector<double>& x;
    const std::vector<double>& y;
    std::array<double, 9> levels;  ///< of "y1" to "y9"
    std::string meanLegend;
    std::string meanIntervalLegend;
};

/// The heights of the lines over the differences.
std::array<double, 9> differenceLevels(const BldatmanPairResult& record)
{
    return {
        record.upperLimitCiLower,     record.upperLimit,     record.upperLimitCiUpper,
        record.lowerLimitCiUpper,     record.lowerLimit,     record.lowerLimitCiLower,
        record.meanDifferenceCiUpper, record.meanDifference, record.meanDifferenceCiLower,
    };
}

/// The heights of the lines over the ratios. The bounds of each limit's interval trade places against
/// `differenceLevels`, on purpose: both of a pair are drawn alike.
std::array<double, 9> ratioLevels(const BldatmanPairResult& record, bool percentage)
{
    const double factor = ratioMultiplier(percentage);
    const auto relative = [&](double value) { return relativeToMean(value, record.meanOfMeans) * factor; };
    return {
        factor * record.upperLimitCiUpperRelative, factor * record.upperLimitRelative,
        factor * record.upperLimitCiLowerRelative, factor * record.lowerLimitCiLowerRelative,
        factor * record.lowerLimitRelative,        factor * record.lowerLimitCiUpperRelative,
        relative(record.meanDifferenceCiUpper),    relative(record.meanDifference),
        relative(record.meanDifferenceCiLower),
    };
}

/// Makes one plot. Every column stays as it is until the plot has been added: whether the host copies it when it is
/// handed over, or reads it only then, is its affair.
void addPlot(BldatmanOutputChart& chart, PlotFrame& frame, const PlotContent& content)
{
    chart.setAxisLabel(true, frame.xAxisLabel);
    chart.setAxisLabel(false, content.yAxisLabel);
    chart.setDodge(content.x.size() <= maxDodgedPoints);
    std::array<std::vector<double>, 9> levels;
    std::ranges::transform(content.levels, levels.begin(), level);
    std::vector<std::string> mean = legend(content.meanLegend);
    std::vector<std::string> meanInterval = legend(content.meanIntervalLegend);
    chart.setDataVector(content.x, true);
    chart.setDataVector(content.y, false);
    chart.addToDataVector(frame.xMinMax, "xMinMax");
    chart.addToDataVector(frame.y0, "y0");
    for (std::size_t i = 0; i < levels.size(); ++i) {
        chart.addToDataVector(levels[i], "y" + std::to_string(i + 1));
    }
    chart.addToDataVector(frame.cref, "cref");
    chart.addToDataVector(frame.calimits, "calimits");
    chart.addToDataVector(mean, "cmean");
    chart.addToDataVector(meanInterval, "cMeanDiffCI");
    chart.addToDataVector(frame.crefALimitsCI, "crefALimitsCI");
    chart.addGPLGraphToProcedureJSON();
}

PlotFrame makeFrame(const BldatmanPairResult& record, const BldatmanTextCatalogue& catalogue,
                    const BldatmanCriteriaSetting& criteria)
{
    return {
        .xAxisLabel = catalogue.getText("Mean of ^1 and ^2", record.nameA, record.nameB),
        .xMinMax = lineEnds(record.means),
        .y0 = level(0.0),
        .cref = legend(catalogue.getText("Reference line at 0.")),
        .calimits = legend(plotLimitLabel(criteria.agreementLimit(), catalogue)),
        .crefALimitsCI = legend(
            catalogue.getText("^1 Confidence intervals of Agreement Limits", formatLevel(criteria.ciLevelAgreement()))),
    };
}

PlotContent differencePlot(const BldatmanPairResult& record, const BldatmanTextCatalogue& catalogue)
{
    return {
        .title = catalogue.getText("Bland-Altman_Plot_of_Differences (^1-^2)", record.nameA, record.nameB),
        .yAxisLabel = record.nameA + "-" + record.nameB,  // without blanks, unlike the tables' row label
        .x = record.means,
        .y = record.differences,
        .levels = differenceLevels(record),
        .meanLegend = catalogue.getText("Mean Difference"),
        .meanIntervalLegend = catalogue.getText("Confidence interval of Mean Difference"),
    };
}

PlotContent ratioPlot(const BldatmanPairResult& record, const BldatmanTextCatalogue& catalogue, bool percentage)
{
    const char* mean = percentage ? "Mean Difference in percentage" : "Mean Difference in ratio";
    const char* meanInterval = percentage ? "Confidence interval of Mean Difference in percentage"
                                          : "Confidence interval of Mean Difference in ratio";
    return {
        .title = catalogue.getText("Bland-Altman_Plot_of_Ratios (^1-^2)", record.nameA, record.nameB),
        .yAxisLabel = ratioRowLabel(record.nameA, record.nameB, percentage, catalogue),
        .x = record.means,
        .y = record.ratios,
        .levels = ratioLevels(record, percentage),
        .meanLegend = catalogue.getText(mean),
        .meanIntervalLegend = catalogue.getText(meanInterval),
    };
}

}  // namespace

void addPlots(StatJSONGenerator& document, const std::vector<BldatmanPairResult>& results,
              const BldatmanInputSetting& settings, const BldatmanTextCatalogue& catalogue)
{
    const BldatmanCriteriaSetting& criteria = settings.criteriaSetting();
    const auto draw = [&](PlotFrame& frame, const PlotContent& content) {
        BldatmanOutputChart chart(document, settings, content.title, catalogue);
        addPlot(chart, frame, content);
    };
    for (const BldatmanPairResult& record : results) {
        PlotFrame frame = makeFrame(record, catalogue, criteria);
        draw(frame, differencePlot(record, catalogue));
        if (settings.plotSubcommand().ratio) {
            draw(frame, ratioPlot(record, catalogue, criteria.percentage()));
        }
    }
}

}  // namespace bldatman
