// German.
#include "module/texts/languages/language_tables.h"

namespace bldatman {

// A row is a key and a text.
// clang-format off
const LanguageTable germanTexts = {{
    {"Limit Upper", "Obere Grenze"},
    {"Limit Lower", "Untere Grenze"},
    {"Upper", "Oberes"},
    {"Lower", "Unteres"},
    {"^1 Confidence Interval", "^1% Konfidenzintervall"},
    {"Data_are_log-transformed", "Daten sind log-transformiert"},
    {"First ^1 records are printed.", "Die ersten ^1 Datensätze werden gedruckt."},
    {"^1 is sorted in descending order", "^1 wird in absteigender Reihenfolge sortiert"},
    {"Overlapping points are displayed using dodge to enhance visibility.",
     "Überlappende Punkte werden durch Abwedeln dargestellt, um die Sichtbarkeit zu verbessern."},
    {"Mean Difference", "Mittelwertdifferenz"},
    {"Bland-Altman_Analysis_Details (^1 and ^2)", "Einzelheiten der Bland-Altman-Analyse (^1 und ^2)"},
    {"Confidence_Intervals_of_Mean_Differences (^1 and ^2)",
     "Konfidenzintervalle der Mittelwertdifferenzen (^1 und ^2)"},
    {"Confidence_Intervals_of_Agreement_Limits (^1 and ^2)",
     "Konfidenzintervalle der Übereinstimmungsgrenzen (^1 und ^2)"},
    {"Bland-Altman_Plot_of_Ratios (^1-^2)", "Bland-Altman-Diagramm der Verhältnisse (^1-^2)"},
    {"Bland-Altman_Plot_of_Differences (^1-^2)", "Bland-Altman-Diagramm der Differenzen (^1-^2)"},
    {"For cases where the mean between the two measurements is zero, the ratio is set to zero, reflecting identical measurements and included in all plots.",
     "In Fällen, in denen der Mittelwert zwischen den beiden Messungen gleich Null ist, wird das Verhältnis auf Null gesetzt, was identische Messungen widerspiegelt und in allen Diagrammen berücksichtigt wird."},
    {"^1 is sorted in ascending order", "^1 ist in aufsteigender Reihenfolge sortiert"},
    {"Mean is sorted in ascending order", "Der Durchschnitt ist in aufsteigender Reihenfolge sortiert"},
    {"Difference/Mean is sorted in ascending order",
     "Differenz/Durchschnitt ist in aufsteigender Reihenfolge sortiert"},
    {"Difference is sorted in ascending order", "Differenz ist in aufsteigender Reihenfolge sortiert"},
    {"Mean is sorted in descending order", "Der Durchschnitt ist in absteigender Reihenfolge sortiert"},
    {"Difference/Mean is sorted in descending order",
     "Differenz/Durchschnitt ist in absteigender Reihenfolge sortiert"},
    {"Difference is sorted in descending order", "Differenz ist in absteigender Reihenfolge sortiert"},
    {"Mean", "Durchschnitt"},
    {"Difference", "Differenz"},
    {"Difference/Mean", "Differenz/Durchschnitt"},
    {"Confidence interval of Mean Difference", "Konfidenzintervall der Mittelwertdifferenz"},
    {"^1 Confidence intervals of Agreement Limits", "^1% Konfidenzintervalle der Vereinbarungsgrenzen"},
    {"^1 Agreement Limit", "^1 Vereinbarungsgrenze"},
    {"Reference line at 0.", "Referenzlinie bei 0."},
    {"Mean Difference in ratio", "Mittelwertdifferenz im Verhältnis"},
    {"Confidence interval of Mean Difference in ratio",
     "Konfidenzintervall der Mittelwertdifferenz im Verhältnis"},
    {"Mean Difference in percentage", "Mittelwertdifferenz in Prozent"},
    {"Confidence interval of Mean Difference in percentage",
     "Konfidenzintervall der Mittelwertdifferenz in Prozent"},
    {"Mean of ^1 and ^2", "Mittelwert von ^1 und ^2"},
    {"Bland-Altman Analysis", "Bland-Altman-Analyse"},
    {"^1 Agreement", "^1 Vereinbarung"},
    {"Note : Disabled dodge for potential performance gains, Overlapping data points will be hidden",
     "Hinweis, Dodge für potenzielle Leistungssteigerungen deaktiviert, Überlappende Datenpunkte werden ausgeblendet"},
}};
// clang-format on

}  // namespace bldatman
