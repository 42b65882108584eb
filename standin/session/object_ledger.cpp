#include "standin/session/object_ledger.h"

#include <algorithm>

namespace standin {

void ObjectLedger::add(const void* object, const char* operation, Side maker)
{
    objects_.insert_or_assign(object, Entry{operation, maker});
}

std::optional<Side> ObjectLedger::remove(const void* object)
{
    const auto found = objects_.find(object);
    if (found == objects_.end()) {
        return std::nullopt;
    }
    const Side maker = found->second.maker;
    objects_.erase(found);
    return maker;
}

std::optional<std::string_view> ObjectLedger::anyOfModule() const
{
    const auto found =
        std::ranges::find_if(objects_, [](const auto& object) { return object.second.maker == Side::Module; });
    if (found == objects_.end()) {
        return std::nullopt;
    }
    const std::string_view constructor = found->second.operation;
    return constructor.substr(0, constructor.rfind("::"));
}

}  // namespace standin
