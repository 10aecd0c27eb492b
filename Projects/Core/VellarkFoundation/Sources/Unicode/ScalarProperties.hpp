#pragma once

namespace vellark {

/// What Unicode's data says of a single scalar. A surrogate or a value above U+10FFFF has no property.
namespace ScalarProperties {

/// The derived property Alphabetic, which letter-like numbers and circled letters have too.
[[nodiscard]] bool isAlphabetic(char32_t scalar);

/// Numeric type Decimal: the digits of a decimal system, but no superscript or circled ones.
[[nodiscard]] bool isDecimalDigit(char32_t scalar);

/// General category nonspacing or spacing mark (Mn, Mc), not enclosing mark.
[[nodiscard]] bool isNonspacingOrSpacingMark(char32_t scalar);

/// Whether ICU's "\b" sees no boundary between an ASCII letter and this scalar: a character of "\w", or one that hangs
/// on the letter or has no shape of its own.
[[nodiscard]] bool continuesWord(char32_t scalar);

/// Whether the scalar belongs to the character (grapheme cluster) of what stands before it: a mark or a joiner.
[[nodiscard]] bool extendsCharacter(char32_t scalar);

}  // namespace ScalarProperties

}  // namespace vellark
