#pragma once

#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// A word that is looked for, lower-case and composed.
class KeywordPattern {
public:
    explicit KeywordPattern(std::string_view word);

    [[nodiscard]] std::string_view text() const { return text_; }
    [[nodiscard]] bool isASCII() const { return isASCII_; }

    /// Exactly two characters, each of which begins with a Korean syllable.
    [[nodiscard]] bool isHangulPair() const { return isHangulPair_; }

private:
    std::string text_;
    bool isASCII_ = false;
    bool isHangulPair_ = false;
};

/// A text in which words are looked for, by whole characters and in any case. Not for use by several threads at once.
class KeywordText {
public:
    explicit KeywordText(std::string_view text);
    KeywordText(const KeywordText&) = delete;
    KeywordText& operator=(const KeywordText&) = delete;

    [[nodiscard]] bool isASCII() const { return isASCII_; }

    struct Range {
        std::uint32_t start = 0;
        std::uint32_t end = 0;

        bool operator==(const Range&) const = default;
    };

    /// All matches, also those that overlap, in their order, as bytes of the prepared text. A `bounded` match of a word
    /// in ASCII has no ASCII letter or digit beside it, and one of two Korean syllables none directly before it. An
    /// empty word has no match.
    [[nodiscard]] std::vector<Range> matches(const KeywordPattern& pattern, bool bounded) const;

private:
    [[nodiscard]] bool isBoundary(std::size_t byte) const;
    [[nodiscard]] bool keepsBounds(const KeywordPattern& pattern, std::size_t start, std::size_t end) const;

    std::string text_;
    bool isASCII_;
    Graphemes characters_;
};

}  // namespace vellark
