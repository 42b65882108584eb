// Spanish.
// Intended: the ascending notes are half French, and two keys have two blanks before "descending", so that those two
// notes show in English; the stored text of the second even says "ascending".
#include "module/texts/languages/language_tables.h"

namespace bldatman {

// A row is a key and a text.
// clang-format off
const LanguageTable spanishTexts = {{
    {"Limit Upper", "Límite Superior"},
    {"Limit Lower", "Límite Inferior"},
    {"Upper", "Superior"},
    {"Lower", "Inferior"},
    {"^1 Confidence Interval", "Intervalo de Confianza de ^1%"},
    {"Data_are_log-transformed", "Datos transformados logarítmicamente"},
    {"First ^1 records are printed.", "Se imprimen los primeros ^1 registros."},
    {"^1 is sorted in descending order", "^1 se ordena en orden descendente"},
    {"Overlapping points are displayed using dodge to enhance visibility.",
     "Los puntos superpuestos se muestran usando el dodge para mejorar la visibilidad."},
    {"Mean Difference", "Diferencia Media"},
    {"Bland-Altman_Analysis_Details (^1 and ^2)", "Detalles del análisis de Bland-Altman (^1 y ^2)"},
    {"Confidence_Intervals_of_Mean_Differences (^1 and ^2)",
     "Intervalos de Confianza de las Diferencias Medias (^1 y ^2)"},
    {"Confidence_Intervals_of_Agreement_Limits (^1 and ^2)",
     "Intervalos de confianza de los límites de acuerdo (^1 y ^2)"},
    {"Bland-Altman_Plot_of_Ratios (^1-^2)", "Diagrama de Bland-Altman de las proporciones (^1-^2)"},
    {"Bland-Altman_Plot_of_Differences (^1-^2)", "Diagrama de Bland-Altman de las diferencias (^1-^2)"},
    {"For cases where the mean between the two measurements is zero, the ratio is set to zero, reflecting identical measurements and included in all plots.",
     "En los casos en que la media entre las dos mediciones es cero, la relación se fija en cero, lo que refleja mediciones idénticas y se incluye en todos los gráficos."},
    {"^1 is sorted in ascending order", "^1 est trié par ordre ascendente"},
    {"Mean is sorted in ascending order", "Media est trié par ordre ascendente"},
    {"Difference/Mean is sorted in ascending order", "Diferencia/Media est trié par ordre ascendente"},
    {"Difference is sorted in ascending order", "Diferencia est trié par ordre ascendente"},
    {"Mean is sorted in  descending order", "Media se ordena en orden descendente"},
    {"Difference/Mean is sorted in  descending order", "Diferencia/Media est trié par ordre ascendente"},
    {"Difference is sorted in descending order", "Diferencia se ordena en orden descendente"},
    {"Mean", "Media"},
    {"Difference", "Diferencia"},
    {"Difference/Mean", "Diferencia/Media"},
    {"Confidence interval of Mean Difference", "Intervalo de confianza de la diferencia de medias"},
    {"^1 Confidence intervals of Agreement Limits", "^1% Intervalos de confianza de los límites de acuerdo"},
    {"^1 Agreement Limit", "^1 Límite de Acuerdo"},
    {"Reference line at 0.", "Línea de referencia en 0."},
    {"Mean Difference in ratio", "Diferencia de medias en razón"},
    {"Confidence interval of Mean Difference in ratio",
     "Intervalo de confianza de la diferencia de medias en razón"},
    {"Mean Difference in percentage", "Diferencia de medias en porcentaje"},
    {"Confidence interval of Mean Difference in percentage",
     "Intervalo de confianza de la diferencia de medias en porcentaje"},
    {"Mean of ^1 and ^2", "Media de ^1 y ^2"},
    {"Bland-Altman Analysis", "Análisis de Bland-Altman"},
    {"^1 Agreement", "^1 Acuerdo"},
    {"Note : Disabled dodge for potential performance gains, Overlapping data points will be hidden",
     "Nota, se desactivó el desplazamiento para posibles mejoras en el rendimiento, Los puntos de datos superpuestos se ocultarán"},
}};
// clang-format on

}  // namespace bldatman
