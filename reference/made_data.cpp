#include "reference/made_data.h"

#include "host/missing_value.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace reference {

namespace {

/// Numbers from 0 up to 1, uniformly distributed and the same on every system.
class UniformNumbers {
public:
    explicit UniformNumbers(std::uint64_t seed)
        : state_(seed)
    {
    }

    double next()
    {
        state_ = state_ * 6364136223846793005ULL + 1442695040888963407ULL;
        return std::ldexp(static_cast<double>(state_ >> 11U), -53);
    }

private:
    std::uint64_t state_;
};

}  // namespace

std::vector<bldatman::Column> makeColumns(std::size_t columns, std::size_t cases, double percentMissing)
{
    std::vector<bldatman::Column> made(columns, bldatman::Column(cases));
    UniformNumbers numbers(columns * 1000003U + cases);
    for (bldatman::Column& column : made) {
        for (double& value : column) {
            const bool isMissing = numbers.next() * 100.0 < percentMissing;
            const double reading = 450.0 + 100.0 * (numbers.next() + numbers.next() + numbers.next() - 1.5);
            value = isMissing ? systemMissingValue : std::round(reading * 10.0) / 10.0;
        }
    }
    return made;
}

std::string csvOf(const std::vector<bldatman::Column>& columns)
{
    std::string csv;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        csv += (i == 0 ? "v" : ",v") + std::to_string(i);
    }
    csv += '\n';
    std::array<char, 32> digits{};
    for (std::size_t row = 0; row < columns.front().size(); ++row) {
        for (std::size_t i = 0; i < columns.size(); ++i) {
            csv += i == 0 ? "" : ",";
            if (const double value = columns[i][row]; value != systemMissingValue) {
                csv.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr);
            }
        }
        csv += '\n';
    }
    return csv;
}

}  // namespace reference
