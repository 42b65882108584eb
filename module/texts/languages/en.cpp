// English.
#include "module/texts/languages/language_tables.h"

namespace bldatman {

// A row is a key and a text.
// clang-format off
const LanguageTable englishTexts = {{
    {"Limit Upper", "Limit Upper"},
    {"Limit Lower", "Limit Lower"},
    {"Upper", "Upper"},
    {"Lower", "Lower"},
    {"^1 Confidence Interval", "^1% Confidence Interval"},
    {"Data_are_log-transformed", "Data are log-transformed"},
    {"First ^1 records are printed.", "First ^1 records are printed."},
    {"^1 is sorted in descending order", "^1 is sorted in descending order"},
    {"Overlapping points are displayed using dodge to enhance visibility.",
     "Overlapping points are displayed using dodge to enhance visibility."},
    {"Mean Difference", "Mean Difference"},
    {"Bland-Altman_Analysis_Details (^1 and ^2)", "Bland-Altman Analysis Details (^1 and ^2)"},
    {"Confidence_Intervals_of_Mean_Differences (^1 and ^2)",
     "Confidence Intervals of Mean Differences (^1 and ^2)"},
    {"Confidence_Intervals_of_Agreement_Limits (^1 and ^2)",
     "Confidence Intervals of Agreement Limits (^1 and ^2)"},
    {"Bland-Altman_Plot_of_Ratios (^1-^2)", "Bland-Altman Plot of Ratios (^1-^2)"},
    {"Bland-Altman_Plot_of_Differences (^1-^2)", "Bland-Altman Plot of Differences (^1-^2)"},
    {"For cases where the mean between the two measurements is zero, the ratio is set to zero, reflecting identical measurements and included in all plots.",
     "For cases where the mean between the two measurements is zero, the ratio is set to zero, reflecting identical measurements and included in all plots."},
    {"^1 is sorted in ascending order", "^1 is sorted in ascending order"},
    {"Mean is sorted in ascending order", "Mean is sorted in ascending order"},
    {"Difference/Mean is sorted in ascending order", "Difference/Mean is sorted in ascending order"},
    {"Difference is sorted in ascending order", "Difference is sorted in ascending order"},
    {"Mean is sorted in descending order", "Mean is sorted in descending order"},
    {"Difference/Mean is sorted in descending order", "Difference/Mean is sorted in descending order"},
    {"Difference is sorted in descending order", "Difference is sorted in descending order"},
    {"Mean", "Mean"},
    {"Difference", "Difference"},
    {"Difference/Mean", "Difference/Mean"},
    {"Confidence interval of Mean Difference", "Confidence interval of Mean Difference"},
    {"^1 Confidence intervals of Agreement Limits", "^1% Confidence intervals of Agreement Limits"},
    {"^1 Agreement Limit", "^1 Agreement Limit"},
    {"Reference line at 0.", "Reference line at 0."},
    {"Mean Difference in ratio", "Mean Difference in ratio"},
    {"Confidence interval of Mean Difference in ratio", "Confidence interval of Mean Difference in ratio"},
    {"Mean Difference in percentage", "Mean Difference in percentage"},
    {"Confidence interval of Mean Difference in percentage",
     "Confidence interval of Mean Difference in percentage"},
    {"Mean of ^1 and ^2", "Mean of ^1 and ^2"},
    {"Bland-Altman Analysis", "Bland-Altman Analysis"},
    {"^1 Agreement", "^1 Agreement"},
    {"Note : Disabled dodge for potential performance gains, Overlapping data points will be hidden",
     "Note : Disabled dodge for potential performance gains, Overlapping data points will be hidden"},
}};
// clang-format on

}  // namespace bldatman
