#include "report/languages.h"

#include "module/texts/text_catalogue.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace report {
namespace {

TEST(Languages, AreThoseThatTheModuleHasTextsFor)
{
    std::set<std::string> texts;
    for (const Language& language : languages) {
        const bldatman::BldatmanTextCatalogue catalogue{std::string(language.code)};
        texts.insert(catalogue.getText("Bland-Altman_Analysis_Details (^1 and ^2)", "a", "b"));
    }
    EXPECT_EQ(texts.size(), languages.size());
    EXPECT_FALSE(texts.contains("Bland-Altman_Analysis_Details (^1 and ^2)"));
}

TEST(Languages, AreFoundByEitherSpelling)
{
    EXPECT_EQ(languageOf("zh_TW").tag, "zh-TW");
    EXPECT_EQ(languageOf("pt-BR").contents, "Sumário");
    EXPECT_EQ(languageOf("xx").code, "en");
}

}  // namespace
}  // namespace report
