#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vellark {

/// User-perceived characters (extended grapheme clusters) of UTF-8 text, cut exactly where the installed ICU cuts them:
/// CR LF, a flag, a joined emoji family, a Hangul syllable in jamo and a letter with its marks are one character each.
/// An ill-formed subpart counts as U+FFFD.
namespace GraphemeBreak {

/// Byte offset behind the character that begins at byte `start`, a character's start inside the text.
[[nodiscard]] std::size_t next(std::string_view text, std::size_t start);

/// Number of characters, in one pass.
[[nodiscard]] std::size_t count(std::string_view text);

/// The first `limit` characters; the whole text when it has no more. Nothing behind them is looked at.
[[nodiscard]] std::string_view prefix(std::string_view text, std::size_t limit);

/// True when the text has more than `limit` characters. Nothing behind them is looked at.
[[nodiscard]] bool exceeds(std::string_view text, std::size_t limit);

/// True when the text's first characters are those of the prefix, which is ASCII without a carriage return: a prefix
/// whose last letter carries a combining mark in the text is another character.
[[nodiscard]] bool startsWith(std::string_view text, std::string_view prefix);

}  // namespace GraphemeBreak

/// A text whose characters have offsets. Boundaries are found once, as far as a question needs them, and kept; a text
/// of ASCII without a carriage return keeps none. The text must outlive it. Not for use by several threads at once.
///
///     const Graphemes text("a\r\n각");
///     text.count()             3
///     text[1]                  "\r\n"
///     text.byteOffset(2)       3
///     text.characterAt(4)      2: the character that holds byte 4
class Graphemes {
public:
    explicit Graphemes(std::string_view text);

    [[nodiscard]] std::string_view text() const { return text_; }

    /// Number of characters. Walks the rest of the text once.
    [[nodiscard]] std::size_t count() const;

    /// True when there are more than `limit` characters. Walks no further than it must.
    [[nodiscard]] bool exceeds(std::size_t limit) const;

    /// Byte at which character `index` begins; the text's size when there is no such character.
    [[nodiscard]] std::size_t byteOffset(std::size_t index) const;

    /// Index of the character that holds the byte; the number of characters for the text's size and beyond.
    [[nodiscard]] std::size_t characterAt(std::size_t byte) const;

    /// Number of characters that begin before the byte: the offset of a position, rounded up when it lies inside a
    /// character.
    [[nodiscard]] std::size_t roundedUp(std::size_t byte) const;

    /// Character `index`; empty behind the end.
    [[nodiscard]] std::string_view operator[](std::size_t index) const;

    /// Characters `first` up to `last`, which is not included; both are brought inside the text.
    [[nodiscard]] std::string_view slice(std::size_t first, std::size_t last) const;

    /// The first `limit` characters.
    [[nodiscard]] std::string_view prefix(std::size_t limit) const { return text_.substr(0, byteOffset(limit)); }

private:
    void walkToCharacter(std::size_t index) const;
    void walkToByte(std::size_t byte) const;

    std::string_view text_;
    bool plain_;                                 // every byte is a character
    mutable std::vector<std::uint32_t> starts_;  // of the characters found so far
    mutable std::size_t walked_ = 0;             // bytes that those characters take up
};

}  // namespace vellark
