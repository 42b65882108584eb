// Brazilian Portuguese.
#include "module/texts/languages/language_tables.h"

namespace bldatman {

// A row is a key and a text.
// clang-format off
const LanguageTable brazilianPortugueseTexts = {{
    {"Limit Upper", "Limite Superior"},
    {"Limit Lower", "Limite Inferior"},
    {"Upper", "Superior"},
    {"Lower", "Inferior"},
    {"^1 Confidence Interval", "Intervalo de Confiança de ^1%"},
    {"Data_are_log-transformed", "Os dados foram transformados em logaritmos"},
    {"First ^1 records are printed.", "Os primeiros ^1 registros são impressos."},
    {"^1 is sorted in descending order", "^1 está classificado em ordem decrescente"},
    {"Overlapping points are displayed using dodge to enhance visibility.",
     "Pontos sobrepostos são exibidos usando dodge para melhorar a visibilidade."},
    {"Mean Difference", "Diferença Média"},
    {"Bland-Altman_Analysis_Details (^1 and ^2)", "Detalhes da Análise Bland-Altman (^1 e ^2)"},
    {"Confidence_Intervals_of_Mean_Differences (^1 and ^2)",
     "Intervalos de Confiança das Diferenças Médias (^1 e ^2)"},
    {"Confidence_Intervals_of_Agreement_Limits (^1 and ^2)",
     "Intervalos de Confiança dos Limites de Concordância (^1 e ^2)"},
    {"Bland-Altman_Plot_of_Ratios (^1-^2)", "Gráfico de Razões Bland-Altman (^1-^2)"},
    {"Bland-Altman_Plot_of_Differences (^1-^2)", "Gráfico de Diferenças Bland-Altman (^1-^2)"},
    {"For cases where the mean between the two measurements is zero, the ratio is set to zero, reflecting identical measurements and included in all plots.",
     "Para os casos em que a média entre as duas medições é zero, a razão é definida como zero, refletindo medições idênticas e incluídas em todos os gráficos."},
    {"^1 is sorted in ascending order", "^1 está ordenado em ordem crescente"},
    {"Mean is sorted in ascending order", "A média está ordenada em ordem crescente"},
    {"Difference/Mean is sorted in ascending order", "Diferença/Média está ordenada em ordem crescente"},
    {"Difference is sorted in ascending order", "Diferença está ordenada em ordem crescente"},
    {"Mean is sorted in descending order", "A média está ordenada em ordem decrescente"},
    {"Difference/Mean is sorted in descending order", "Diferença/Média está ordenada em ordem decrescente"},
    {"Difference is sorted in descending order", "Diferença está ordenada em ordem decrescente"},
    {"Mean", "Média"},
    {"Difference", "Diferença"},
    {"Difference/Mean", "Diferença/Média"},
    {"Confidence interval of Mean Difference", "Intervalo de confiança da diferença de médias"},
    {"^1 Confidence intervals of Agreement Limits", "^1% Intervalos de confiança dos limites de acordo"},
    {"^1 Agreement Limit", "^1 Limite de Acordo"},
    {"Reference line at 0.", "Linha de referência em 0."},
    {"Mean Difference in ratio", "Diferença de médias em razão"},
    {"Confidence interval of Mean Difference in ratio",
     "Intervalo de confiança da diferença de médias em razão"},
    {"Mean Difference in percentage", "Diferença de médias em percentual"},
    {"Confidence interval of Mean Difference in percentage",
     "Intervalo de confiança da diferença de médias em percentual"},
    {"Mean of ^1 and ^2", "Média de ^1 e ^2"},
    {"Bland-Altman Analysis", "Análise Bland-Altman"},
    {"^1 Agreement", "^1 Acordo"},
    {"Note : Disabled dodge for potential performance gains, Overlapping data points will be hidden",
     "Nota, dodge desativado para possíveis ganhos de desempenho, Pontos de dados sobrepostos serão ocultos"},
}};
// clang-format on

}  // namespace bldatman
