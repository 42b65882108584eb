#include "runner/input/placed_json.h"

#include "runner/input/encoding.h"
#include "runner/input/input_error.h"
#include "text/numbers.h"
#include "text/utf8.h"
#include "text/wording.h"

#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>
#include <rapidjson/stream.h>

#include <set>
#include <utility>

namespace runner {

namespace {

/// Reads numbers as the data have them: a missing code equals the cell that spells the same number. (The parser's own
/// exact way takes a zero with a large exponent for another number.)
class Tree : public rapidjson::Document {
public:
    /// Takes the place of the handler of that name; false when the number is too large.
    bool RawNumber(const char* digits, rapidjson::SizeType size, bool /*copy*/)
    {
        const auto number = text::readNumber({digits, size});
        return number && Double(*number);
    }
};

std::string reasonFor(rapidjson::ParseErrorCode error)
{
    if (error == rapidjson::kParseErrorTermination) {
        return "a number is too large";
    }
    std::string reason = rapidjson::GetParseError_En(error);
    reason.erase(reason.find_last_not_of('.') + 1);
    return reason;
}

std::string_view viewOf(const PlacedJson::Value& text)
{
    return {text.GetString(), text.GetStringLength()};
}

}  // namespace

PlacedJson::PlacedJson(std::string_view bytes, const std::string& fileName)
    : text_(requireUtf8(bytes, fileName))
    , fileName_(fileName)
    , buffer_(text_)
{
    parse();
}

// Without recursion, so that no depth of nesting exhausts the stack.
void PlacedJson::parse()
{
    constexpr unsigned flags =
        rapidjson::kParseInsituFlag | rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag;
    rapidjson::InsituStringStream stream(buffer_.data());
    rapidjson::Reader reader;
    Tree tree;
    const auto parseInto = [&](rapidjson::Document& /*tree*/) { return !reader.Parse<flags>(stream, tree).IsError(); };
    tree.Populate(parseInto);
    if (reader.HasParseError()) {
        fail({reader.GetErrorOffset(), "this"}, "cannot be read as JSON: " + reasonFor(reader.GetParseErrorCode()));
    }
    tree_ = std::move(tree);
}

std::string PlacedJson::readText(const Place& place, const Value& value) const
{
    if (!value.IsString()) {
        fail(place, "must be a text in quotes");
    }
    if (text::firstBadUtf8Byte(viewOf(value))) {
        fail(place, "holds an escaped zero or half a surrogate pair");
    }
    return std::string(viewOf(value));
}

void PlacedJson::forEachMember(const Place& place, const Value& object,
                               const std::function<void(const Member&)>& use) const
{
    if (!object.IsObject()) {
        fail(place, "must be an object, in braces");
    }
    std::set<std::string, std::less<>> names;
    for (const auto& member : object.GetObject()) {
        const auto offset = static_cast<std::size_t>(member.name.GetString() - buffer_.data());
        const auto [name, isNew] = names.insert(readText({offset, "a name in " + place.subject}, member.name));
        if (!isNew) {
            fail({offset, text::inQuotes(*name)}, "stands twice in " + place.subject);
        }
        use({*name, offset, member.value});
    }
}

void PlacedJson::fail(const Place& place, const std::string& reason) const
{
    const std::size_t line = text::countLineEnds(text_.substr(0, place.offset)) + 1;
    throw InputError(fileName_, line, place.subject + " " + reason);
}

}  // namespace runner
