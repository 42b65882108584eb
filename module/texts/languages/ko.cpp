// Korean.
// Intended: the note on zero means begins with a blank.
#include "module/texts/languages/language_tables.h"

namespace bldatman {

// A row is a key and a text.
// clang-format off
const LanguageTable koreanTexts = {{
    {"Limit Upper", "상한"},
    {"Limit Lower", "하한"},
    {"Upper", "상위"},
    {"Lower", "하위"},
    {"^1 Confidence Interval", "^1% 신뢰 구간"},
    {"Data_are_log-transformed", "데이터가 로그 변환됨"},
    {"First ^1 records are printed.", "먼저 ^1개의 레코드가 인쇄됩니다."},
    {"^1 is sorted in descending order", "^1은 내림차순으로 정렬됨"},
    {"Overlapping points are displayed using dodge to enhance visibility.",
     "겹치는 점은 가시성을 높이기 위해 닷지를 사용하여 표시합니다."},
    {"Mean Difference", "평균 차이"},
    {"Bland-Altman_Analysis_Details (^1 and ^2)", "블랜드-알트만 분석 세부사항(^1 및 ^2)"},
    {"Confidence_Intervals_of_Mean_Differences (^1 and ^2)", "평균 차이의 신뢰 구간(^1 및 ^2)"},
    {"Confidence_Intervals_of_Agreement_Limits (^1 and ^2)", "합의 한도의 신뢰 구간(^1 및 ^2)"},
    {"Bland-Altman_Plot_of_Ratios (^1-^2)", "블랜드-알트만 비율 플롯(^1-^2)"},
    {"Bland-Altman_Plot_of_Differences (^1-^2)", "블랜드-알트만 차분 플롯(^1-^2)"},
    {"For cases where the mean between the two measurements is zero, the ratio is set to zero, reflecting identical measurements and included in all plots.",
     " 두 측정값 사이의 평균이 0인 경우 비율은 0으로 설정되어 동일한 측정값을 반영하고 모든 플롯에 포함됩니다."},
    {"^1 is sorted in ascending order", "^1은 오름차순으로 정렬되어 있습니다"},
    {"Mean is sorted in ascending order", "평균은 오름차순으로 정렬되어 있습니다"},
    {"Difference/Mean is sorted in ascending order", "차이/평균은 오름차순으로 정렬되어 있습니다"},
    {"Difference is sorted in ascending order", "차이는 오름차순으로 정렬되어 있습니다"},
    {"Mean is sorted in descending order", "평균은 내림차순으로 정렬되어 있습니다"},
    {"Difference/Mean is sorted in descending order", "차이/평균은 내림차순으로 정렬되어 있습니다"},
    {"Difference is sorted in descending order", "차이는 내림차순으로 정렬되어 있습니다"},
    {"Mean", "평균"},
    {"Difference", "차이"},
    {"Difference/Mean", "차이/평균"},
    {"Confidence interval of Mean Difference", "평균 차이의 신뢰 구간"},
    {"^1 Confidence intervals of Agreement Limits", "^1% 합의 한계의 신뢰 구간"},
    {"^1 Agreement Limit", "^1 합의 한계"},
    {"Reference line at 0.", "0에서의 기준선"},
    {"Mean Difference in ratio", "비율의 평균 차이"},
    {"Confidence interval of Mean Difference in ratio", "비율의 평균 차이의 신뢰 구간"},
    {"Mean Difference in percentage", "백분율의 평균 차이"},
    {"Confidence interval of Mean Difference in percentage", "백분율의 평균 차이의 신뢰 구간"},
    {"Mean of ^1 and ^2", "^1과 ^2의 평균"},
    {"Bland-Altman Analysis", "블랜드-알트만 분석"},
    {"^1 Agreement", "^1 합의"},
    {"Note : Disabled dodge for potential performance gains, Overlapping data points will be hidden",
     "알림, 성능 향상을 위한 회피를 비활성화했습니다, 겹치는 데이터 포인트는 숨겨집니다"},
}};
// clang-format on

}  // namespace bldatman
