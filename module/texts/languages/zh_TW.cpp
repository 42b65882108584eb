// Traditional Chinese.
// Intended: "Upper" and "Lower" are of different kinds.
#include "module/texts/languages/language_tables.h"

namespace bldatman {

// A row is a key and a text.
// clang-format off
const LanguageTable traditionalChineseTexts = {{
    {"Limit Upper", "限制上限"},
    {"Limit Lower", "限制下限"},
    {"Upper", "上"},
    {"Lower", "降低"},
    {"^1 Confidence Interval", "^1% 置信區間"},
    {"Data_are_log-transformed", "數據經過對數轉換"},
    {"First ^1 records are printed.", "首先列印 ^1 條記錄。"},
    {"^1 is sorted in descending order", "^1 以降序排序"},
    {"Overlapping points are displayed using dodge to enhance visibility.", "重疊的點會使用閃爍顯示，以提高可見度。"},
    {"Mean Difference", "平均差"},
    {"Bland-Altman_Analysis_Details (^1 and ^2)", "Bland-Altman 分析詳細資料 (^1 和 ^2)"},
    {"Confidence_Intervals_of_Mean_Differences (^1 and ^2)", "平均值差異的置信區間(^1 和 ^2)"},
    {"Confidence_Intervals_of_Agreement_Limits (^1 and ^2)", "協定限值的置信區間(^1 和 ^2)"},
    {"Bland-Altman_Plot_of_Ratios (^1-^2)", "比率的 Bland-Altman 圖 (^1-^2)"},
    {"Bland-Altman_Plot_of_Differences (^1-^2)", "Bland-Altman 差異圖 (^1-^2)"},
    {"For cases where the mean between the two measurements is zero, the ratio is set to zero, reflecting identical measurements and included in all plots.",
     "對於兩次測量之間的平均值為零的情況，比率設定為零，反映測量結果完全相同，並包含在所有圖中。"},
    {"^1 is sorted in ascending order", "^1 按升序排列"},
    {"Mean is sorted in ascending order", "平均值按升序排列"},
    {"Difference/Mean is sorted in ascending order", "差異/平均值按升序排列"},
    {"Difference is sorted in ascending order", "差異按升序排列"},
    {"Mean is sorted in descending order", "平均值按降序排列"},
    {"Difference/Mean is sorted in descending order", "差異/平均值按降序排列"},
    {"Difference is sorted in descending order", "差異按降序排列"},
    {"Mean", "平均值"},
    {"Difference", "差異"},
    {"Difference/Mean", "差異/平均值"},
    {"Confidence interval of Mean Difference", "平均差的信賴區間"},
    {"^1 Confidence intervals of Agreement Limits", "^1% 協議限界的信賴區間"},
    {"^1 Agreement Limit", "^1 協議限值"},
    {"Reference line at 0.", "0的參考線"},
    {"Mean Difference in ratio", "比率的平均差"},
    {"Confidence interval of Mean Difference in ratio", "比率的平均差的信賴區間"},
    {"Mean Difference in percentage", "百分比的平均差"},
    {"Confidence interval of Mean Difference in percentage", "百分比的平均差的信賴區間"},
    {"Mean of ^1 and ^2", "^1 和 ^2 的平均值"},
    {"Bland-Altman Analysis", "Bland-Altman 分析"},
    {"^1 Agreement", "^1 協議"},
    {"Note : Disabled dodge for potential performance gains, Overlapping data points will be hidden",
     "注意, 禁用以獲得潛在性能提升, 重疊的數據點將被隱藏"},
}};
// clang-format on

}  // namespace bldatman
