// Every text of tables and plots in every language, held against the tables of the translators, which are looked up and
// filled in here.
//
// every_text.txt begins with the data. After each command, which begins with "> ", stand the texts of its document in
// order; {key|first|second} is the text of that key with its placeholders filled in.
#include "module/texts/languages/language_tables.h"
#include "tests/other_host/odd_run.h"

#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <set>

namespace {

using bldatman::LanguageTable;

std::string filledIn(std::string text, const std::string& placeholder, const std::string& argument)
{
    const std::size_t place = text.find(placeholder);
    return place == std::string::npos ? text : text.replace(place, placeholder.size(), argument);
}

/// What a line of the file comes to; without an entry the key stays as it is.
std::string requiredText(const std::string& line, const LanguageTable& table, std::set<std::string>& keys)
{
    static const std::regex reference("(.*)\\{(.*)\\|(.*)\\|(.*)\\}(.*)");
    std::smatch parts;
    if (!std::regex_match(line, parts, reference)) {
        return line;
    }
    keys.insert(parts.str(2));
    for (const auto& [key, text] : table) {
        if (key == parts.str(2)) {
            return parts.str(1) + filledIn(filledIn(text, "^1", parts[3]), "^2", parts[4]) + parts.str(5);
        }
    }
    return parts.str(1) + parts.str(2) + parts.str(5);
}

/// The texts of a document, a line each; of the statements of a plot those that hold texts.
void addTexts(const rapidjson::Value& value, std::string& lines)
{
    if (value.IsString() && !std::regex_search(value.GetString(), std::regex("^(DATA|ELEMENT|GRAPH): "))) {
        lines += value.GetString() + std::string("\n");
    } else if (value.IsArray()) {
        for (const auto& element : value.GetArray()) {
            addTexts(element, lines);
        }
    } else if (value.IsObject()) {
        for (const auto& member : value.GetObject()) {
            addTexts(member.value, lines);
        }
    }
}

void expectTexts(const char* language, const LanguageTable& table)
{
    std::ifstream file(BLDATMAN_EVERY_TEXT, std::ios::binary);
    const std::string all(std::istreambuf_iterator<char>(file), {});
    std::string required;
    std::string shown;
    std::set<std::string> keys;
    const tests::Texts lines = tests::split(all, '\n');
    for (const std::string& line : lines) {
        if (line.starts_with("> ")) {
            rapidjson::Document document;
            document.Parse(tests::run(lines[0], line.substr(2), {}, language).documents.at(0));
            addTexts(document, shown);
        } else if (&line != lines.data()) {
            required += requiredText(line, table, keys) + '\n';
        }
    }
    EXPECT_EQ(shown, required) << language;
    EXPECT_EQ(keys.size(), table.size() - 1) << "all but the note that points are not dodged";
}

TEST(OtherHost, ShowsEveryTextInEveryLanguage)
{
    expectTexts("en", bldatman::englishTexts);
    expectTexts("es", bldatman::spanishTexts);
    expectTexts("fr", bldatman::frenchTexts);
    expectTexts("it", bldatman::italianTexts);
    expectTexts("de", bldatman::germanTexts);
    expectTexts("ja", bldatman::japaneseTexts);
    expectTexts("ko", bldatman::koreanTexts);
    expectTexts("pl", bldatman::polishTexts);
    expectTexts("pt_BR", bldatman::brazilianPortugueseTexts);
    expectTexts("zh_CN", bldatman::simplifiedChineseTexts);
    expectTexts("zh_TW", bldatman::traditionalChineseTexts);
}

}  // namespace
