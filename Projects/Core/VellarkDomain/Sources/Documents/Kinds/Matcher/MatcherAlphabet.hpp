#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace vellark {

/// The scalars of a matcher's patterns as small numbers, with all that the matcher asks of a scalar beside them. The
/// commonest scalar has the lowest code, which keeps the states of a double array close together.
class MatcherAlphabet {
public:
    /// A code in the upper 24 bits, 0 for a scalar of no pattern; flags in the lower 8.
    using Entry = std::uint32_t;

    enum Flag : Entry {
        boundary = 1U << 0,  ///< a word of a spaced script may end before it and begin behind it
        hangul = 1U << 1,    ///< a Korean syllable

        // What the scalar begins or ends in the matcher's tries; see DocumentKindMatcher.
        beginsAnchored = 1U << 2,
        beginsFloating = 1U << 3,
        endsCompound = 1U << 4,
        endsMixed = 1U << 5,
        isPattern = 1U << 6,  ///< is a pattern by itself, or begins or ends one of which it is told nothing more
    };
    static constexpr unsigned flagBits = 8;

    explicit MatcherAlphabet(std::span<const std::u32string> patterns);

    /// A value above U+10FFFF has no entry, and matches nothing.
    void set(char32_t scalar, Entry flags) {
        if (Entry* const found = entry(scalar)) *found |= flags;
    }

    [[nodiscard]] Entry operator[](char32_t scalar) const {
        return scalar < firstPlane ? entries_[scalar] : beyondFirstPlane(scalar);
    }

    [[nodiscard]] static constexpr std::uint32_t code(Entry entry) { return entry >> flagBits; }

private:
    static constexpr std::size_t firstPlane = 0x1'0000;

    [[nodiscard]] Entry* entry(char32_t scalar);
    [[nodiscard]] Entry beyondFirstPlane(char32_t scalar) const;

    std::vector<Entry> entries_;
    std::map<char32_t, Entry> others_;  // a few emoji at most
};

}  // namespace vellark
