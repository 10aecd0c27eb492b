#pragma once

#include <VellarkDomain/Documents/Kinds/Matcher/MatcherAlphabet.hpp>

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace vellark {

/// The flags of 64 entries side by side, turned over: of each flag one mask, with the bit of the first entry lowest.
class BlockMasks {
public:
    using Entry = MatcherAlphabet::Entry;
    using Mask = std::uint64_t;

    static constexpr std::size_t size = 64;

    /// Of the entries from a place on, with one more before them and one behind.
    explicit BlockMasks(const Entry* entries) : before_(entries[-1]), after_(entries[size]) {
        for (std::size_t index = 0; index < size; ++index) {
            flags_[index] = static_cast<std::uint8_t>(entries[index]);
        }
    }

    /// The entries that have the flag.
    [[nodiscard]] Mask having(MatcherAlphabet::Flag flag) const {
        const int bit = std::countr_zero(static_cast<Entry>(flag));
        Mask mask = 0;
#ifdef __SSE2__
        for (std::size_t index = 0; index < size; index += sizeof(__m128i)) {
            __m128i bytes;
            std::memcpy(&bytes, &flags_[index], sizeof bytes);
            const int bits = _mm_movemask_epi8(_mm_slli_epi16(bytes, 7 - bit));
            mask |= static_cast<Mask>(bits) << index;
        }
#else
        for (std::size_t index = 0; index < size; index += sizeof(std::uint64_t)) {
            std::uint64_t bytes;
            std::memcpy(&bytes, &flags_[index], sizeof bytes);
            // The product gathers the lowest bits of eight bytes in its highest byte.
            const std::uint64_t bits = bytes >> bit & 0x0101'0101'0101'0101;
            mask |= (bits * 0x0102'0408'1020'4080) >> 56 << index;
        }
#endif
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
    alignas(16) std::array<std::uint8_t, size> flags_;
};

}  // namespace vellark
