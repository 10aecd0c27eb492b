#pragma once

#include <VellarkDomain/Feedback/FeedbackHash.hpp>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace vellark {

/// The hashes of a text's lines, made once and asked for every note on the text. Keeps nothing of the text; 24 bytes a
/// line. Any number of threads may ask it.
class FeedbackLineIndex {
public:
    /// Lines of a text that is searched. It bounds what one note may cost.
    static constexpr std::size_t maximumLineCount = 50'000;

    /// Of a text with more than `maximumLineCount` lines nothing is hashed.
    explicit FeedbackLineIndex(std::string_view text);

    /// Number of lines; for a text that is not searched some number above `maximumLineCount`.
    [[nodiscard]] std::size_t lineCount() const { return lineCount_; }

    [[nodiscard]] bool isSearchable() const { return lineCount_ <= maximumLineCount; }

    /// The hash of the stretch of `span` lines that begins at line `start`, counted from 0; it must lie in the text.
    [[nodiscard]] std::uint64_t stretchHash(std::size_t start, std::size_t span) const;

    /// The start nearest to line `from` of a stretch of `span` lines with this hash, of two as near the earlier;
    /// nothing when there is none. `from` may lie anywhere; `span` is 1 to `lineCount()`.
    [[nodiscard]] std::optional<std::size_t> nearestStretch(std::uint64_t hash, std::size_t span,
                                                            std::size_t from) const;

private:
    enum class Direction { up, down };
    struct Sought;

    static constexpr std::size_t chainCount = 8;

    [[nodiscard]] std::array<std::uint64_t, chainCount> stretchHashes(const std::array<std::size_t, chainCount>& starts,
                                                                      std::size_t span) const;
    [[nodiscard]] std::uint64_t sieve(const Sought& sought, std::size_t first) const;
    [[nodiscard]] std::optional<std::size_t> confirm(const Sought& sought, std::size_t first, std::uint64_t starts,
                                                     Direction direction) const;
    [[nodiscard]] std::optional<std::size_t> firstMatch(const Sought& sought, std::size_t begin, std::size_t end,
                                                        Direction direction) const;

    std::size_t lineCount_ = 0;
    std::vector<std::uint64_t> hashes_;                  // by line
    std::array<std::vector<std::uint16_t>, 8> columns_;  // by byte of a line's hash, lowest first, then by line
};

}  // namespace vellark
