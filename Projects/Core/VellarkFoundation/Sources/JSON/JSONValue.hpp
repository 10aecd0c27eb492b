#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace vellark {

class JSONValue;
struct JSONMember;

/// A JSON number as it was written. Keeping the digits keeps integers of any length exact.
struct JSONNumber {
    std::string literal;  ///< in the grammar of RFC 8259

    /// True when the literal has neither a fraction nor an exponent.
    [[nodiscard]] bool isInteger() const { return literal.find_first_of(".eE") == std::string::npos; }

    /// The nearest double, infinite when the literal is beyond the range of a double.
    [[nodiscard]] double asDouble() const;

    bool operator==(const JSONNumber&) const = default;
};

using JSONArray = std::vector<JSONValue>;

/// The members of a JSON object, in the order in which their keys were first set, each key once.
class JSONObject {
public:
    JSONObject();
    JSONObject(const JSONObject&);
    JSONObject(JSONObject&&) noexcept;
    JSONObject& operator=(const JSONObject&);
    JSONObject& operator=(JSONObject&&) noexcept;
    ~JSONObject();

    /// The value under the key; a null pointer when there is none. Linear in the number of members.
    [[nodiscard]] const JSONValue* find(std::string_view key) const;
    [[nodiscard]] bool contains(std::string_view key) const { return find(key) != nullptr; }

    /// Puts the value under the key: in place of the one that is there, otherwise behind the last member.
    void set(std::string_view key, JSONValue value);

    /// An object of these members; of members with equal keys the last value stands, at the place of the first key.
    [[nodiscard]] static JSONObject fromMembers(std::vector<JSONMember> members);

    [[nodiscard]] const std::vector<JSONMember>& members() const { return members_; }
    [[nodiscard]] bool isEmpty() const;

    bool operator==(const JSONObject& other) const;

private:
    std::vector<JSONMember> members_;
};

/// Any JSON value. A default-made one is null.
class JSONValue {
public:
    JSONValue() = default;
    JSONValue(std::nullptr_t) {}
    JSONValue(bool value) : storage_(value) {}
    JSONValue(JSONNumber value) : storage_(std::move(value)) {}
    JSONValue(std::string value) : storage_(std::move(value)) {}
    JSONValue(std::string_view value) : storage_(std::string(value)) {}
    JSONValue(const char* value) : storage_(std::string(value)) {}
    JSONValue(JSONArray value) : storage_(std::move(value)) {}
    JSONValue(JSONObject value) : storage_(std::move(value)) {}

    // Each gives a null pointer when the value is of another type.
    [[nodiscard]] const bool* boolean() const { return std::get_if<bool>(&storage_); }
    [[nodiscard]] const JSONNumber* number() const { return std::get_if<JSONNumber>(&storage_); }
    [[nodiscard]] const std::string* string() const { return std::get_if<std::string>(&storage_); }
    [[nodiscard]] const JSONArray* array() const { return std::get_if<JSONArray>(&storage_); }
    [[nodiscard]] const JSONObject* object() const { return std::get_if<JSONObject>(&storage_); }
    /// Takes the members out of an object; an empty object when the value is none.
    [[nodiscard]] JSONObject takeObject() &&;

    [[nodiscard]] bool isNull() const { return std::holds_alternative<std::nullptr_t>(storage_); }

    /// Calls the visitor with the value as std::nullptr_t, bool, JSONNumber, std::string, JSONArray or JSONObject.
    template <class Visitor>
    decltype(auto) visit(Visitor&& visitor) const {
        return std::visit(std::forward<Visitor>(visitor), storage_);
    }

    bool operator==(const JSONValue& other) const;

private:
    std::variant<std::nullptr_t, bool, JSONNumber, std::string, JSONArray, JSONObject> storage_ = nullptr;
};

struct JSONMember {
    std::string key;
    JSONValue value;

    bool operator==(const JSONMember& other) const;
};

/// The string under the key; a null pointer when there is none or when the value is no string.
[[nodiscard]] const std::string* stringIn(const JSONObject& object, std::string_view key);

/// The object under the key; a null pointer when there is none or when the value is no object.
[[nodiscard]] const JSONObject* objectIn(const JSONObject& object, std::string_view key);

/// The array under the key; a null pointer when there is none or when the value is no array.
[[nodiscard]] const JSONArray* arrayIn(const JSONObject& object, std::string_view key);

}  // namespace vellark
