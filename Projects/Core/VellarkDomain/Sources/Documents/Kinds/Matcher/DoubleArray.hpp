#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace vellark {

/// Several tries in one double array: a state's child on code c is the cell `base + c`, when that cell names c. No two
/// states have the same base, so the code tells the owner too, and one look at one cell of four bytes answers a step,
/// found or not. Where only one key goes on, the rest of it stands in a row as its tail, in place of a chain of states:
/// that leaves a third of the cells, and a tail is compared without a wait for one cell to name the next.
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

    /// What is left of the only key that goes on from a state, and its value.
    struct Tail {
        std::span<const Code> codes;  ///< not empty
        std::uint32_t value = 0;
    };

    /// One trie for each list of keys. The keys are sorted by their codes, and none is twice in a list. A cell's bits
    /// are shared between base and code: with 2,000 codes half a million cells fit, many times as many as the keys have
    /// states. Throws std::length_error beyond that.
    explicit DoubleArray(std::span<const std::span<const Key>> tries = {});

    /// The root of a trie, in the order of the lists.
    [[nodiscard]] State root(std::size_t trie) const { return roots_[trie]; }

    /// The child on a code of the keys; `none` when there is none. Code 0 never has one. Not for a state with a tail.
    [[nodiscard]] State step(State state, Code code) const {
        const State next = base(cells_[state]) + code;
        return (cells_[next] & codeMask_) == code ? next : none;
    }

    /// Whether a key ends at the state, or goes on in a tail.
    [[nodiscard]] bool isMarked(State state) const { return (cells_[state] & marks) != 0; }

    [[nodiscard]] bool isEnd(State state) const { return (cells_[state] & endsKey) != 0; }

    /// Whether one key only goes on from the state, with its tail.
    [[nodiscard]] bool hasTail(State state) const { return (cells_[state] & hasRest) != 0; }

    /// The value of the key that ends at the state; only for ends.
    [[nodiscard]] std::uint32_t value(State state) const { return values_[state]; }

    /// The tail of a state that has one.
    [[nodiscard]] Tail tail(State state) const {
        const std::uint32_t* const head = tails_.data() + base(cells_[state]);
        return {.codes = {head + 2, head[1]}, .value = head[0]};
    }

private:
    friend class DoubleArrayBuilder;

    // From the highest bit: whether a key ends here; whether a tail follows; the base of the children, or where the
    // tail stands; the cell's own code, all ones in a root and in a free cell.
    using Cell = std::uint32_t;

    static constexpr Cell endsKey = 0x8000'0000;
    static constexpr Cell hasRest = 0x4000'0000;
    static constexpr Cell marks = endsKey | hasRest;

    [[nodiscard]] std::uint32_t base(Cell cell) const { return (cell & ~marks) >> codeBits_; }

    unsigned codeBits_ = 0;
    Cell codeMask_ = 0;
    std::vector<Cell> cells_;
    std::vector<std::uint32_t> values_;
    std::vector<std::uint32_t> tails_;  // each is a value, a length and so many codes
    std::vector<State> roots_;
};

}  // namespace vellark
