#include "standin/nearest.h"

#include "standin/text.h"

#include <algorithm>
#include <numeric>

namespace standin {

namespace {

/// How many bytes must be inserted, removed or replaced to make one text of the other, by the usual row by row
/// dynamic programming.
std::size_t editDistance(std::string_view from, std::string_view to)
{
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (const char letter : from) {
        std::size_t diagonal = row[0]++;
        for (std::size_t j = 0; j < to.size(); ++j) {
            const std::size_t replaced = diagonal + static_cast<std::size_t>(letter != to[j]);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

/// The distance up to letter case, or a number too large for a near miss.
std::size_t distance(std::string_view text, std::string_view known)
{
    const std::size_t edits = editDistance(upperCase(text), upperCase(known));
    const std::size_t tolerated = std::max<std::size_t>(1, known.size() / 3);
    return edits <= tolerated ? edits : std::string_view::npos;
}

}  // namespace

std::vector<std::string> nearestFirst(std::string_view text, std::vector<std::string> known)
{
    std::ranges::stable_sort(known, {}, [text](const std::string& name) { return distance(text, name); });
    return known;
}

std::vector<std::string> nearMisses(std::string_view text, const std::vector<std::string>& known)
{
    constexpr std::size_t most = 3;
    std::vector<std::string> near = nearestFirst(text, known);
    std::erase_if(near, [text](const std::string& name) { return distance(text, name) == std::string_view::npos; });
    near.resize(std::min(near.size(), most));
    return near;
}

}  // namespace standin
