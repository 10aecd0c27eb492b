#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vellark {

/// Says at the cost of a few bits that no key begins with the codes at a place, before a trie is asked. Keys are noted
/// by their first four codes, or all they have. A yes may be wrong, a no never is.
class PrefixFilter {
public:
    using Code = std::uint32_t;

    /// Codes that are looked at.
    static constexpr std::size_t depth = 4;

    /// Notes a key of one of at most 16 sets. One of a single code leaves no trace: ask for those elsewhere.
    void add(std::uint32_t set, std::span<const Code> key) {
        if (key.size() < 2) return;
        const auto codeAt = [&](std::size_t index) { return index < key.size() ? key[index] : 0; };
        const Hashes hashes(set, codeAt(0), codeAt(1), codeAt(2), codeAt(3));
        mark(pairs_, hashes.pair);
        mark(keys_, key.size() == 2 ? hashes.pair : key.size() == 3 ? hashes.triple : hashes.quadruple);
    }

    /// Whether a key of the set may begin with these codes. Without a branch, as nobody can guess the answer.
    [[nodiscard]] bool mayBegin(std::uint32_t set, Code first, Code second, Code third, Code fourth) const {
        const Hashes hashes(set, first, second, third, fourth);
        return (has(pairs_, hashes.pair) &
                (has(keys_, hashes.pair) | has(keys_, hashes.triple) | has(keys_, hashes.quadruple))) != 0;
    }

private:
    using Word = std::uint64_t;

    static constexpr unsigned hashBits = 16;

    // Each is a part of the next one's sum; its upper bits are the place.
    struct Hashes {
        std::uint32_t pair, triple, quadruple;

        Hashes(std::uint32_t set, Code first, Code second, Code third, Code fourth)
            : pair((set << 28) + first * 0x9E37'79B1 + second * 0x85EB'CA6B),
              triple(pair + third * 0xC2B2'AE35),
              quadruple(triple + fourth * 0x27D4'EB2F) {}
    };

    static constexpr std::uint32_t place(std::uint32_t hash) { return hash >> (32 - hashBits); }

    static void mark(std::vector<Word>& bits, std::uint32_t hash) {
        bits[place(hash) / 64] |= Word{1} << (place(hash) % 64);
    }

    static Word has(const std::vector<Word>& bits, std::uint32_t hash) {
        return bits[place(hash) / 64] >> (place(hash) % 64) & 1;
    }

    std::vector<Word> pairs_ = std::vector<Word>((1U << hashBits) / 64);  // the first two codes of all keys
    std::vector<Word> keys_ = std::vector<Word>((1U << hashBits) / 64);   // the first four, or a shorter key whole
};

}  // namespace vellark
