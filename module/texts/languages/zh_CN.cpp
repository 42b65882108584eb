// Simplified Chinese.
// Intended: "Upper" and "Lower" are of different kinds, and "Mean Difference" begins with a blank.
#include "module/texts/languages/language_tables.h"

namespace bldatman {

// A row is a key and a text.
// clang-format off
const LanguageTable simplifiedChineseTexts = {{
    {"Limit Upper", "限制上限"},
    {"Limit Lower", "限制下限"},
    {"Upper", "上"},
    {"Lower", "降低"},
    {"^1 Confidence Interval", "^1% 置信区间"},
    {"Data_are_log-transformed", "数据经过对数转换"},
    {"First ^1 records are printed.", "打印前 ^1 条记录。"},
    {"^1 is sorted in descending order", "^1 按降序排序"},
    {"Overlapping points are displayed using dodge to enhance visibility.", "重叠点使用闪避显示，以提高可见度。"},
    {"Mean Difference", " 平均差"},
    {"Bland-Altman_Analysis_Details (^1 and ^2)", "Bland-Altman 分析详情（^1 和 ^2）"},
    {"Confidence_Intervals_of_Mean_Differences (^1 and ^2)", "均值差异的置信区间（^1 和 ^2）"},
    {"Confidence_Intervals_of_Agreement_Limits (^1 and ^2)", "协议限值的置信区间（^1 和 ^2）"},
    {"Bland-Altman_Plot_of_Ratios (^1-^2)", "Bland-Altman 比率图（^1-^2）"},
    {"Bland-Altman_Plot_of_Differences (^1-^2)", "Bland-Altman 差异图（^1-^2）"},
    {"For cases where the mean between the two measurements is zero, the ratio is set to zero, reflecting identical measurements and included in all plots.",
     "如果两次测量的平均值为零，那么比率设为零，这反映出测量结果相同，并包含在所有绘图中。"},
    {"^1 is sorted in ascending order", "^1 按升序排列"},
    {"Mean is sorted in ascending order", "平均值按升序排列"},
    {"Difference/Mean is sorted in ascending order", "差异/平均值按升序排列"},
    {"Difference is sorted in ascending order", "差异按升序排列"},
    {"Mean is sorted in descending order", "平均值按降序排列"},
    {"Difference/Mean is sorted in descending order", "差异/平均值按降序排列"},
    {"Difference is sorted in descending order", "差异按降序排列"},
    {"Mean", "平均值"},
    {"Difference", "差异"},
    {"Difference/Mean", "差异/平均值"},
    {"Confidence interval of Mean Difference", "平均差的置信区间"},
    {"^1 Confidence intervals of Agreement Limits", "^1% 协议限界的置信区间"},
    {"^1 Agreement Limit", "^1 协议限值"},
    {"Reference line at 0.", "0的参考线"},
    {"Mean Difference in ratio", "比率的平均差"},
    {"Confidence interval of Mean Difference in ratio", "比率的平均差的置信区间"},
    {"Mean Difference in percentage", "百分比的平均差"},
    {"Confidence interval of Mean Difference in percentage", "百分比的平均差的置信区间"},
    {"Mean of ^1 and ^2", "^1 和 ^2 的平均值"},
    {"Bland-Altman Analysis", "Bland-Altman 分析"},
    {"^1 Agreement", "^1 协议"},
    {"Note : Disabled dodge for potential performance gains, Overlapping data points will be hidden",
     "注意, 禁用以获得潜在性能提升, 重叠的数据点将被隐藏"},
}};
// clang-format on

}  // namespace bldatman
