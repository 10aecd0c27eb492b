#pragma once

#include <VellarkDomain/Documents/Kinds/Matcher/MatcherAlphabet.hpp>

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace vellark {

/// The flags of 64 entries side by side, turned over: of each flag one mask, with the bit of the first entry lowest.
class BlockMasks {
public:
    using Entry = MatcherAlphabet::Entry;
    using Mask = std::uint64_t;

    static constexpr std::size_t size = 64;

    /// Of the entries from a place on, with one more before them and one behind.
    explicit BlockMasks(const Entry* entries) : before_(entries[-1]), after_(entries[size]) {
        for (std::size_t word = 0; word < flags_.size(); ++word) {
            Mask bytes = 0;
            for (std::size_t index = 0; index < 8; ++index) {
                bytes |= Mask{entries[8 * word + index] & 0xFF} << (8 * index);
            }
            flags_[word] = bytes;
        }
    }

    /// The entries that have the flag.
    [[nodiscard]] Mask having(MatcherAlphabet::Flag flag) const {
        const int bit = std::countr_zero(static_cast<Entry>(flag));
        Mask mask = 0;
        for (std::size_t index = 0; index < flags_.size(); ++index) {
            // The product gathers the lowest bits of eight bytes in its highest byte.
            const Mask bits = flags_[index] >> bit & 0x0101'0101'0101'0101;
            mask |= (bits * 0x0102'0408'1020'4080) >> 56 << (8 * index);
        }
        return mask;
    }

    /// The entries that stand behind one with the flag, by the mask of those that have it.
    [[nodiscard]] Mask behind(Mask mask, MatcherAlphabet::Flag flag) const {
        return mask << 1 | Mask{(before_ & flag) != 0};
    }

    /// The entries that stand before one with the flag, by the mask of those that have it.
    [[nodiscard]] Mask before(Mask mask, MatcherAlphabet::Flag flag) const {
        return mask >> 1 | Mask{(after_ & flag) != 0} << (size - 1);
    }

private:
    Entry before_;
    Entry after_;
    std::array<Mask, size / 8> flags_;  // a byte for each entry
};

}  // namespace vellark
