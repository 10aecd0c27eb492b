#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// Message templates: literal text with placeholders "{0}", "{1}" and so on for arguments.
namespace MessageTemplate {

/// Largest number of a placeholder that `parse` takes for one; larger ones are literal text. It bounds the argument
/// lists that a broken catalogue could ask for.
inline constexpr std::size_t maximumPlaceholder = 999;

/// The template with each placeholder replaced by its argument. Only "{", ASCII digits and "}" with a number below the
/// count of arguments are a placeholder; all else is copied as it stands, and what was put in is not read again.
///
///     filled("{0} of {1}", {"3", "{0}"})    "3 of {0}"
///     filled("{2} {+0} { 0} {}", {"3"})     unchanged
///     filled("{a{00}", {"3"})               "{a3"
[[nodiscard]] std::string filled(std::string_view text, std::span<const std::string> arguments);

/// A template taken apart: literals[0], the placeholder of arguments[0], literals[1], and so on; there is one literal
/// more than there are placeholders. Any of them may be empty.
struct Parsed {
    std::vector<std::string> literals;
    std::vector<std::size_t> arguments;

    bool operator==(const Parsed&) const = default;
};

[[nodiscard]] Parsed parse(std::string_view text);

/// The number that a person's or a locale's writing of a whole quantity stands for: digits of any script, which may be
/// grouped by points, commas, apostrophes or spaces wherever they stand. Nothing when there is any other character or
/// no digit, and nothing above 2^63 - 1.
///
///     integerQuantity("1,234")     1234
///     integerQuantity("١٬٢٣٤")     1234
///     integerQuantity("-5"), ("5 files"), ("")   nothing
[[nodiscard]] std::optional<std::int64_t> integerQuantity(std::string_view text);

}  // namespace MessageTemplate

}  // namespace vellark
