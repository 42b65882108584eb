// French.
// Intended: the note on overlapping points is Spanish.
#include "module/texts/languages/language_tables.h"

namespace bldatman {

// A row is a key and a text.
// clang-format off
const LanguageTable frenchTexts = {{
    {"Limit Upper", "Limite supérieure"},
    {"Limit Lower", "Limite inférieure"},
    {"Upper", "Supérieur"},
    {"Lower", "Inférieur"},
    {"^1 Confidence Interval", "^1% Intervalle de Confiance"},
    {"Data_are_log-transformed", "Les données subissent une transformation logarithmique"},
    {"First ^1 records are printed.", "Les ^1 premiers enregistrements sont imprimés."},
    {"^1 is sorted in descending order", "^1 est trié par ordre décroissant"},
    {"Overlapping points are displayed using dodge to enhance visibility.",
     "Los puntos superpuestos se muestran mediante esquive para mejorar su visibilidad."},
    {"Mean Difference", "Différence de Moyennes"},
    {"Bland-Altman_Analysis_Details (^1 and ^2)", "Détails de l'analyse de Bland-Altman (^1 et ^2)"},
    {"Confidence_Intervals_of_Mean_Differences (^1 and ^2)",
     "Intervalles de confiance des différences de moyennes (^1 et ^2)"},
    {"Confidence_Intervals_of_Agreement_Limits (^1 and ^2)",
     "Intervalles de confiance des limites d'agrément (^1 et ^2)"},
    {"Bland-Altman_Plot_of_Ratios (^1-^2)", "Graphique des ratios de Bland-Altman (^1-^2)"},
    {"Bland-Altman_Plot_of_Differences (^1-^2)", "Graphique des différences de Bland-Altman (^1-^2)"},
    {"For cases where the mean between the two measurements is zero, the ratio is set to zero, reflecting identical measurements and included in all plots.",
     "Dans les cas où la moyenne entre les deux mesures est nulle, le ratio est défini sur zéro, ce qui indique des mesures identiques et incluses dans tous les graphiques."},
    {"^1 is sorted in ascending order", "^1 est trié par ordre croissant"},
    {"Mean is sorted in ascending order", "La moyenne est triée par ordre croissant"},
    {"Difference/Mean is sorted in ascending order", "Différence/Moyenne est triée par ordre croissant"},
    {"Difference is sorted in ascending order", "Différence est triée par ordre croissant"},
    {"Mean is sorted in descending order", "La moyenne est triée par ordre décroissant"},
    {"Difference/Mean is sorted in descending order", "Différence/Moyenne est triée par ordre décroissant"},
    {"Difference is sorted in descending order", "Différence est triée par ordre décroissant"},
    {"Mean", "Moyenne"},
    {"Difference", "Différence"},
    {"Difference/Mean", "Différence/Moyenne"},
    {"Confidence interval of Mean Difference", "Intervalle de confiance de la différence de moyennes"},
    {"^1 Confidence intervals of Agreement Limits", "^1% Intervalles de confiance des limites d'accord"},
    {"^1 Agreement Limit", "^1 Limite d'Accord"},
    {"Reference line at 0.", "Ligne de référence à 0."},
    {"Mean Difference in ratio", "Différence de moyennes en ratio"},
    {"Confidence interval of Mean Difference in ratio",
     "Intervalle de confiance de la différence de moyennes en ratio"},
    {"Mean Difference in percentage", "Différence de moyennes en pourcentage"},
    {"Confidence interval of Mean Difference in percentage",
     "Intervalle de confiance de la différence de moyennes en pourcentage"},
    {"Mean of ^1 and ^2", "Moyenne de ^1 et ^2"},
    {"Bland-Altman Analysis", "Analyse de Bland-Altman"},
    {"^1 Agreement", "^1 Accord"},
    {"Note : Disabled dodge for potential performance gains, Overlapping data points will be hidden",
     "Remarque : le dodge a été désactivé pour des gains de performance potentiels, Les points de données se chevauchant seront masqués"},
}};
// clang-format on

}  // namespace bldatman
