// Polish.
// Intended: the descending note has no caret and always begins with "1".
#include "module/texts/languages/language_tables.h"

namespace bldatman {

// A row is a key and a text.
// clang-format off
const LanguageTable polishTexts = {{
    {"Limit Upper", "Limit górny"},
    {"Limit Lower", "Limit dolny"},
    {"Upper", "Górny"},
    {"Lower", "Dolny"},
    {"^1 Confidence Interval", "^1% Przedział Ufności"},
    {"Data_are_log-transformed", "Dane są przekształcane logarytmicznie"},
    {"First ^1 records are printed.", "Wyświetlane są pierwsze ^1 rekordy."},
    {"^1 is sorted in descending order", "1 jest sortowane w kolejności malejącej"},
    {"Overlapping points are displayed using dodge to enhance visibility.",
     "Nakładające się na siebie punkty są wyświetlane za pomocą funkcji omijania w celu zwiększenia widoczności."},
    {"Mean Difference", "Różnica Średnich"},
    {"Bland-Altman_Analysis_Details (^1 and ^2)", "Szczegóły analizy Blanda-Altmana (^1 i ^2)"},
    {"Confidence_Intervals_of_Mean_Differences (^1 and ^2)", "Przedziały ufności różnic średnich (^1 i ^2)"},
    {"Confidence_Intervals_of_Agreement_Limits (^1 and ^2)", "Przedziały ufności granic zgodności (^1 i ^2)"},
    {"Bland-Altman_Plot_of_Ratios (^1-^2)", "Wykres współczynników Blanda-Altmana (^1-^2)"},
    {"Bland-Altman_Plot_of_Differences (^1-^2)", "Wykres różnic Blanda-Altmana (^1-^2)"},
    {"For cases where the mean between the two measurements is zero, the ratio is set to zero, reflecting identical measurements and included in all plots.",
     "W przypadku, gdy średnia między dwoma pomiarami wynosi zero, współczynnik ten jest ustawiany na zero, co odzwierciedla identyczne pomiary i jest uwzględniany na wszystkich wykresach."},
    {"^1 is sorted in ascending order", "^1 jest posortowane w porządku rosnącym"},
    {"Mean is sorted in ascending order", "Średnia jest posortowana w porządku rosnącym"},
    {"Difference/Mean is sorted in ascending order", "Różnica/Średnia jest posortowana w porządku rosnącym"},
    {"Difference is sorted in ascending order", "Różnica jest posortowana w porządku rosnącym"},
    {"Mean is sorted in descending order", "Średnia jest posortowana w porządku malejącym"},
    {"Difference/Mean is sorted in descending order", "Różnica/Średnia jest posortowana w porządku malejącym"},
    {"Difference is sorted in descending order", "Różnica jest posortowana w porządku malejącym"},
    {"Mean", "Średnia"},
    {"Difference", "Różnica"},
    {"Difference/Mean", "Różnica/Średnia"},
    {"Confidence interval of Mean Difference", "Interval ufności różnicy średnich"},
    {"^1 Confidence intervals of Agreement Limits", "^1% Interwały ufności granic porozumienia"},
    {"^1 Agreement Limit", "^1 Limit Zgody"},
    {"Reference line at 0.", "Linia odniesienia na 0."},
    {"Mean Difference in ratio", "Różnica średnich w stosunku"},
    {"Confidence interval of Mean Difference in ratio", "Interval ufności różnicy średnich w stosunku"},
    {"Mean Difference in percentage", "Różnica średnich w procentach"},
    {"Confidence interval of Mean Difference in percentage", "Interval ufności różnicy średnich w procentach"},
    {"Mean of ^1 and ^2", "Średnia z ^1 i ^2"},
    {"Bland-Altman Analysis", "Analiza Blanda-Altmana"},
    {"^1 Agreement", "^1 Zgoda"},
    {"Note : Disabled dodge for potential performance gains, Overlapping data points will be hidden",
     "Uwaga, wyłączono unikanie dla potencjalnych zysków wydajności, Nakładające się punkty danych będą ukryte"},
}};
// clang-format on

}  // namespace bldatman
