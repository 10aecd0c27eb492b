#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// The scalars of a matcher's patterns as small numbers, with all that the matcher asks of a scalar beside them. The
/// commonest scalar has the lowest code, which keeps the states of a double array close together.
class MatcherAlphabet {
public:
    /// A code in the upper 24 bits, 0 for a scalar of no pattern; flags in the lower 8.
    using Entry = std::uint32_t;

    enum Flag : Entry {
        boundary = 1U << 0,        ///< a word of a spaced script may end before it and begin behind it
        hangul = 1U << 1,          ///< a Korean syllable
        beginsAnchored = 1U << 2,  ///< what the matcher's tries begin with; see DocumentKindMatcher
        beginsFloating = 1U << 3,
        isFloating = 1U << 4,  ///< is a floating pattern by itself
        endsCompound = 1U << 5,
    };
    static constexpr unsigned flagBits = 8;

    explicit MatcherAlphabet(std::span<const std::u32string> patterns);

    /// A value above U+10FFFF has no entry, and matches nothing.
    void set(char32_t scalar, Flag flag) {
        if (Entry* const found = entry(scalar)) *found |= flag;
    }

    [[nodiscard]] Entry operator[](char32_t scalar) const {
        const std::size_t page = scalar >> 8;
        return page < pages_.size() ? blocks_[pages_[page]][scalar & 0xFF] : 0;
    }

    [[nodiscard]] static std::uint32_t code(Entry entry) { return entry >> flagBits; }

private:
    using Block = std::array<Entry, 256>;

    void addClasses();
    [[nodiscard]] Entry* entry(char32_t scalar);

    std::array<std::uint16_t, 0x1100> pages_{};  // of 256 scalars each
    std::vector<Block> blocks_;
    std::vector<bool> isShared_;  // blocks that several pages use
};

}  // namespace vellark
