// What must hold of whole commands whatever the data and the settings are: both are drawn, from seeds that stay the
// same.
#include "host/missing_value.h"
#include "tests/support/command_run.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

using rapidjson::Value;
using standin::DataSet;
using testing::UnorderedElementsAreArray;

using Row = std::vector<double>;
using Rows = std::vector<Row>;

const char* const details = "Bland-Altman Analysis Details";
const char* const biasTable = "Confidence Intervals of Mean Differences";
const char* const limitsTable = "Confidence Intervals of Agreement Limits";
const std::string everyTable = " PRINT(DETAILS ROWS=1000 MEANDIFF AGREEMENT)";

class Draw {
public:
    explicit Draw(unsigned seed)
        : engine_(seed)
    {
    }

    int between(int least, int most) { return std::uniform_int_distribution<int>(least, most)(engine_); }

    template <class Choice>
    Choice oneOf(std::vector<Choice> choices)
    {
        return choices[static_cast<std::size_t>(between(0, static_cast<int>(choices.size()) - 1))];
    }

    /// Variables a to d on a grid of powers of two, where sums and differences are exact. In a third of the draws the
    /// grid is so narrow that values, means and differences repeat and are often zero.
    DataSet dataSet(int percentMissing)
    {
        const bool isNarrow = between(1, 3) == 1;
        DataSet dataSet;
        dataSet.caseCount = static_cast<std::size_t>(between(6, 40));
        for (const char* name : {"a", "b", "c", "d"}) {
            standin::Variable& variable = dataSet.variables.emplace_back();
            variable.name = name;
            for (std::size_t i = 0; i < dataSet.caseCount; ++i) {
                const bool isMissing = i > 2 && between(1, 100) <= percentMissing;
                const double value = isNarrow ? between(-3, 3) : between(-9999, 99999) / 64.0;
                variable.values.push_back(isMissing ? systemMissingValue : value);
            }
        }
        return dataSet;
    }

    std::string settings()
    {
        const auto limits = oneOf<std::string>({"95", "99", "1", "68", "TWOSD", "THREESD"});
        const std::string levelOfLimits = std::to_string(between(0, 990) / 10.0);
        const std::string levelOfBias = std::to_string(between(0, 990) / 10.0);
        return " AGREEMENT_LIMITS=" + limits + " CILEVEL_AGREEMENT=" + levelOfLimits +
               " CILEVEL_MEANDIFF=" + levelOfBias;
    }

    std::string onOff() { return oneOf<std::string>({"TRUE", "FALSE"}); }

private:
    std::mt19937 engine_;
};

class WholeCommands : public testing::TestWithParam<unsigned> {
protected:
    /// The document of a command over the data.
    const Value& documentOf(const DataSet& dataSet, const std::string& command)
    {
        host.session.dataSet = dataSet;
        const auto outcome = host.run(command);
        EXPECT_TRUE(outcome.delivered) << command << '\n' << outcome.errors;
        EXPECT_EQ(outcome.errors, "");
        return host.document();
    }

    static Rows cellsOf(const Value& document, const char* table)
    {
        Rows rows;
        for (const Value& object : document["objects"].GetArray()) {
            if (object["name"] == table) {
                for (const Value& row : object["cells"].GetArray()) {
                    Row cells;
                    for (const Value& cell : row.GetArray()) {
                        cells.push_back(cell.GetDouble());
                    }
                    rows.push_back(std::move(cells));
                }
            }
        }
        EXPECT_FALSE(rows.empty()) << table;
        return rows;
    }

    static std::vector<std::string> objectsOf(const Value& document)
    {
        std::vector<std::string> objects;
        for (const Value& object : document["objects"].GetArray()) {
            objects.push_back(tests::json(object));
        }
        return objects;
    }

    Draw draw{GetParam()};
    tests::Host host{"a"};
};

/// A document without all that a sort moves, and without the footnote that tells of it.
std::string withoutRows(const Value& document)
{
    rapidjson::Document rest;
    rest.CopyFrom(document, rest.GetAllocator());
    for (Value& object : rest["objects"].GetArray()) {
        if (object["name"] == details) {
            object.RemoveMember("cells");
            for (const char* list : {"footnotes", "footnoteRefs"}) {
                const rapidjson::SizeType beforeSorting = 2;
                object[list].Erase(object[list].Begin() + std::min(beforeSorting, object[list].Size()),
                                   object[list].End());
            }
        } else if (object["type"] == "graph") {
            object["data"].RemoveMember("xdata");
            object["data"].RemoveMember("ydata");
        }
    }
    return tests::json(rest);
}

/// Negated, with its bounds changing places.
Row mirrored(Row row, std::vector<std::size_t> order)
{
    Row result;
    for (const std::size_t from : order) {
        result.push_back(-row[from]);
    }
    return result;
}

TEST_P(WholeCommands, MirrorWhenTheTwoVariablesChangePlaces)
{
    const DataSet dataSet = draw.dataSet(20);
    const std::string rest =
        " CRITERIA(LOGTRANSFORM=" + draw.onOff() + " PERCENTAGE=" + draw.onOff() + draw.settings() + ")" + everyTable;
    const Value& document = documentOf(dataSet, "VARIABLE=a WITH=b" + rest);
    const Value& swapped = documentOf(dataSet, "VARIABLE=b WITH=a" + rest);
    Rows rows = cellsOf(document, details);
    for (Row& row : rows) {
        row = {row[1], row[0], row[2], -row[3], -row[4]};
    }
    EXPECT_EQ(rows, cellsOf(swapped, details));
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_EQ(mirrored(cellsOf(document, biasTable)[i], {0, 2, 1}), cellsOf(swapped, biasTable)[i]);
        EXPECT_EQ(mirrored(cellsOf(document, limitsTable)[i], {3, 5, 4, 0, 2, 1}), cellsOf(swapped, limitsTable)[i]);
    }
}

TEST_P(WholeCommands, GivePairedOnlyWhatAllCombinationsGive)
{
    const DataSet dataSet = draw.dataSet(15);
    const auto scope = draw.oneOf<std::string>({"ANALYSIS", "LISTWISE"});
    const std::string rest = " CRITERIA(SCOPE=" + scope + draw.settings() + ") PRINT(DETAILS MEANDIFF) PLOT(RATIO)";
    const auto paired = objectsOf(documentOf(dataSet, "VARIABLE=a b WITH=c d PAIRED=YES" + rest));
    const auto all = objectsOf(documentOf(dataSet, "VARIABLE=a b WITH=c d PAIRED=NO" + rest));
    EXPECT_EQ(all.size(), 2 * paired.size());
    for (const std::string& object : paired) {
        EXPECT_EQ(std::ranges::count(all, object), 1);
    }
}

TEST_P(WholeCommands, SortRowsAndPointsAndNothingElse)
{
    const DataSet dataSet = draw.dataSet(20);
    const std::vector<std::string> keys = {"MEASUREMENT", "MEASUREMENT", "MEAN", "DIFFERENCE", "RATIO"};
    const auto column = static_cast<std::size_t>(draw.between(1, 4));
    const bool descending = draw.onOff() == "TRUE";
    const std::string command = "VARIABLE=a WITH=b CRITERIA(" + draw.settings() +
                                ") PRINT(ROWS=1000 MEANDIFF AGREEMENT "
                                "DETAILS";
    const Value& plain = documentOf(dataSet, command + ")");
    const Value& sorted = documentOf(dataSet, command + " SORT(BY=" + keys[column] +
                                                  " DESCENDING=" + (descending ? "TRUE" : "FALSE") + "))");
    const Rows rows = cellsOf(sorted, details);
    EXPECT_THAT(rows, UnorderedElementsAreArray(cellsOf(plain, details)));
    const std::size_t key = column == 1 ? 0 : column;
    EXPECT_TRUE(std::ranges::is_sorted(rows, [&](const Row& one, const Row& other) {
        return descending ? one[key] > other[key] : one[key] < other[key];
    })) << keys[column];
    EXPECT_EQ(withoutRows(plain), withoutRows(sorted));
    const Value& plot = sorted["objects"][3]["data"];
    for (rapidjson::SizeType i = 0; i < rows.size(); ++i) {
        EXPECT_EQ((Row{plot["xdata"][i].GetDouble(), plot["ydata"][i].GetDouble()}), (Row{rows[i][2], rows[i][3]}));
    }
}

TEST_P(WholeCommands, AgreeInBothScopesWhereNothingIsMissing)
{
    const DataSet dataSet = draw.dataSet(0);
    const auto command = [settings = draw.settings(), log = draw.onOff()](const std::string& scope) {
        return "VARIABLE=a b WITH=c d CRITERIA(SCOPE=" + scope + " LOGTRANSFORM=" + log + settings + ")" + everyTable;
    };
    EXPECT_EQ(objectsOf(documentOf(dataSet, command("ANALYSIS"))), objectsOf(documentOf(dataSet, command("LISTWISE"))));
}

INSTANTIATE_TEST_SUITE_P(Drawn, WholeCommands, testing::Range(1U, 101U));

}  // namespace
