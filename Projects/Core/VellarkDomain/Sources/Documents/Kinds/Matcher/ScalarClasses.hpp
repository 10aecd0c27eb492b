#pragma once

namespace vellark {

/// The classes of scalars on which matching of words turns.
namespace ScalarClasses {

/// A precomposed Korean syllable.
[[nodiscard]] constexpr bool isHangulSyllable(char32_t scalar) {
    return scalar >= 0xAC00 && scalar <= 0xD7A3;
}

/// A scalar of the joining scripts, Korean, Japanese and Chinese, where words stand side by side without blanks.
[[nodiscard]] constexpr bool isJoining(char32_t scalar) {
    if (scalar < 0x1100) return false;
    return isHangulSyllable(scalar) || (scalar >= 0x4E00 && scalar <= 0x9FFF) ||
           (scalar >= 0x3040 && scalar <= 0x30FF) || (scalar >= 0x1100 && scalar <= 0x11FF) ||
           (scalar >= 0x3130 && scalar <= 0x318F) || (scalar >= 0x31F0 && scalar <= 0x31FF) ||
           (scalar >= 0x3005 && scalar <= 0x3006) || (scalar >= 0x3400 && scalar <= 0x4DBF) ||
           (scalar >= 0xF900 && scalar <= 0xFAFF);
}

[[nodiscard]] constexpr bool isThai(char32_t scalar) {
    return scalar >= 0x0E00 && scalar <= 0x0E7F;
}

/// A scalar of a script that puts no blanks between words.
[[nodiscard]] constexpr bool isSpaceless(char32_t scalar) {
    return isJoining(scalar) || isThai(scalar);
}

/// A scalar beside which a word of a spaced script may begin or end.
[[nodiscard]] constexpr bool isBoundary(char32_t scalar) {
    return scalar == U' ' || isSpaceless(scalar);
}

}  // namespace ScalarClasses

}  // namespace vellark
