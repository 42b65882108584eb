#include "report/languages.h"

#include <algorithm>

namespace report {

const std::array<Language, 11> languages = {{
    {"en", "en", "English", "Contents"},
    {"es", "es", "Spanish", "Contenido"},
    {"fr", "fr", "French", "Sommaire"},
    {"it", "it", "Italian", "Indice"},
    {"de", "de", "German", "Inhalt"},
    {"ja", "ja", "Japanese", "目次"},
    {"ko", "ko", "Korean", "목차"},
    {"pl", "pl", "Polish", "Spis treści"},
    {"pt_BR", "pt-BR", "Portuguese (Brazil)", "Sumário"},
    {"zh_CN", "zh-CN", "Chinese (simplified)", "目录"},
    {"zh_TW", "zh-TW", "Chinese (traditional)", "目錄"},
}};

const Language& languageOf(std::string_view code)
{
    const auto* found = std::ranges::find_if(
        languages, [code](const Language& known) { return known.code == code || known.tag == code; });
    return found == languages.end() ? languages.front() : *found;
}

}  // namespace report
