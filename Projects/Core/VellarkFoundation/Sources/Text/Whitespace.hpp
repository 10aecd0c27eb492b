#pragma once

#include <string_view>

namespace vellark {

/// White space as the interface toolkits of our hosts know it, which stored records and labels are trimmed by. It is
/// neither Unicode's property White_Space (the zero width space U+200B counts here) nor Python's `str.isspace` (the
/// separators U+001C to U+001F do not).
namespace Whitespace {

/// The tab, U+200B, and every scalar of general category Zs.
[[nodiscard]] constexpr bool isWhitespace(char32_t scalar) {
    return scalar == 0x09 || scalar == 0x20 || scalar == 0xA0 || scalar == 0x1680 ||
           (scalar >= 0x2000 && scalar <= 0x200B) || scalar == 0x202F || scalar == 0x205F || scalar == 0x3000;
}

/// U+000A to U+000D, U+0085, U+2028, U+2029.
[[nodiscard]] constexpr bool isNewline(char32_t scalar) {
    return (scalar >= 0x0A && scalar <= 0x0D) || scalar == 0x85 || scalar == 0x2028 || scalar == 0x2029;
}

[[nodiscard]] constexpr bool isWhitespaceOrNewline(char32_t scalar) {
    return isWhitespace(scalar) || isNewline(scalar);
}

/// The text without the white space at its two ends; line ends stay. Ill-formed bytes are no white space.
[[nodiscard]] std::string_view trimmed(std::string_view text);

/// The text without the white space and line ends at its two ends.
[[nodiscard]] std::string_view trimmedWithNewlines(std::string_view text);

}  // namespace Whitespace

}  // namespace vellark
