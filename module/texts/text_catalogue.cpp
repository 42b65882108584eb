#include "module/texts/text_catalogue.h"

#include "host/language_paths.h"
#include "module/texts/languages/language_tables.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

namespace bldatman {

namespace {

constexpr int languageFolderKind = 3;
constexpr char separator = '\\';

std::string hostLanguageCode()
{
    OLang language;  // whether its getter is constant is the host's affair
    std::string code = language.GetLanguageCode();
    std::ranges::replace(code, '-', '_');
    return code;
}

std::string hostLanguageFolder()
{
    PathFinder* finder = PathFactory::getPathInstance(languageFolderKind);
    return finder->getPath()->GetU8();  // the name of the finder's operation is the host's, and stands here alone
}

/// Drops one separator from the end. The standard library's own words for an empty path differ between
/// implementations, so the error is raised here.
void dropTrailingSeparator(std::string& path)
{
    if (path.empty()) {
        throw std::out_of_range("invalid string position");
    }
    if (path.back() == separator) {
        path.pop_back();
    }
}

void replaceFirst(std::string& text, std::string_view placeholder, const std::string& argument)
{
    const std::size_t position = text.find(placeholder);
    if (position != std::string::npos) {
        text.replace(position, placeholder.size(), argument);
    }
}

}  // namespace

std::string BldatmanTextCatalogue::chooseLanguage()
{
    std::string code = hostLanguageCode();
    std::string folder = hostLanguageFolder();
    dropTrailingSeparator(folder);
    const char* lastSeparator = QUVOMBstrrchr_8(folder.c_str(), separator);
    return lastSeparator != nullptr ? std::string(lastSeparator + 1) : code;
}

BldatmanTextCatalogue::BldatmanTextCatalogue(const std::string& language)
    : language_(language)
{
    fill();
}

void BldatmanTextCatalogue::fill()
{
    const auto add = [this](const char* code, const LanguageTable& table) {
        Texts& texts = texts_[code];
        texts.clear();
        for (const CatalogueEntry& entry : table) {
            texts.emplace(entry.key, entry.text);
        }
    };
    add("en", englishTexts);
    add("es", spanishTexts);
    add("fr", frenchTexts);
    add("it", italianTexts);
    add("de", germanTexts);
    add("ja", japaneseTexts);
    add("ko", koreanTexts);
    add("pl", polishTexts);
    add("pt_BR", brazilianPortugueseTexts);
    add("zh_CN", simplifiedChineseTexts);
    add("zh_TW", traditionalChineseTexts);
}

std::string BldatmanTextCatalogue::getText(const std::string& key, const std::string& arg1,
                                           const std::string& arg2) const
{
    const auto table = texts_.find(language_);
    if (table == texts_.end()) {
        return key;
    }
    const auto entry = table->second.find(key);
    if (entry == table->second.end()) {
        return key;
    }
    std::string text = entry->second;
    replaceFirst(text, "^1", arg1);
    replaceFirst(text, "^2", arg2);
    return text;
}

}  // namespace bldatman
