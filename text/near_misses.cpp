#include "text/near_misses.h"

#include "text/wording.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

namespace text {

namespace {

/// How many bytes must be inserted, removed, replaced or swapped with their neighbour to make one text of the other, by
/// the usual dynamic programming, of which three rows are kept.
std::size_t editDistance(std::string_view from, std::string_view to)
{
    std::vector<std::size_t> beforeLast(to.size() + 1);
    std::vector<std::size_t> last(to.size() + 1);
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < from.size(); ++i) {
        std::swap(beforeLast, last);
        std::swap(last, row);
        row[0] = i + 1;
        for (std::size_t j = 0; j < to.size(); ++j) {
            const std::size_t replaced = last[j] + static_cast<std::size_t>(from[i] != to[j]);
            row[j + 1] = std::min({replaced, last[j + 1] + 1, row[j] + 1});
            if (i > 0 && j > 0 && from[i] == to[j - 1] && from[i - 1] == to[j]) {
                row[j + 1] = std::min(row[j + 1], beforeLast[j - 1] + 1);
            }
        }
    }
    return row.back();
}

constexpr std::size_t tooFar = std::string_view::npos;

/// The distance up to letter case, or `tooFar` when it is no near miss.
std::size_t distance(std::string_view text, std::string_view known)
{
    const std::size_t tolerated = std::max<std::size_t>(1, known.size() / 3);
    const std::size_t lengthDifference = std::max(text.size(), known.size()) - std::min(text.size(), known.size());
    if (lengthDifference > tolerated) {
        return tooFar;
    }
    const std::size_t edits = editDistance(upperCase(text), upperCase(known));
    return edits <= tolerated && edits < known.size() ? edits : tooFar;
}

struct Candidate {
    std::size_t distance;
    std::string name;
};

std::vector<Candidate> rankedByDistance(std::string_view text, const std::vector<std::string>& known)
{
    std::vector<Candidate> candidates;
    candidates.reserve(known.size());
    for (const std::string& name : known) {
        candidates.push_back({distance(text, name), name});
    }
    std::ranges::stable_sort(candidates, {}, &Candidate::distance);
    return candidates;
}

}  // namespace

std::vector<std::string> nearestFirst(std::string_view text, const std::vector<std::string>& known)
{
    std::vector<std::string> names;
    for (Candidate& candidate : rankedByDistance(text, known)) {
        names.push_back(std::move(candidate.name));
    }
    return names;
}

std::vector<std::string> nearMisses(std::string_view text, const std::vector<std::string>& known)
{
    constexpr std::size_t most = 3;
    std::vector<std::string> near;
    for (Candidate& candidate : rankedByDistance(text, known)) {
        if (candidate.distance != tooFar && near.size() < most) {
            near.push_back(std::move(candidate.name));
        }
    }
    return near;
}

}  // namespace text
