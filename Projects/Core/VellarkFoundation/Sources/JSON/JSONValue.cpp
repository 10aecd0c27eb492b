#include <VellarkFoundation/JSON/JSONNumberText.hpp>
#include <VellarkFoundation/JSON/JSONValue.hpp>

#include <unordered_map>

namespace vellark {

namespace {

/// Members up to which comparing every key with every other is cheaper than a hash table.
constexpr std::size_t smallObject = 16;

bool hasEarlierEqual(const std::vector<JSONMember>& members, std::size_t index) {
    for (std::size_t earlier = 0; earlier < index; ++earlier) {
        if (members[earlier].key == members[index].key) return true;
    }
    return false;
}

bool keysAreDistinct(const std::vector<JSONMember>& members) {
    for (std::size_t index = 1; index < members.size(); ++index) {
        if (hasEarlierEqual(members, index)) return false;
    }
    return true;
}

std::vector<JSONMember> keepingLast(std::vector<JSONMember> members) {
    std::vector<JSONMember> kept;
    kept.reserve(members.size());  // the table's keys look into `kept`, whose elements must not move
    std::unordered_map<std::string_view, std::size_t> places;
    places.reserve(members.size());
    for (JSONMember& member : members) {
        if (const auto found = places.find(member.key); found != places.end()) {
            kept[found->second].value = std::move(member.value);
        } else {
            kept.push_back(std::move(member));
            places.emplace(kept.back().key, kept.size() - 1);
        }
    }
    return kept;
}

template <class Type>
const Type* valueIn(const JSONObject& object, std::string_view key, const Type* (JSONValue::*as)() const) {
    const JSONValue* value = object.find(key);
    return value == nullptr ? nullptr : (value->*as)();
}

}  // namespace

double JSONNumber::asDouble() const {
    return JSONNumberText::nearestDouble(literal);
}

JSONObject::JSONObject() = default;
JSONObject::JSONObject(const JSONObject&) = default;
JSONObject::JSONObject(JSONObject&&) noexcept = default;
JSONObject& JSONObject::operator=(const JSONObject&) = default;
JSONObject& JSONObject::operator=(JSONObject&&) noexcept = default;
JSONObject::~JSONObject() = default;
// Spelled out: Clang 14 crashes on defaulting a comparison that comes back to itself.
bool JSONObject::operator==(const JSONObject& other) const {
    return members_ == other.members_;
}
bool JSONObject::isEmpty() const {
    return members_.empty();
}

const JSONValue* JSONObject::find(std::string_view key) const {
    for (const JSONMember& member : members_) {
        if (member.key == key) return &member.value;
    }
    return nullptr;
}

void JSONObject::set(std::string_view key, JSONValue value) {
    for (JSONMember& member : members_) {
        if (member.key == key) {
            member.value = std::move(value);
            return;
        }
    }
    members_.push_back({std::string(key), std::move(value)});
}

JSONObject JSONObject::fromMembers(std::vector<JSONMember> members) {
    JSONObject object;
    const bool distinct = members.size() <= smallObject && keysAreDistinct(members);
    object.members_ = distinct ? std::move(members) : keepingLast(std::move(members));
    return object;
}

JSONObject JSONValue::takeObject() && {
    JSONObject* content = std::get_if<JSONObject>(&storage_);
    return content == nullptr ? JSONObject() : std::move(*content);
}

const std::string* stringIn(const JSONObject& object, std::string_view key) {
    return valueIn(object, key, &JSONValue::string);
}

const JSONObject* objectIn(const JSONObject& object, std::string_view key) {
    return valueIn(object, key, &JSONValue::object);
}

const JSONArray* arrayIn(const JSONObject& object, std::string_view key) {
    return valueIn(object, key, &JSONValue::array);
}

}  // namespace vellark
