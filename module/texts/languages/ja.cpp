// Japanese.
// Intended: "^3" is no placeholder and shows as it stands, one title has a doubled parenthesis, and the last note is
// Chinese.
#include "module/texts/languages/language_tables.h"

namespace bldatman {

// A row is a key and a text.
// clang-format off
const LanguageTable japaneseTexts = {{
    {"Limit Upper", "リミット上限"},
    {"Limit Lower", "下限値"},
    {"Upper", "上限"},
    {"Lower", "下限"},
    {"^1 Confidence Interval", "^1% 信頼区間"},
    {"Data_are_log-transformed", "データは対数変換されています"},
    {"First ^1 records are printed.", "最初の ^1 レコードが印刷されます"},
    {"^1 is sorted in descending order", "^3 は降順にソートされます"},
    {"Overlapping points are displayed using dodge to enhance visibility.", "重なり合った点は視認性を高めるためにドッジで表示されます。"},
    {"Mean Difference", "平均差"},
    {"Bland-Altman_Analysis_Details (^1 and ^2)", "ブランド-アルトマン分析の詳細 (^1 と ^2)"},
    {"Confidence_Intervals_of_Mean_Differences (^1 and ^2)", "平均差の信頼区間 (^1 と ^2))"},
    {"Confidence_Intervals_of_Agreement_Limits (^1 and ^2)", "合意限界の信頼区間 (^1 と ^2)"},
    {"Bland-Altman_Plot_of_Ratios (^1-^2)", "ブランド-アルトマンの比率プロット (^1-^2)"},
    {"Bland-Altman_Plot_of_Differences (^1-^2)", "ブランド-アルトマンの差プロット (^1-^2)"},
    {"For cases where the mean between the two measurements is zero, the ratio is set to zero, reflecting identical measurements and included in all plots.",
     "2つの測定値の平均がゼロの場合、比率はゼロに設定され、同一の測定結果を反映し、すべてのプロットに含まれます。"},
    {"^1 is sorted in ascending order", "^1は昇順に並べられています"},
    {"Mean is sorted in ascending order", "平均は昇順に並べられています"},
    {"Difference/Mean is sorted in ascending order", "差/平均は昇順に並べられています"},
    {"Difference is sorted in ascending order", "差は昇順に並べられています"},
    {"Mean is sorted in descending order", "平均は降順に並べられています"},
    {"Difference/Mean is sorted in descending order", "差/平均は降順に並べられています"},
    {"Difference is sorted in descending order", "差は降順に並べられています"},
    {"Mean", "平均"},
    {"Difference", "差"},
    {"Difference/Mean", "差/平均"},
    {"Confidence interval of Mean Difference", "平均差の信頼区間"},
    {"^1 Confidence intervals of Agreement Limits", "^1% 合意限界の信頼区間"},
    {"^1 Agreement Limit", "^1 合意限制"},
    {"Reference line at 0.", "0の参照線"},
    {"Mean Difference in ratio", "比率の平均差"},
    {"Confidence interval of Mean Difference in ratio", "比率の平均差の信頼区間"},
    {"Mean Difference in percentage", "割合の平均差"},
    {"Confidence interval of Mean Difference in percentage", "割合の平均差の信頼区間"},
    {"Mean of ^1 and ^2", "^1 と ^2 の平均"},
    {"Bland-Altman Analysis", "ブランド-アルトマン分析"},
    {"^1 Agreement", "^1 合意"},
    {"Note : Disabled dodge for potential performance gains, Overlapping data points will be hidden",
     "注意, 禁用以获得潜在性能提升, 重叠的数据点将被隐藏"},
}};
// clang-format on

}  // namespace bldatman
