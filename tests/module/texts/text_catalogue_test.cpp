#include "module/texts/text_catalogue.h"

#include "module/texts/languages/language_tables.h"
#include "report/languages.h"
#include "tests/support/traced_session.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <map>
#include <set>

namespace bldatman {
namespace {

const std::map<std::string, const LanguageTable*> tables = {
    {"en", &englishTexts},
    {"es", &spanishTexts},
    {"fr", &frenchTexts},
    {"it", &italianTexts},
    {"de", &germanTexts},
    {"ja", &japaneseTexts},
    {"ko", &koreanTexts},
    {"pl", &polishTexts},
    {"pt_BR", &brazilianPortugueseTexts},
    {"zh_CN", &simplifiedChineseTexts},
    {"zh_TW", &traditionalChineseTexts},
};

std::string textIn(const std::string& language, const std::string& key, const std::string& arg1 = "",
                   const std::string& arg2 = "")
{
    return BldatmanTextCatalogue(language).getText(key, arg1, arg2);
}

/// FNV-1a, 64 bits, over every key and text in order, each with its terminating zero.
std::uint64_t digest(const LanguageTable& table)
{
    std::uint64_t hash = 0xcbf29ce484222325ULL;
    const auto add = [&hash](const std::string& text) {
        for (std::size_t i = 0; i <= text.size(); ++i) {
            hash = (hash ^ static_cast<unsigned char>(text.c_str()[i])) * 0x100000001b3ULL;
        }
    };
    for (const CatalogueEntry& entry : table) {
        add(entry.key);
        add(entry.text);
    }
    return hash;
}

// The digests were computed from the translators' delivery, not from the tables here: a byte that changes in a table
// is noticed, and must be meant.
TEST(TextCatalogue, HoldsTheDeliveredTextsToTheByte)
{
    const std::map<std::string, std::uint64_t> delivered = {
        {"en", 0xb8f2179b80d3b3fbULL},    {"es", 0x66a8f5abbc8b9bb0ULL},    {"fr", 0x2edaea82dc55f611ULL},
        {"it", 0x7dcea26bd014ffc4ULL},    {"de", 0x3013370231a39033ULL},    {"ja", 0x1fdca59b0f8ab88dULL},
        {"ko", 0x38075e22753a0ea3ULL},    {"pl", 0xb84302f98de72934ULL},    {"pt_BR", 0xae6f3433223fe9baULL},
        {"zh_CN", 0xe5612f42f8862a9dULL}, {"zh_TW", 0x71cce296184b985cULL},
    };
    ASSERT_EQ(tables.size(), delivered.size());
    for (const auto& [code, table] : tables) {
        EXPECT_EQ(digest(*table), delivered.at(code)) << code;
    }
}

TEST(TextCatalogue, HasTextsForEveryLanguageThatIsOffered)
{
    std::set<std::string> texts;
    for (const report::Language& language : report::languages) {
        texts.insert(textIn(std::string(language.code), "Bland-Altman_Analysis_Details (^1 and ^2)", "a", "b"));
    }
    EXPECT_EQ(texts.size(), report::languages.size());
    EXPECT_FALSE(texts.contains("Bland-Altman_Analysis_Details (^1 and ^2)"));
}

TEST(TextCatalogue, FillsTheFirstOfEachPlaceholderInTurn)
{
    EXPECT_EQ(textIn("en", "Bland-Altman_Plot_of_Differences (^1-^2)", "A", "B"),
              "Bland-Altman Plot of Differences (A-B)");
    EXPECT_EQ(textIn("en", "Mean of ^1 and ^2", "^2", "B"), "Mean of B and ^2");
    EXPECT_EQ(textIn("en", "Mean of ^1 and ^2", "^1", "^1^2"), "Mean of ^1 and ^1^2");
    EXPECT_EQ(textIn("en", "^1 Confidence Interval", "95"), "95% Confidence Interval");
    EXPECT_EQ(textIn("es", "^1 Confidence Interval", "95"), "Intervalo de Confianza de 95%");
    EXPECT_EQ(textIn("en", "^1 Agreement Limit"), " Agreement Limit");
}

TEST(TextCatalogue, ReturnsTheKeyAsItStandsOnAMiss)
{
    EXPECT_EQ(textIn("ru", "^1 Agreement Limit", "95"), "^1 Agreement Limit");
    EXPECT_EQ(textIn("en_US", "Data_are_log-transformed"), "Data_are_log-transformed");
    EXPECT_EQ(textIn("EN", "Mean"), "Mean");
    EXPECT_EQ(textIn("de", "no such ^1", "x"), "no such ^1");
}

std::string languageFor(const std::string& code, const std::string& folder)
{
    standin::Session session;
    session.languageCode = code;
    session.languageFolder = folder;
    return BldatmanTextCatalogue::chooseLanguage();
}

TEST(TextCatalogue, ChoosesTheFoldersLastComponentElseTheHostsCode)
{
    EXPECT_EQ(languageFor("en", R"(C:\host\lang\zh_TW)"), "zh_TW");
    EXPECT_EQ(languageFor("en", R"(C:\host\lang\zh_TW\)"), "zh_TW");
    EXPECT_EQ(languageFor("en", R"(C:\host\zh_TW\\)"), "") << "only one separator is dropped";
    EXPECT_EQ(languageFor("zh-CN", "no-separator"), "zh_CN");
    EXPECT_EQ(languageFor("pt-B-R", "\\"), "pt_B_R");
    EXPECT_EQ(languageFor("en", R"(lang\pt-BR)"), "pt-BR") << "the folder's name is used as it is";
}

TEST(TextCatalogue, AsksTheHostInOrder)
{
    tests::TracedSession host;
    host.session.setLanguage("zh-CN");
    EXPECT_EQ(BldatmanTextCatalogue::chooseLanguage(), "zh_CN");
    EXPECT_THAT(tests::callsOf(host.takeTrace(), {""}),
                testing::ElementsAre("OLang::OLang []", "OLang::GetLanguageCode []", "OLang::~OLang []",
                                     "PathFactory::getPathInstance [3]", "PathFinder::getPath []",
                                     "ExtNameStr::GetU8 []", R"(QUVOMBstrrchr_8 ["languages\\zh_CN",92])"));
}

}  // namespace
}  // namespace bldatman
