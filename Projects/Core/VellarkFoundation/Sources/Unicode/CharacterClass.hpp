#pragma once

#include <cstddef>
#include <string_view>

namespace vellark {

/// Classes of scalars and of user-perceived characters, by Unicode's data. A character (an extended grapheme cluster in
/// UTF-8, never empty) is classed by its first scalar; an ill-formed one counts as U+FFFD.
namespace CharacterClass {

[[nodiscard]] bool isWhitespace(char32_t scalar);    ///< property White_Space
[[nodiscard]] bool isNewline(char32_t scalar);       ///< U+000A to U+000D, U+0085, U+2028, U+2029
[[nodiscard]] bool isLetter(char32_t scalar);        ///< property Alphabetic
[[nodiscard]] bool isNumber(char32_t scalar);        ///< has a numeric value: "½", "①" and "一" too
[[nodiscard]] bool isDecimalDigit(char32_t scalar);  ///< general category Nd, of any script
[[nodiscard]] bool isPunctuation(char32_t scalar);   ///< general categories Pc Pd Ps Pe Pi Pf Po
[[nodiscard]] bool isSymbol(char32_t scalar);        ///< general categories Sm Sc Sk So
[[nodiscard]] bool isControl(char32_t scalar);       ///< general categories Cc and Cf
[[nodiscard]] bool isMark(char32_t scalar);          ///< general categories Mn Mc Me

/// Whether a word ends right before the byte, which begins a scalar: marks and format characters count to what stands
/// before them. Where it does not, "\b" holds in front of a letter.
[[nodiscard]] bool isBehindWord(std::string_view text, std::size_t byte);

[[nodiscard]] bool isWhitespace(std::string_view character);
[[nodiscard]] bool isNewline(std::string_view character);
[[nodiscard]] bool isLetter(std::string_view character);
[[nodiscard]] bool isNumber(std::string_view character);

/// A single scalar with the property Uppercase, or a cluster that is its own upper-case form and has another lower one.
[[nodiscard]] bool isUppercase(std::string_view character);

/// A single scalar with the property Lowercase, or a cluster that is its own lower-case form and has another upper one.
[[nodiscard]] bool isLowercase(std::string_view character);

/// The text without the White_Space scalars at both ends.
[[nodiscard]] std::string_view trimmed(std::string_view text);

/// The text without the White_Space scalars at its start.
[[nodiscard]] std::string_view trimmedStart(std::string_view text);

/// True when every scalar is White_Space; an empty text is blank.
[[nodiscard]] bool isBlank(std::string_view text);

}  // namespace CharacterClass

}  // namespace vellark
