#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// Text routines with the meaning that Python's `str` gives them, by Unicode scalar: no locale, no grapheme clusters,
/// no normalisation. The decisions about captures stand on them, so that one text is treated alike on every machine.
///
/// Pieces come back as views of the text that was given, which must outlive them. Ill-formed UTF-8 never fails: each
/// ill-formed subpart counts as one U+FFFD.
namespace PythonText {

/// Python's white space: U+0009 to U+000D, U+001C to U+0020, U+0085, U+00A0 and the Unicode spaces and separators.
[[nodiscard]] constexpr bool isSpace(char32_t scalar) {
    if (scalar < 0x80) return (scalar >= 9 && scalar <= 13) || (scalar >= 28 && scalar <= 32);
    return scalar == 0x85 || scalar == 0xA0 || scalar == 0x1680 || (scalar >= 0x2000 && scalar <= 0x200A) ||
           scalar == 0x2028 || scalar == 0x2029 || scalar == 0x202F || scalar == 0x205F || scalar == 0x3000;
}

/// The text without white space at either end.
[[nodiscard]] std::string_view strip(std::string_view text);

/// The text without white space at its start.
[[nodiscard]] std::string_view stripLeading(std::string_view text);

/// The maximal runs of what is not white space, in order.
[[nodiscard]] std::vector<std::string_view> split(std::string_view text);

/// Lines without their ends: "a\r\nb\n" gives "a" and "b". A line ends at U+000A to U+000D, U+001C to U+001E, U+0085,
/// U+2028 or U+2029; CR LF is one end, and an end at the end of the text begins no further line.
[[nodiscard]] std::vector<std::string_view> splitlines(std::string_view text);

/// Unicode's full case folding: "Straße" gives "strasse".
[[nodiscard]] std::string casefold(std::string_view text);

/// True when the scalars of `needle` stand contiguously in the text. The empty needle is in every text.
[[nodiscard]] bool contains(std::string_view text, std::string_view needle);

/// True when the text begins with the scalars of `prefix`.
[[nodiscard]] bool hasPrefix(std::string_view text, std::string_view prefix);

/// True when the text is ASCII and one of the entries. A text with any other scalar is in no set.
[[nodiscard]] bool isMember(std::string_view text, std::span<const std::string_view> set);

/// The first `count` scalars.
[[nodiscard]] std::string_view prefix(std::string_view text, std::size_t count);

/// The pieces between the separators, the empty ones too; n separators give n + 1 pieces.
[[nodiscard]] std::vector<std::string_view> components(std::string_view text, char32_t separator);

/// The path as `posixpath.normpath` has it, without a look at any disk: "/a/../../b" gives "/b", "a/.." gives ".", ""
/// gives ".", "//a" stays and "///a" gives "/a".
[[nodiscard]] std::string normpath(std::string_view path);

/// True for an absolute path that `normpath` leaves as it is.
[[nodiscard]] bool isNormalAbsolute(std::string_view path);

}  // namespace PythonText

}  // namespace vellark
