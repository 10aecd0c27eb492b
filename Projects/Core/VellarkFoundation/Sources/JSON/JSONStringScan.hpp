#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace vellark {

/// Finds its way through the strings of JSON text without decoding them, several times as fast as a parser that does.
/// The text is well-formed UTF-8.
namespace JSONStringScan {

/// True for what cannot stand in a string as it is: a quote, a backslash, a control character.
[[nodiscard]] constexpr bool needsEscape(char character) {
    return character == '"' || character == '\\' || static_cast<unsigned char>(character) < 0x20;
}

namespace detail {

constexpr std::uint64_t repeated(unsigned char byte) {
    return 0x0101010101010101ULL * byte;
}

// The usual test on whole words: a byte of `word - 0x01…` borrows into its high bit only when the byte was zero. May
// also report a byte behind one that is zero, never misses one: enough for "none of them".
constexpr std::uint64_t zeroBytes(std::uint64_t word) {
    return (word - repeated(1)) & ~word & repeated(0x80);
}

constexpr bool isPlain(std::uint64_t word) {
    const std::uint64_t controls = (word - repeated(0x20)) & ~word & repeated(0x80);
    return (controls | zeroBytes(word ^ repeated('"')) | zeroBytes(word ^ repeated('\\'))) == 0;
}

}  // namespace detail

/// The offset of the first character from `offset` on that `needsEscape`; the size of the text when there is none.
[[nodiscard]] inline std::size_t endOfPlain(std::string_view text, std::size_t offset) {
#ifdef __SSE2__
    const __m128i lastControl = _mm_set1_epi8(0x1F);
    for (; offset + 16 <= text.size(); offset += 16) {
        __m128i bytes;
        std::memcpy(&bytes, text.data() + offset, sizeof bytes);
        const __m128i controls = _mm_cmpeq_epi8(_mm_min_epu8(bytes, lastControl), bytes);
        const __m128i quotes = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('"'));
        const __m128i backslashes = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\\'));
        const int stops = _mm_movemask_epi8(_mm_or_si128(controls, _mm_or_si128(quotes, backslashes)));
        if (stops != 0) return offset + static_cast<std::size_t>(__builtin_ctz(static_cast<unsigned>(stops)));
    }
#endif
    for (; offset + 8 <= text.size(); offset += 8) {
        std::uint64_t word;
        std::memcpy(&word, text.data() + offset, sizeof word);
        if (!detail::isPlain(word)) break;
    }
    while (offset < text.size() && !needsEscape(text[offset])) {
        ++offset;
    }
    return offset;
}

/// True when a text of ASCII alone is its own JSON string, between quotes.
[[nodiscard]] inline bool isPlainASCII(std::string_view text) {
    std::size_t offset = 0;
    for (; offset + 8 <= text.size(); offset += 8) {
        std::uint64_t word;
        std::memcpy(&word, text.data() + offset, sizeof word);
        if (!detail::isPlain(word) || (word & detail::repeated(0x80)) != 0) return false;
    }
    for (; offset < text.size(); ++offset) {
        if (needsEscape(text[offset]) || static_cast<unsigned char>(text[offset]) >= 0x80) return false;
    }
    return true;
}

/// The offset of the quote that closes the string whose content begins at `offset`. Nothing when the content is not
/// what RFC 8259 allows (raw control characters, unknown escapes, half surrogate pairs) or does not end.
[[nodiscard]] std::optional<std::size_t> closingQuote(std::string_view text, std::size_t offset);

/// What the content of a string stands for. `closingQuote` must have found its end.
[[nodiscard]] std::string decoded(std::string_view content);

}  // namespace JSONStringScan

}  // namespace vellark
