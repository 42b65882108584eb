#include "runner/input/dictionary.h"

#include "host/missing_value.h"
#include "runner/input/csv_reader.h"
#include "runner/input/input_error.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace runner {
namespace {

namespace levels = standin::levels;
using Values = std::vector<double>;

standin::DataSet sample()
{
    return readCsv("a,t\n1,x\n-9,-9\n0.3,x\n", "d.csv");
}

TEST(DictionaryReader, AppliesEveryMember)
{
    standin::DataSet dataSet = sample();
    applyDictionary(dataSet,
                    "\xEF\xBB\xBF"
                    R"({"variables": {"a": {"label": "Gr\u00f6\u00dfe", "level": "ordinal", "missing": [-9, 3e-1],
                                            "valueLabels": {"1": "one", "+2.5": ""}}}})",
                    "v.json");
    const standin::Variable& a = dataSet.variables[0];
    EXPECT_EQ(a.label, "Gr\xC3\xB6\xC3\x9F"
                       "e");
    EXPECT_EQ(a.level, levels::ordinal);
    EXPECT_EQ(a.values, (Values{1, systemMissingValue, systemMissingValue}));
    EXPECT_EQ(a.valueLabels, (std::map<double, std::string>{{1, "one"}, {2.5, ""}}));
}

TEST(DictionaryReader, ReadsNumbersAsTheDataHaveThem)
{
    standin::DataSet dataSet = readCsv("a\n0\n0.1\n123456789012345678901\n5\n", "d.csv");
    applyDictionary(dataSet, R"({"variables": {"a": {"missing": [-0e90, 10e-2, 123456789012345678901]}}})", "v.json");
    EXPECT_EQ(dataSet.variables[0].values, (Values{systemMissingValue, systemMissingValue, systemMissingValue, 5}));
}

TEST(DictionaryReader, LeavesTextsTexts)
{
    standin::DataSet dataSet = sample();
    applyDictionary(dataSet, R"({"variables": {"t": {"level": "scale", "missing": [1], "valueLabels": {"1": "no"}}}})",
                    "v.json");
    const standin::Variable& texts = dataSet.variables[1];
    EXPECT_EQ(texts.level, levels::scale);
    EXPECT_TRUE(texts.firstText);
    EXPECT_EQ(texts.values, (Values{1, 2, 1}));
    EXPECT_EQ(texts.valueLabels.at(1), "x");
}

TEST(DictionaryReader, KeepsWhatIsNotMentioned)
{
    for (const char* const text : {"{}", R"({"variables": {}})", R"({"variables": {"a": {}, "t": {}}})"}) {
        standin::DataSet dataSet = sample();
        applyDictionary(dataSet, text, "v.json");
        EXPECT_EQ(dataSet.variables[0].level, levels::scale);
        EXPECT_EQ(dataSet.variables[1].level, levels::nominal);
        EXPECT_EQ(dataSet.variables[1].valueLabels.size(), 2U);
    }
}

TEST(DictionaryReader, RefusesWhatItCannotUseWithLineAndReason)
{
    const std::map<std::string, std::string> complaints{
        {"", "v.json:1: this cannot be read as JSON: The document is empty"},
        {"{\n\"variables\": {\n}", "v.json:3: this cannot be read as JSON: "},
        {"{}\r\n{}", "v.json:2: this cannot be read as JSON: "},
        {"{\n\"variables\": \"\xE9\"}", "v.json:2: byte 0xE9 is not UTF-8; save the file as UTF-8"},
        {"[]", "v.json:1: the dictionary must be an object, in braces"},
        {"{\n\"Variables\": {}}", R"(v.json:2: "Variables" is no member of a dictionary)"},
        {R"({"variables": []})", R"(v.json:1: "variables" must be an object)"},
        {"{\"variables\": {\n\n\"\\u0062\": {}}}", R"(v.json:3: variable "b" is not in the data)"},
        {"{\"variables\": {\n\"a\": {},\n\"a\": {}}}", R"(v.json:3: "a" stands twice in "variables")"},
        {R"({"variables": {"a": 1}})", R"(v.json:1: variable "a" must be an object)"},
        {"{\"variables\": {\"a\": {\r\n\"labels\": {}}}}",
         R"(v.json:2: "labels" of variable "a" is unknown; a variable may have "label", "level")"},
        {"{\"variables\": {\"a\": {\r\"label\": null}}}", R"(v.json:2: "label" of variable "a" must be a text)"},
        {R"({"variables": {"a": {"label": "\uDC00"}}})", R"(v.json:1: "label" of variable "a" holds an escaped zero)"},
        {R"({"variables": {"a": {"level": "Scale"}}})",
         R"(v.json:1: "level" of variable "a" must be "scale", "nominal" or "ordinal", not "Scale")"},
        {"{\"variables\": {\"a\": {\"valueLabels\": {\"1\": \"\",\n \"one\": \"\"}}}}",
         R"(v.json:2: "one" in "valueLabels" of variable "a" is no number)"},
        {R"({"variables": {"a": {"valueLabels": {"1": "", "1.0": ""}}}})",
         R"(v.json:1: "1.0" in "valueLabels" of variable "a" labels a number that has a label already)"},
        {R"({"variables": {"a": {"valueLabels": {"1": 2}}}})",
         R"(v.json:1: "1" in "valueLabels" of variable "a" must be a text)"},
        {R"({"variables": {"a": {"missing": -9}}})",
         R"(v.json:1: "missing" of variable "a" must be a list of numbers)"},
        {R"({"variables": {"a": {"missing": ["-9"]}}})", R"(v.json:1: "missing" of variable "a" must be a list)"},
        {"{\"variables\": {\"a\": {\n\"missing\": [1e999]}}}", "v.json:2: this cannot be read as JSON: Number too big"},
    };
    for (const auto& [text, complaint] : complaints) {
        standin::DataSet dataSet = sample();
        try {
            applyDictionary(dataSet, text, "v.json");
            ADD_FAILURE() << "accepted: " << text;
        } catch (const InputError& error) {
            EXPECT_TRUE(std::string_view(error.what()).starts_with(complaint)) << text << '\n' << error.what();
        }
    }
}

TEST(DictionaryReader, ChangesNothingWhenAnyPartIsRefused)
{
    standin::DataSet dataSet = sample();
    EXPECT_THROW(applyDictionary(dataSet, R"({"variables": {"a": {"label": "x", "missing": [1]}, "b": {}}})", "v.json"),
                 InputError);
    EXPECT_EQ(dataSet.variables[0].label, "");
    EXPECT_EQ(dataSet.variables[0].values, (Values{1, -9, 0.3}));
}

TEST(DictionaryReader, SurvivesAnyDepthOfNesting)
{
    standin::DataSet dataSet = sample();
    EXPECT_THROW(applyDictionary(dataSet, std::string(1'000'000, '['), "v.json"), InputError);
    EXPECT_THROW(applyDictionary(dataSet, std::string(1'000'000, '[') + std::string(1'000'000, ']'), "v.json"),
                 InputError);
}

}  // namespace
}  // namespace runner
