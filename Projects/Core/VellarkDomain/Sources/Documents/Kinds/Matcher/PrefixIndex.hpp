#pragma once

#include <VellarkDomain/Documents/Kinds/Matcher/DoubleArray.hpp>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vellark {

/// Finds keys by their first four codes in one look, in place of four steps through a trie; what a longer key has
/// behind them stands in a trie of its own for each beginning. Most places of a text begin no key, and a few bits in
/// the nearest cache tell so before the table is asked.
class PrefixIndex {
public:
    using Code = DoubleArray::Code;

    /// Codes that are looked at, at most.
    static constexpr std::size_t depth = 4;

    /// Codes are below this.
    static constexpr Code codeLimit = 1U << 15;

    static constexpr std::uint32_t noValue = 0xFFFF'FFFF;

    /// What is looked for, and the value that it gives.
    class Key {
    public:
        /// The set is one of four, which have nothing in common. There is a code, and each is above 0. Throws
        /// std::length_error for one beyond the limit.
        Key(std::uint32_t set, std::span<const Code> codes, std::uint32_t value);

        [[nodiscard]] std::uint32_t set() const { return static_cast<std::uint32_t>(order_ >> setStart); }
        [[nodiscard]] std::span<const Code> codes() const { return codes_; }
        [[nodiscard]] std::uint32_t value() const { return value_; }

        /// By set, then by codes, then by value.
        [[nodiscard]] static bool precedes(const Key& left, const Key& right);

        /// Whether set and codes are the same.
        [[nodiscard]] bool finds(const Key& other) const;

    private:
        static constexpr unsigned setStart = 60;

        std::uint64_t order_;  // set and first codes, from the highest bit, which settles nearly all comparisons
        std::span<const Code> codes_;
        std::uint32_t value_;
    };

    /// The beginning of a key, or a whole one: set, length and codes in one number, which is not 0.
    using Prefix = std::uint64_t;

    /// What a prefix stands for.
    struct Entry {
        Prefix prefix = 0;
        std::uint32_t value = noValue;                ///< of the key that is just the prefix
        DoubleArray::State rest = DoubleArray::none;  ///< root of the trie of what longer keys have behind it
    };

    PrefixIndex() = default;

    /// Keys are in order, and none is twice in a set. Throws std::length_error beyond the limit of DoubleArray.
    explicit PrefixIndex(std::span<const Key> keys);

    /// The first codes of a set at a place of a text, in all lengths.
    class Prefixes {
    public:
        Prefixes(std::uint32_t set, Code first, Code second, Code third, Code fourth) {
            Prefix prefix = set | Prefix{first} << codeStart;
            prefixes_[0] = prefix;
            prefixes_[1] = prefix += lengthStep | Prefix{second} << (codeStart + codeBits);
            prefixes_[2] = prefix += lengthStep | Prefix{third} << (codeStart + 2 * codeBits);
            prefixes_[3] = prefix + (lengthStep | Prefix{fourth} << (codeStart + 3 * codeBits));
        }

        [[nodiscard]] Prefix operator[](std::size_t length) const { return prefixes_[length - 1]; }

    private:
        std::array<Prefix, depth> prefixes_;
    };

    [[nodiscard]] static std::size_t length(Prefix prefix) { return (prefix / lengthStep) % depth + 1; }

    /// False where no key of two codes or more begins with these two.
    [[nodiscard]] bool mayBegin(const Prefixes& prefixes) const { return has(pairs_, prefixes[2]); }

    /// False where `find` would find nothing.
    [[nodiscard]] bool mayFind(Prefix prefix) const { return has(prefixes_, prefix); }

    /// Has the table near at hand when `find` asks.
    void prefetch(Prefix prefix) const { __builtin_prefetch(&entries_[hash(prefix) >> tableShift_]); }

    /// Null for a prefix of no key, or of longer ones only.
    [[nodiscard]] const Entry* find(Prefix prefix) const {
        for (std::size_t place = hash(prefix) >> tableShift_;; place = (place + 1) & (entries_.size() - 1)) {
            if (entries_[place].prefix == prefix) return &entries_[place];
            if (entries_[place].prefix == 0) return nullptr;
        }
    }

    /// The tries of `Entry::rest`.
    [[nodiscard]] const DoubleArray& rests() const { return rests_; }

private:
    using Word = std::uint64_t;

    // From the lowest bit: the set, the length less one, the codes.
    static constexpr unsigned codeStart = 4;
    static constexpr unsigned codeBits = 15;
    static constexpr Prefix lengthStep = 4;

    static constexpr unsigned markBits = 17;

    static std::uint64_t hash(Prefix prefix) { return prefix * 0x9E37'79B9'7F4A'7C15; }

    static bool has(const std::vector<Word>& marks, Prefix prefix) {
        const auto place = hash(prefix) >> (64 - markBits);
        return (marks[place / 64] >> (place % 64) & 1) != 0;
    }

    static void mark(std::vector<Word>& marks, Prefix prefix) {
        const auto place = hash(prefix) >> (64 - markBits);
        marks[place / 64] |= Word{1} << (place % 64);
    }

    static Prefixes prefixesOf(const Key& key);
    Entry& entry(Prefix prefix);

    std::vector<Word> pairs_ = std::vector<Word>((1U << markBits) / 64);     // the first two codes of all keys
    std::vector<Word> prefixes_ = std::vector<Word>((1U << markBits) / 64);  // those of the table
    unsigned tableShift_ = 63;
    std::vector<Entry> entries_ = std::vector<Entry>(2);  // open addressing, a power of two with free places
    DoubleArray rests_;
};

}  // namespace vellark
