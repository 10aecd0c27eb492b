#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// What kinds of bytes a text holds, found in one walk: most lines hold no markup and no number, and every rule that
/// needs one can then be spared.
namespace vellark::SummaryBytes {

using Traits = std::uint16_t;

inline constexpr Traits squareBracket = 1 << 0;  ///< "["
inline constexpr Traits angleBracket = 1 << 1;   ///< "<"
inline constexpr Traits tick = 1 << 2;           ///< "`"
inline constexpr Traits star = 1 << 3;           ///< "*"
inline constexpr Traits underscore = 1 << 4;     ///< "_"
inline constexpr Traits tilde = 1 << 5;          ///< "~"
inline constexpr Traits dollar = 1 << 6;         ///< "$"
inline constexpr Traits slash = 1 << 7;          ///< "/"
inline constexpr Traits digit = 1 << 8;          ///< 0 to 9, or the lead byte of other scripts' decimal digits
inline constexpr Traits nonASCII = 1 << 9;

inline constexpr Traits emphasis = star | underscore;
inline constexpr Traits markup = squareBracket | angleBracket | tick | star | underscore | tilde;

inline constexpr auto table = [] {
    std::array<Traits, 256> traits{};
    traits['['] = squareBracket;
    traits['<'] = angleBracket;
    traits['`'] = tick;
    traits['*'] = star;
    traits['_'] = underscore;
    traits['~'] = tilde;
    traits['$'] = dollar;
    traits['/'] = slash;
    for (std::size_t byte = '0'; byte <= '9'; ++byte)
        traits[byte] = digit;
    for (std::size_t byte = 0x80; byte < traits.size(); ++byte)
        traits[byte] = nonASCII;
    for (const std::size_t lead : {0xD9U, 0xDBU, 0xDFU, 0xE0U, 0xE1U, 0xEAU, 0xEFU, 0xF0U})
        traits[lead] |= digit;
    return traits;
}();

[[nodiscard]] inline Traits of(char byte) {
    return table[static_cast<unsigned char>(byte)];
}

[[nodiscard]] inline Traits of(std::string_view text) {
    Traits all = 0;
    for (const char byte : text)
        all = static_cast<Traits>(all | of(byte));
    return all;
}

/// Whether the scalar at the offset is a Chinese character or a Hangul syllable, by its bytes: a letter without case
/// that stands apart from its neighbours, composes with nothing before it, and opens no mark of a line.
[[nodiscard]] inline bool isSyllable(std::string_view text, std::size_t offset) {
    const auto lead = static_cast<unsigned char>(text[offset]);
    if (lead == 0xEA) return offset + 1 < text.size() && static_cast<unsigned char>(text[offset + 1]) >= 0xB0;
    return (lead >= 0xE4 && lead <= 0xE9) || (lead >= 0xEB && lead <= 0xED);
}

/// The first byte at or behind `from` that has one of the traits; the text's size without one.
[[nodiscard]] inline std::size_t findAny(std::string_view text, Traits traits, std::size_t from = 0) {
    while (from < text.size() && (of(text[from]) & traits) == 0)
        ++from;
    return from;
}

}  // namespace vellark::SummaryBytes
