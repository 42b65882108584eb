#include "standin/session/object_ledger.h"

#include <algorithm>

namespace standin {

void ObjectLedger::add(const void* object, const char* className, Maker maker)
{
    objects_.insert_or_assign(object, Entry{className, maker});
}

std::optional<Maker> ObjectLedger::remove(const void* object)
{
    const auto found = objects_.find(object);
    if (found == objects_.end()) {
        return std::nullopt;
    }
    const Maker maker = found->second.maker;
    objects_.erase(found);
    return maker;
}

std::optional<std::string> ObjectLedger::anyOfGuest() const
{
    const auto found =
        std::ranges::find_if(objects_, [](const auto& object) { return object.second.maker == Maker::Guest; });
    if (found == objects_.end()) {
        return std::nullopt;
    }
    return found->second.className;
}

}  // namespace standin
