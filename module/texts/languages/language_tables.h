// The texts of the output, one table per language, one file per table: a place for translators.
// Each is entered under its code in text_catalogue.cpp.
#pragma once

#include <array>

namespace bldatman {

/// `key` is the English key by which callers ask; `text` may hold the placeholders ^1 and ^2. UTF-8.
struct CatalogueEntry {
    const char* key;
    const char* text;
};

/// Every language has the same rows in the same order.
using LanguageTable = std::array<CatalogueEntry, 38>;

extern const LanguageTable englishTexts;
extern const LanguageTable spanishTexts;
extern const LanguageTable frenchTexts;
extern const LanguageTable italianTexts;
extern const LanguageTable germanTexts;
extern const LanguageTable japaneseTexts;
extern const LanguageTable koreanTexts;
extern const LanguageTable polishTexts;
extern const LanguageTable brazilianPortugueseTexts;
extern const LanguageTable simplifiedChineseTexts;
extern const LanguageTable traditionalChineseTexts;

}  // namespace bldatman
