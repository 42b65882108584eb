// Italian.
// Intended: the note on zero means begins with a blank.
#include "module/texts/languages/language_tables.h"

namespace bldatman {

// A row is a key and a text.
// clang-format off
const LanguageTable italianTexts = {{
    {"Limit Upper", "Limite superiore"},
    {"Limit Lower", "Limite inferiore"},
    {"Upper", "Superiore"},
    {"Lower", "Inferiore"},
    {"^1 Confidence Interval", "^1% Intervallo di Confidenza"},
    {"Data_are_log-transformed", "I dati sono trasformati come log"},
    {"First ^1 records are printed.", "Vengono stampati i primi ^1 record."},
    {"^1 is sorted in descending order", "^1 è ordinato in ordine decrescente"},
    {"Overlapping points are displayed using dodge to enhance visibility.",
     "I punti che si sovrappongono vengono visualizzati utilizzando la funzione di dodge per migliorare la visibilità."},
    {"Mean Difference", "Differenza di Medie"},
    {"Bland-Altman_Analysis_Details (^1 and ^2)", "Dettagli dell'analisi Bland-Altman (^1 e ^2)"},
    {"Confidence_Intervals_of_Mean_Differences (^1 and ^2)",
     "Intervalli di confidenza delle differenze medie (^1 e ^2)"},
    {"Confidence_Intervals_of_Agreement_Limits (^1 and ^2)",
     "Intervalli di confidenza dei limiti dell'accordo (^1 e ^2)"},
    {"Bland-Altman_Plot_of_Ratios (^1-^2)", "Grafico Bland-Altman dei rapporti (^1-^2)"},
    {"Bland-Altman_Plot_of_Differences (^1-^2)", "Grafico Bland-Altman delle differenze (^1-^2)"},
    {"For cases where the mean between the two measurements is zero, the ratio is set to zero, reflecting identical measurements and included in all plots.",
     " Nei casi in cui la media tra le due misurazioni sia pari a zero, il rapporto viene impostato a zero, riflettendo misurazioni identiche, ed è incluso in tutti i grafici."},
    {"^1 is sorted in ascending order", "^1 è ordinato in ordine crescente"},
    {"Mean is sorted in ascending order", "La media è ordinata in ordine crescente"},
    {"Difference/Mean is sorted in ascending order", "Differenza/Media è ordinata in ordine crescente"},
    {"Difference is sorted in ascending order", "Differenza è ordinata in ordine crescente"},
    {"Mean is sorted in descending order", "La media è ordinata in ordine decrescente"},
    {"Difference/Mean is sorted in descending order", "Differenza/Media è ordinata in ordine decrescente"},
    {"Difference is sorted in descending order", "Differenza è ordinata in ordine decrescente"},
    {"Mean", "Media"},
    {"Difference", "Differenza"},
    {"Difference/Mean", "Differenza/Media"},
    {"Confidence interval of Mean Difference", "Intervallo di confidenza della differenza di medie"},
    {"^1 Confidence intervals of Agreement Limits", "^1% Intervalli di confidenza dei limiti di accordo"},
    {"^1 Agreement Limit", "^1 Limite di Accordo"},
    {"Reference line at 0.", "Linea di riferimento a 0."},
    {"Mean Difference in ratio", "Differenza di medie in rapporto"},
    {"Confidence interval of Mean Difference in ratio",
     "Intervallo di confidenza della differenza di medie in rapporto"},
    {"Mean Difference in percentage", "Differenza di medie in percentuale"},
    {"Confidence interval of Mean Difference in percentage",
     "Intervallo di confidenza della differenza di medie in percentuale"},
    {"Mean of ^1 and ^2", "Media di ^1 e ^2"},
    {"Bland-Altman Analysis", "Analisi di Bland-Altman"},
    {"^1 Agreement", "^1 Accordo"},
    {"Note : Disabled dodge for potential performance gains, Overlapping data points will be hidden",
     "Nota : disabilitato il dodge per potenziali guadagni di prestazione, I punti dati sovrapposti saranno nascosti"},
}};
// clang-format on

}  // namespace bldatman
