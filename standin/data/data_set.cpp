#include "standin/data/data_set.h"

#include <algorithm>

namespace standin {

std::optional<std::size_t> DataSet::find(std::string_view name) const
{
    const auto found = std::ranges::find(variables, name, &Variable::name);
    if (found == variables.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - variables.begin());
}

}  // namespace standin
