#pragma once

#include <VellarkDomain/Capture/Rules/CaptureEventTimes.hpp>
#include <VellarkFoundation/JSON/JSONDocument.hpp>
#include <VellarkFoundation/JSON/JSONValue.hpp>
#include <VellarkFoundation/Result.hpp>
#include <VellarkFoundation/Time/Date.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace vellark {

// Shorthand for readers of other programs' JSON, where a value of another type counts as absent.

/// The text under a key; "" when there is none. A view into the object.
[[nodiscard]] inline std::string_view textIn(const JSONObject& object, std::string_view key) {
    const std::string* text = stringIn(object, key);
    return text != nullptr ? std::string_view(*text) : std::string_view();
}

/// The first of the keys that has a text.
template <class... Keys>
[[nodiscard]] std::string firstTextIn(const JSONObject& object, Keys... keys) {
    for (const std::string_view key : {std::string_view(keys)...}) {
        if (const std::string_view text = textIn(object, key); !text.empty()) return std::string(text);
    }
    return "";
}

[[nodiscard]] inline bool isTrueIn(const JSONObject& object, std::string_view key) {
    const JSONValue* value = object.find(key);
    return value != nullptr && value->boolean() != nullptr && *value->boolean();
}

/// The value of a line of a record. Programs in JavaScript cut texts inside a surrogate pair and write the half of it
/// as an escape, which is no JSON: it counts as U+FFFD, so that the rest of the line is not lost.
[[nodiscard]] Result<JSONValue, JSONError> readRecordLine(std::string_view text);

/// The moment of an ISO 8601 text.
[[nodiscard]] inline std::optional<Date> momentOf(std::string_view text) {
    const auto seconds = CaptureRules::eventSeconds(text);
    return seconds ? std::optional(Date{*seconds}) : std::nullopt;
}
[[nodiscard]] inline std::optional<Date> momentIn(const JSONObject& object, std::string_view key) {
    return momentOf(textIn(object, key));
}

}  // namespace vellark
