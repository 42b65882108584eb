// The output languages that this host offers.
#pragma once

#include <array>
#include <string_view>

namespace report {

struct Language {
    std::string_view code;      ///< as the host reports it: "pt_BR"
    std::string_view tag;       ///< as web pages name it: "pt-BR"
    std::string_view name;      ///< in English
    std::string_view contents;  ///< "Contents", in the language
};

/// English comes first.
extern const std::array<Language, 11> languages;

/// The language of a code; '-' and '_' are the same in it. English, in which all texts without a translation are, where
/// there is no such language.
const Language& languageOf(std::string_view code);

}  // namespace report
