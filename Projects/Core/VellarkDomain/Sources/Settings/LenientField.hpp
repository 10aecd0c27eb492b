#pragma once

#include <VellarkFoundation/Records/Enumeration.hpp>

#include <string>
#include <string_view>

namespace vellark {

/// A field of a record that newer programs write too: an absent key and a text that names no case read as the default;
/// a value that is no text fails. For use inside `describe`.
template <class Fields, NamedCases Enum>
void lenientCase(Fields& fields, std::string_view key, Enum& value, Enum fallback) {
    if constexpr (Fields::isReading) {
        std::string text;
        fields.withDefault(key, text, std::string(rawValue(fallback)));
        value = fromRawValue<Enum>(text).value_or(fallback);
    } else {
        fields.required(key, value);
    }
}

}  // namespace vellark
