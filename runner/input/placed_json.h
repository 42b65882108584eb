// Reads JSON so that a message about any part of it can name the line.
#pragma once

#include <rapidjson/document.h>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace runner {

/// What a message is about, and where that stands.
struct Place {
    std::size_t offset;  ///< in bytes, from the beginning of the text
    std::string subject;
};

/// One member of an object.
struct Member {
    std::string_view name;
    std::size_t offset;  ///< of the name
    const rapidjson::Value& value;
};

/// A file of JSON, nested to any depth, and what its reader asks of it.
class PlacedJson {
public:
    using Value = rapidjson::Value;

    /// @param bytes     UTF-8, a byte-order mark is skipped; must outlive this object
    /// @param fileName  for the messages; must outlive this object
    /// @throws InputError  naming line and reason, as do the members below
    PlacedJson(std::string_view bytes, const std::string& fileName);

    // Its tree points into it.
    PlacedJson(const PlacedJson&) = delete;
    PlacedJson& operator=(const PlacedJson&) = delete;

    /// The outermost value. Numbers are doubles throughout.
    const Value& root() const { return tree_; }

    /// The text that a value is.
    /// @throws InputError  when it is none, or escapes what no text may hold: a zero character, half a surrogate pair
    std::string readText(const Place& place, const Value& value) const;

    /// Calls `use` for each member of an object, in the order in which they stand; the names are valid texts and
    /// differ.
    /// @throws InputError  when the value is no object, or a name is of no use
    void forEachMember(const Place& place, const Value& object, const std::function<void(const Member&)>& use) const;

    /// @throws InputError  always: "FILE:LINE: SUBJECT REASON"
    [[noreturn]] void fail(const Place& place, const std::string& reason) const;

private:
    void parse();

    std::string_view text_;
    const std::string& fileName_;
    std::string buffer_;  ///< parsed in place: the texts of `tree_` lie in it, where they stand in `text_`
    rapidjson::Document tree_;
};

}  // namespace runner
