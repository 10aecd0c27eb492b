#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace vellark {

/// Several tries in one double array: a state's child on code c is the cell `base + c`, when that cell names the state
/// as its owner. One look at one cell of eight bytes answers a step, found or not.
class DoubleArray {
public:
    using State = std::uint32_t;
    using Code = std::uint32_t;

    /// No state: what a step without a child gives.
    static constexpr State none = 0;

    /// A key and the value that its last state gets.
    struct Key {
        std::span<const Code> codes;  ///< not empty, each above 0
        std::uint32_t value = 0;
    };

    /// One trie for each list of keys. The keys are sorted by their codes, and none is twice in a list.
    explicit DoubleArray(std::span<const std::span<const Key>> tries);

    /// The root of a trie, in the order of the lists.
    [[nodiscard]] State root(std::size_t trie) const { return roots_[trie]; }

    /// The child on a code; `none` when there is none. Code 0 never has one.
    [[nodiscard]] State step(State state, Code code) const {
        const State next = (cells_[state].base & ~endsKey) + code;
        return cells_[next].owner == state ? next : none;
    }

    [[nodiscard]] bool isEnd(State state) const { return (cells_[state].base & endsKey) != 0; }

    /// The value of the key that ends at the state; only for ends.
    [[nodiscard]] std::uint32_t value(State state) const { return values_[state]; }

private:
    friend class DoubleArrayBuilder;

    static constexpr std::uint32_t endsKey = 0x8000'0000;

    struct Cell {
        std::uint32_t base = 0;     // the highest bit tells that a key ends here
        State owner = 0xFFFF'FFFF;  // parent; all ones in a free cell
    };

    std::vector<Cell> cells_;
    std::vector<std::uint32_t> values_;
    std::vector<State> roots_;
};

}  // namespace vellark
