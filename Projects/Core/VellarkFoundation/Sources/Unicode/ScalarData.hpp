#pragma once

#include <cstdint>

namespace vellark {

/// What a scalar is, read from ICU once per block of 256 scalars and kept: a look-up costs two loads. Made for the
/// routines of this room, which ask for every scalar of long texts.
namespace ScalarData {

/// How a scalar takes part in extended grapheme clusters.
enum class Break : std::uint8_t {
    other,
    control,
    carriageReturn,
    lineFeed,
    extend,         ///< stays with what stands before it, and does not link consonants
    linkingExtend,  ///< such a mark that may stand between the consonants of a conjunct
    virama,         ///< joins two consonants to a conjunct
    zeroWidthJoiner,
    spacingMark,
    prepend,
    regionalIndicator,
    leading,  ///< Hangul consonant that opens a syllable
    vowel,
    trailing,
    syllable,  ///< Hangul syllable without a final consonant
    closedSyllable,
    pictograph,
    linkingConsonant,
};

/// Bits of a scalar's properties; the lowest five hold its Break.
using Word = std::uint32_t;
inline constexpr Word breakMask = 0x1F;
inline constexpr Word whitespace = 1 << 5;     ///< White_Space
inline constexpr Word letter = 1 << 6;         ///< Alphabetic
inline constexpr Word number = 1 << 7;         ///< Numeric_Type other than None
inline constexpr Word uppercase = 1 << 8;      ///< Uppercase
inline constexpr Word lowercase = 1 << 9;      ///< Lowercase
inline constexpr Word punctuation = 1 << 10;   ///< general categories P*
inline constexpr Word decimalDigit = 1 << 11;  ///< general category Nd
inline constexpr Word control = 1 << 12;       ///< general categories Cc and Cf
inline constexpr Word mark = 1 << 13;          ///< general categories M*
inline constexpr Word symbol = 1 << 14;        ///< general categories S*
inline constexpr Word word = 1 << 15;          ///< what "\w" matches in expressions
inline constexpr Word hanging = 1 << 16;       ///< Grapheme_Extend, or general category Cf: "\b" looks past it

/// The properties of any scalar; of a value above U+10FFFF those of U+FFFD. Safe from any thread.
[[nodiscard]] Word of(char32_t scalar);

[[nodiscard]] inline Break breakOf(char32_t scalar) {
    return static_cast<Break>(of(scalar) & breakMask);
}

}  // namespace ScalarData

}  // namespace vellark
