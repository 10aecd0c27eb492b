#pragma once

#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Characters of texts, for the rooms of the summary: a character is an extended grapheme cluster, so "#" is not found
/// in a keycap, and a line feed not in CR LF. Offsets are bytes.
namespace vellark::SummaryText {

/// Whether a character begins at the offset; true at both ends. Looks at the neighbours only, but for emoji and Indic
/// conjuncts.
[[nodiscard]] bool isBoundary(std::string_view text, std::size_t offset);

/// The first place at or behind `from` where the needle stands in whole characters; `npos` without one.
[[nodiscard]] std::size_t find(std::string_view text, std::string_view needle, std::size_t from = 0);

/// The last such place.
[[nodiscard]] std::size_t findLast(std::string_view text, std::string_view needle);

[[nodiscard]] inline bool contains(std::string_view text, std::string_view needle) {
    return find(text, needle) != std::string_view::npos;
}

/// As GraphemeBreak::startsWith, most answers from the first byte alone. The prefix must not be empty.
[[nodiscard]] inline bool startsWith(std::string_view text, std::string_view prefix) {
    return !text.empty() && text.front() == prefix.front() && GraphemeBreak::startsWith(text, prefix);
}

/// Whether a scalar with this first byte is printable ASCII, a Chinese character, a Hangul syllable or another scalar
/// that is no white space.
[[nodiscard]] inline bool isPlainLead(char byte) {
    const auto lead = static_cast<unsigned char>(byte);
    return lead < 0x80 ? lead > ' ' && lead < 0x7F : lead != 0xC2 && (lead < 0xE1 || lead > 0xE3);
}

/// As Whitespace::trimmed, most answers from the outer bytes alone.
[[nodiscard]] inline std::string_view trimmed(std::string_view text) {
    if (text.empty() || !isPlainLead(text.front())) return Whitespace::trimmed(text);
    std::size_t last = text.size() - 1;
    while (last > 0 && (static_cast<unsigned char>(text[last]) & 0xC0U) == 0x80)
        --last;
    return isPlainLead(text[last]) ? text : Whitespace::trimmed(text);
}

/// The first ":" or full-width "：", and its bytes. `offset` is `npos` without one.
struct Colon {
    std::size_t offset;
    std::size_t size;
};
[[nodiscard]] Colon findColon(std::string_view text);

/// The words joined with one blank: what separates them is any white space, line ends included.
[[nodiscard]] std::string collapsed(std::string_view text);

/// The text without its white space.
[[nodiscard]] std::string withoutWhitespace(std::string_view text);

/// The text in pieces; a separator at an end leaves an empty one.
[[nodiscard]] std::vector<std::string_view> split(std::string_view text, std::string_view separator);

/// The lines; they end at line feeds only.
[[nodiscard]] std::vector<std::string_view> lines(std::string_view text);

/// The text without the given ASCII bytes at both ends.
[[nodiscard]] std::string_view trimmed(std::string_view text, std::string_view bytes);

/// As `trimmed`, for scalars.
[[nodiscard]] std::string_view trimmed(std::string_view text, std::u32string_view scalars);

/// The parts with the separator between them.
[[nodiscard]] std::string joined(const std::vector<std::string>& parts, std::string_view separator);

/// The text with the needle replaced everywhere.
[[nodiscard]] std::string replacing(std::string_view text, std::string_view needle, std::string_view replacement);

}  // namespace vellark::SummaryText
