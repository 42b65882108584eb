// What was made fast gives the very bits of what is plain, and every build gives the same ones.
#include "host/missing_value.h"
#include "module/analysis/analysis.h"
#include "module/analysis/column_arithmetic.h"
#include "reference/made_data.h"
#include "reference/plain_reference.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

namespace bldatman {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

std::uint64_t bitsOf(double value)
{
    return std::bit_cast<std::uint64_t>(value);
}

/// Every exponent, with mantissas of one bit, next to those, and of no pattern.
std::vector<double> valuesOfEverySize()
{
    std::mt19937_64 engine(1);
    std::vector<double> values{infinity};
    for (std::uint64_t exponent = 0; exponent < 0x7FF; ++exponent) {
        for (int bit = 0; bit <= 52; ++bit) {
            for (const int off : {-1, 0, 1}) {
                const std::uint64_t mantissa = (std::uint64_t{1} << bit) + static_cast<std::uint64_t>(off);
                values.push_back(std::bit_cast<double>((exponent << 52) | (mantissa & 0xFFFFFFFFFFFFF)));
            }
        }
        for (int draw = 0; draw < 100; ++draw) {
            values.push_back(std::bit_cast<double>((exponent << 52) | (engine() >> 12)));
        }
    }
    return values;
}

/// Whole and half numbers up to where doubles have no halves left.
std::vector<double> wholesAndHalves()
{
    std::vector<double> values(5000);
    for (std::size_t half = 0; half < values.size(); ++half) {
        values[half] = static_cast<double>(half) / 2.0;
    }
    for (int power = 0; power < 54; ++power) {
        for (const double off : {-1.0, -0.5, 0.0, 0.5, 1.0}) {
            values.push_back(std::ldexp(1.0, power) + off);
        }
    }
    return values;
}

void expectRoundedPlainly(std::vector<double> values, double factor)
{
    const std::size_t count = values.size();
    for (std::size_t i = 0; i < count; ++i) {
        values.push_back(-values[i]);
    }
    std::vector<double> rounded = values;
    roundAll(rounded, factor);
    for (std::size_t i = 0; i < values.size(); ++i) {
        ASSERT_EQ(bitsOf(rounded[i]), bitsOf(reference::roundedHalfAwayFromZero(values[i] * factor) / factor))
            << values[i];
    }
}

TEST(SameBits, RoundsEveryNumberToTheNearest)
{
    for (const double factor : {1.0, 1000.0}) {
        expectRoundedPlainly(valuesOfEverySize(), factor);
        expectRoundedPlainly(wholesAndHalves(), factor);
    }
}

const std::vector<double> finiteOdd{0.0, -0.0, -449.5, 0.0005, -0.0015, 1e100, 5e-324, systemMissingValue};
const std::vector<double> anyOdd{0.0, -0.0, 1e300, infinity, -infinity, std::nan(""), systemMissingValue};

/// The column with an eighth of its values replaced by what sums, quotients and logarithms treat in ways of their own.
Column strewn(Column column, const std::vector<double>& odd, std::size_t seed)
{
    std::mt19937 engine(static_cast<unsigned>(seed));
    for (double& value : column) {
        if (engine() % 8 == 0) {
            value = odd[engine() % odd.size()];
        }
    }
    return column;
}

void expectPlainRecord(std::size_t cases, const std::vector<double>& odd, const BldatmanCriteriaSetting& criteria)
{
    const std::vector<Column> columns = reference::makeColumns(2, cases, criteria.scope() == "ANALYSIS" ? 5 : 0);
    const Column a = strewn(columns[0], odd, cases);
    const Column b = strewn(columns[1], odd, cases + 1000);
    const BldatmanPairResult record = BldatmanAnalysis::performBlandAltmanAnalysis("a", "b", a, b, criteria);
    EXPECT_EQ(reference::firstDifference(record, reference::plainRecord(a, b, criteria)), "") << cases << " cases";
}

/// The lengths end anywhere in the widest loops, and in a block of cases or with it.
TEST(SameBits, GivesTheRecordOfThePlainComputation)
{
    BldatmanCriteriaSubcommand raw;
    raw.ciLevelAgreement = 99;
    raw.ciLevelMeanDiff = 80;
    for (const char* limits : {"95", "99", "80.5", "TWOSD", "THREESD"}) {
        raw.agreementLimits = limits;
        expectPlainRecord(25, finiteOdd, BldatmanCriteriaSetting(raw));
    }
    for (const char* logTransform : {"FALSE", "TRUE"}) {
        for (const char* percentage : {"FALSE", "TRUE"}) {
            raw.logTransform = logTransform;
            raw.percentage = percentage;
            const BldatmanCriteriaSetting criteria(raw);
            for (std::size_t cases = 20; cases < 60; ++cases) {
                expectPlainRecord(cases, finiteOdd, criteria);
                expectPlainRecord(cases, anyOdd, criteria);
            }
            for (std::size_t cases = 9000; cases < 9010; ++cases) {
                expectPlainRecord(cases, finiteOdd, criteria);
            }
        }
    }
    raw.scope = "LISTWISE";  // nothing is dropped here
    for (const std::size_t cases : {8191U, 8192U, 8193U, 16384U}) {
        expectPlainRecord(cases, {0.0, -0.0, 0.0005}, BldatmanCriteriaSetting(raw));
    }
}

/// A short name for all bits of some numbers: FNV-1a.
class Digest {
public:
    void add(double value)
    {
        for (unsigned shift = 0; shift < 64; shift += 8) {
            value_ = (value_ ^ ((bitsOf(value) >> shift) & 0xFF)) * 0x100000001B3;
        }
    }

    std::uint64_t value() const { return value_; }

private:
    std::uint64_t value_ = 0xCBF29CE484222325;
};

/// Only sums, products, quotients and roots lead to these numbers, which are the same in every library: when the digest
/// is another, the computation is.
TEST(SameBits, GivesOneRecordOnEveryBuild)
{
    const std::vector<Column> columns = reference::makeColumns(2, 10007, 2);
    const BldatmanPairResult record =
        BldatmanAnalysis::performBlandAltmanAnalysis("a", "b", columns[0], columns[1], BldatmanCriteriaSetting());
    Digest digest;
    for (const double value : {record.meanDifference, record.sdDifference, record.lowerLimit, record.upperLimit,
                               record.meanOfMeans, record.lowerLimitRelative, record.upperLimitRelative}) {
        digest.add(value);
    }
    for (const auto* values : {&record.valuesA, &record.valuesB, &record.means, &record.differences, &record.ratios}) {
        for (const double value : *values) {
            digest.add(value);
        }
    }
    EXPECT_EQ(digest.value(), 4115015593188553057U);
}

}  // namespace
}  // namespace bldatman
