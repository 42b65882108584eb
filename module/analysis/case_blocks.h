// Walks over columns block by block, so that what one step leaves in the cache is there for the next.
#pragma once

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace bldatman {

/// The cases from `begin` up to `end`.
struct CaseBlock {
    std::size_t begin;
    std::size_t end;

    std::size_t size() const { return end - begin; }

    std::span<double> of(std::vector<double>& column) const { return std::span(column).subspan(begin, size()); }
    std::span<const double> of(const std::vector<double>& column) const
    {
        return std::span(column).subspan(begin, size());
    }
};

/// Calls `step` with blocks that together are all cases, in their order.
template <class Step>
void forEachBlock(std::size_t caseCount, Step step)
{
    constexpr std::size_t casesPerBlock = 8192;  // 64 KB a column: a pair's five stay in a cache of the second level
    for (std::size_t begin = 0; begin < caseCount; begin += casesPerBlock) {
        step(CaseBlock{begin, std::min(begin + casesPerBlock, caseCount)});
    }
}

}  // namespace bldatman
