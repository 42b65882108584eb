// What was made fast gives the very bits of what is plain, and every build gives the same ones.
#include "host/missing_value.h"
#include "module/analysis/analysis.h"
#include "module/analysis/column_arithmetic.h"
#include "tests/support/made_data.h"
#include "tests/support/plain_reference.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace bldatman {
namespace {

std::uint64_t bitsOf(double value)
{
    return std::bit_cast<std::uint64_t>(value);
}

/// Every exponent, with mantissas that lie at, just below and just above a half, and some of no pattern.
std::vector<double> valuesOfEverySize()
{
    std::mt19937_64 engine(1);
    std::vector<double> values;
    for (std::uint64_t exponent = 0; exponent < 0x800; ++exponent) {
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
    std::vector<double> values;
    for (int half = 0; half < 5000; ++half) {
        values.push_back(half / 2.0);
    }
    for (double power = 1; power < 0x1p54; power *= 2) {
        for (const double off : {-1.0, -0.5, 0.0, 0.5, 1.0}) {
            values.push_back(power + off);
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
        ASSERT_EQ(bitsOf(rounded[i]), bitsOf(tests::roundedHalfAwayFromZero(values[i] * factor) / factor)) << values[i];
    }
}

TEST(SameBits, RoundsEveryNumberToTheNearest)
{
    for (const double factor : {1.0, 1000.0}) {
        expectRoundedPlainly(valuesOfEverySize(), factor);
        expectRoundedPlainly(wholesAndHalves(), factor);
    }
}

/// Some of the data that sums, quotients and logarithms treat in a way of their own.
Column strewn(Column column, unsigned seed)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const std::vector<double> odd{0.0,   -0.0,   -449.5,   0.0005,       -0.0015,
                                  1e300, 5e-324, infinity, std::nan(""), systemMissingValue};
    std::mt19937 engine(seed);
    for (double& value : column) {
        if (engine() % 8 == 0) {
            value = odd[engine() % (odd.size() - (seed % 2 == 0 ? 3 : 0))];
        }
    }
    return column;
}

/// Lengths around the widths of the loops, so that their ends are reached.
TEST(SameBits, GivesTheRecordOfThePlainComputation)
{
    unsigned seed = 0;
    for (const char* logTransform : {"FALSE", "TRUE"}) {
        for (const char* percentage : {"FALSE", "TRUE"}) {
            for (std::size_t cases = 40; cases < 140; ++cases) {
                BldatmanCriteriaSubcommand raw;
                raw.logTransform = logTransform;
                raw.percentage = percentage;
                const BldatmanCriteriaSetting criteria(raw);
                const std::vector<Column> columns = tests::makeColumns(2, cases, 5);
                const Column a = strewn(columns[0], ++seed);
                const Column b = strewn(columns[1], seed + 1000);
                EXPECT_TRUE(tests::areTheSame(BldatmanAnalysis::performBlandAltmanAnalysis("a", "b", a, b, criteria),
                                              tests::plainStatistics(a, b, criteria)))
                    << cases << " cases, logarithms " << logTransform << ", percentages " << percentage;
            }
        }
    }
}

/// A short name for all bits of a record: FNV-1a.
std::uint64_t digestOf(const BldatmanPairResult& record)
{
    std::uint64_t digest = 0xCBF29CE484222325;
    const auto add = [&digest](double value) {
        for (unsigned shift = 0; shift < 64; shift += 8) {
            digest = (digest ^ ((bitsOf(value) >> shift) & 0xFF)) * 0x100000001B3;
        }
    };
    for (const double value : tests::scalarsOf(record)) {
        add(value);
    }
    for (const auto* values : {&record.valuesA, &record.valuesB, &record.means, &record.differences, &record.ratios}) {
        for (const double value : *values) {
            add(value);
        }
    }
    return digest;
}

TEST(SameBits, GivesOneRecordOnEveryBuild)
{
    const std::vector<Column> columns = tests::makeColumns(2, 10007, 2);
    const BldatmanPairResult record =
        BldatmanAnalysis::performBlandAltmanAnalysis("a", "b", columns[0], columns[1], BldatmanCriteriaSetting());
    EXPECT_EQ(digestOf(record), 15912332297501318255U);
}

}  // namespace
}  // namespace bldatman
