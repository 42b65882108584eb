// Which host objects are alive, and who made them.
#pragma once

#include <optional>
#include <string_view>
#include <unordered_map>

namespace standin {

/// The two sides of the border.
enum class Side { Module, Host };

/// Objects by address. An object that contains another at its own address (a base class) is one object here.
class ObjectLedger {
public:
    /// @param operation  a literal: the operation that made or lent the object, "Table::Table"
    void add(const void* object, const char* operation, Side maker);

    /// Removes an object and tells who had made it; nothing when it was not alive.
    std::optional<Side> remove(const void* object);

    bool isAlive(const void* object) const { return objects_.contains(object); }

    /// The class of some object that the module made and has not deleted.
    std::optional<std::string_view> anyOfModule() const;

private:
    struct Entry {
        const char* operation;
        Side maker;
    };

    std::unordered_map<const void*, Entry> objects_;
};

}  // namespace standin
