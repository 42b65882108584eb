#include "runner/input/dictionary.h"

#include "runner/input/csv_reader.h"
#include "runner/input/input_error.h"
#include "tests/runner/input/data_text.h"

#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

namespace runner {
namespace {

/// A dictionary, and the data that it makes of the sample or the beginning of the reason why it is refused.
using Cases = std::vector<std::pair<std::string, std::string>>;

const char* const sample = "a,t\n0,x\n-9,-9\n0.3,x\n123456789012345678901,x\n";
const char* const unchanged = "a = 0 -9 0.3 1.23456789012e+20 | t nominal {1:x} {2:-9} @2:x = 1 2 1 1";

TEST(Dictionary, ChangesWhatItMentions)
{
    const Cases cases{
        {"{}", unchanged},
        {R"({"variables": {}})", unchanged},
        {R"({"variables": {"a": {}, "t": {}}})", unchanged},
        {"\xEF\xBB\xBF"
         R"({"variables": {"a": {"label": "Gr\u00f6\u00dfe", "level": "ordinal", "missing": [-9, 30e-2],
                                 "valueLabels": {"1": "one", "+2.5": ""}}}})",
         "a \"Größe\" ordinal {1:one} {2.5:} = 0 . . 1.23456789012e+20 | t nominal {1:x} {2:-9} @2:x = 1 2 1 1"},
        // Numbers as the data have them.
        {R"({"variables": {"a": {"missing": [-0e90, 123456789012345678901]}}})",
         "a = . -9 0.3 . | t nominal {1:x} {2:-9} @2:x = 1 2 1 1"},
        // Texts stay texts.
        {R"({"variables": {"t": {"level": "scale", "missing": [1], "valueLabels": {"1": "no"}}}})",
         "a = 0 -9 0.3 1.23456789012e+20 | t {1:x} {2:-9} @2:x = 1 2 1 1"},
    };
    for (const auto& [text, expected] : cases) {
        standin::DataSet dataSet = readCsv(sample, "d.csv");
        applyDictionary(dataSet, text, "v.json");
        EXPECT_EQ(tests::asText(dataSet), expected) << text;
    }
}

TEST(Dictionary, IsRefusedAsAWholeWithLineAndReason)
{
    const Cases cases{
        {"", "v.json:1: this cannot be read as JSON: The document is empty"},
        {"{\n\"variables\": {\n}", "v.json:3: this cannot be read as JSON: "},
        {"{}\r\n{}", "v.json:2: this cannot be read as JSON: "},
        {"{\n\"variables\": \"\xE9\"}", "v.json:2: byte 0xE9 is not UTF-8; save the file as UTF-8"},
        {"[]", "v.json:1: the dictionary must be an object, in braces"},
        {"{\n\"Variables\": {}}", R"(v.json:2: "Variables" is no member of a dictionary)"},
        {R"({"variables": []})", R"(v.json:1: "variables" must be an object)"},
        {R"({"variables": {"a": {"label": "x", "missing": [0]}, "b": {}}})",
         R"(v.json:1: variable "b" is not in the data)"},
        {"{\"variables\": {\n\"a\": {},\n\"\\u0061\": {}}}", R"(v.json:3: "a" stands twice in "variables")"},
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
        {std::string(1'000'000, '['), "v.json:1: this cannot be read as JSON: "},
        {std::string(1'000'000, '[') + std::string(1'000'000, ']'), "v.json:1: the dictionary must be an object"},
    };
    for (const auto& [text, complaint] : cases) {
        standin::DataSet dataSet = readCsv(sample, "d.csv");
        try {
            applyDictionary(dataSet, text, "v.json");
            ADD_FAILURE() << "accepted: " << text;
        } catch (const InputError& error) {
            EXPECT_THAT(error.what(), testing::StartsWith(complaint));
            EXPECT_EQ(tests::asText(dataSet), unchanged);
        }
    }
}

}  // namespace
}  // namespace runner
