// Which host objects are alive, and who made them.
#pragma once

#include <optional>
#include <string>
#include <unordered_map>

namespace standin {

enum class Maker { Guest, Host };

/// Objects by address. An object that contains another at its own address (a base class) is one object here.
class ObjectLedger {
public:
    void add(const void* object, const char* className, Maker maker);

    /// Removes an object and tells who had made it; nothing when it was not alive.
    std::optional<Maker> remove(const void* object);

    bool isAlive(const void* object) const { return objects_.contains(object); }

    /// The class of some object that the module made and has not deleted.
    std::optional<std::string> anyOfGuest() const;

private:
    struct Entry {
        const char* className;
        Maker maker;
    };

    std::unordered_map<const void*, Entry> objects_;
};

}  // namespace standin
