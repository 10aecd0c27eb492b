#include <VellarkDomain/Documents/Kinds/Matcher/DoubleArray.hpp>

#include <algorithm>
#include <bit>
#include <stdexcept>

// Building walks the sorted keys range by range, so that no trie of nodes stands in between: the keys below a state are
// one range, and those below its children are the runs of equal codes at the next depth. Places are found by first fit
// over a list of free cells. States with many children are few, and those with one child take the first free cell.

namespace vellark {

namespace {

constexpr std::uint32_t noCell = 0xFFFF'FFFF;

// The base of states without children, and of no other: no cell below it can be taken for a child.
constexpr std::uint32_t noBase = 0;

// Free cells that are tried for a state with several children before it goes behind all that is taken.
constexpr int mostTries = 64;

}  // namespace

class DoubleArrayBuilder {
public:
    using Key = DoubleArray::Key;
    using State = DoubleArray::State;
    using Code = DoubleArray::Code;
    using Cell = DoubleArray::Cell;

    explicit DoubleArrayBuilder(DoubleArray& array) : array_(array) {}

    void build(std::span<const std::span<const Key>> tries) {
        std::size_t keyCount = 0;
        std::size_t codes = 0;
        for (const auto& keys : tries) {
            keyCount += keys.size();
            for (const Key& key : keys) {
                codes += key.codes.size();
                highestCode_ = std::max(highestCode_, std::ranges::max(key.codes));
            }
        }
        array_.codeBits_ = static_cast<unsigned>(std::bit_width(highestCode_ + 1));
        array_.codeMask_ = (Cell{1} << array_.codeBits_) - 1;
        array_.tails_.reserve(2 * keyCount + codes);  // at most
        grow(tries.size() + 2 + codes / 4 + highestCode_);
        take(DoubleArray::none, array_.codeMask_);
        for (const auto& keys : tries) {
            const State root = freeCell(1);
            take(root, array_.codeMask_);
            array_.roots_.push_back(root);
            pending_.push_back({root, 0, keys});
        }
        // Depth first: the states of a word take cells side by side, which a walk finds in one line of the cache.
        while (!pending_.empty()) {
            const Pending next = pending_.back();
            pending_.pop_back();
            expand(next);
        }
        finish();
    }

private:
    struct Pending {
        State state;
        std::size_t depth;
        std::span<const Key> keys;  // all that begin with the state's codes
    };

    void expand(Pending pending) {
        auto keys = pending.keys;
        if (!keys.empty() && keys.front().codes.size() == pending.depth) {
            array_.cells_[pending.state] |= DoubleArray::endsKey;
            array_.values_[pending.state] = keys.front().value;
            keys = keys.subspan(1);
        }
        if (keys.empty()) return;
        if (keys.size() == 1) return addTail(pending.state, keys.front(), pending.depth);
        codes_.clear();
        const auto codeOf = [&](const Key& key) { return key.codes[pending.depth]; };
        for (const Key& key : keys) {
            if (codes_.empty() || codes_.back() != codeOf(key)) codes_.push_back(codeOf(key));
        }
        const std::uint32_t base = findBase();
        array_.cells_[pending.state] |= base << array_.codeBits_;
        for (const Code code : codes_) {
            const auto run = std::ranges::find_if(keys, [&](const Key& key) { return codeOf(key) != code; });
            const auto count = static_cast<std::size_t>(run - keys.begin());
            take(base + code, code);
            pending_.push_back({base + code, pending.depth + 1, keys.first(count)});
            keys = keys.subspan(count);
        }
    }

    void addTail(State state, const Key& key, std::size_t depth) {
        const auto offset = static_cast<std::uint32_t>(array_.tails_.size());
        checkRoom(offset);
        array_.cells_[state] |= DoubleArray::hasRest | offset << array_.codeBits_;
        const auto rest = key.codes.subspan(depth);
        array_.tails_.push_back(key.value);
        array_.tails_.push_back(static_cast<std::uint32_t>(rest.size()));
        array_.tails_.insert(array_.tails_.end(), rest.begin(), rest.end());
    }

    // The least base, among those tried, that no state has and where all of `codes_` fall on free cells.
    std::uint32_t findBase() {
        std::uint32_t base = noBase;
        std::uint32_t cell = freeCell(codes_.front() + 1);
        for (int tried = 0; cell != noCell && (tried < mostTries || codes_.size() == 1); ++tried) {
            const std::uint32_t candidate = cell - codes_.front();
            ensure(candidate + codes_.back() + 1);
            if (suits(candidate)) {
                base = candidate;
                break;
            }
            cell = next_[cell];
        }
        if (base == noBase) {
            base = std::max(lastTaken_, codes_.front()) + 1 - codes_.front();
            while (isBase_[base])
                ++base;
            ensure(base + codes_.back() + 1);
        }
        checkRoom(base);
        isBase_[base] = true;
        return base;
    }

    void checkRoom(std::uint32_t base) const {
        if (base > (~DoubleArray::marks >> array_.codeBits_)) throw std::length_error("too many keys");
    }

    [[nodiscard]] bool suits(std::uint32_t base) const {
        return !isBase_[base] && std::ranges::all_of(codes_, [&](Code code) { return isFree(base + code); });
    }

    // The first free cell that is not before the given one.
    std::uint32_t freeCell(std::uint32_t least) {
        std::uint32_t cell = first_;
        while (cell != noCell && cell < least) {
            cell = next_[cell];
        }
        if (cell != noCell) return cell;
        const auto end = static_cast<std::uint32_t>(array_.cells_.size());
        ensure(std::max(end, least) + 1);
        return std::max(end, least);
    }

    [[nodiscard]] bool isFree(std::uint32_t cell) const { return !isTaken_[cell]; }

    void take(std::uint32_t cell, Code code) {
        array_.cells_[cell] = code;  // the mask stands for a cell that is no child
        isTaken_[cell] = true;
        lastTaken_ = std::max(lastTaken_, cell);
        const std::uint32_t before = previous_[cell];
        const std::uint32_t after = next_[cell];
        (before == noCell ? first_ : next_[before]) = after;
        (after == noCell ? last_ : previous_[after]) = before;
    }

    void ensure(std::size_t size) {
        if (size > array_.cells_.size()) grow(size);
    }

    // Adds free cells, in ascending order at the end of the list.
    void grow(std::size_t size) {
        auto cell = static_cast<std::uint32_t>(array_.cells_.size());
        array_.cells_.resize(size, array_.codeMask_);
        array_.values_.resize(size);
        isTaken_.resize(size);
        isBase_.resize(size);
        next_.resize(size, noCell);
        previous_.resize(size, noCell);
        for (; cell < size; ++cell) {
            previous_[cell] = last_;
            (last_ == noCell ? first_ : next_[last_]) = cell;
            last_ = cell;
        }
    }

    // A step from any state by any code must land inside the array.
    void finish() {
        std::uint32_t highestBase = 0;
        for (const Cell cell : array_.cells_) {
            if ((cell & DoubleArray::hasRest) == 0) highestBase = std::max(highestBase, array_.base(cell));
        }
        array_.cells_.resize(std::max<std::size_t>(array_.cells_.size(), highestBase + highestCode_ + 1),
                             array_.codeMask_);
        array_.values_.resize(array_.cells_.size());
    }

    DoubleArray& array_;
    std::vector<Pending> pending_;
    std::vector<Code> codes_;
    std::vector<bool> isTaken_;
    std::vector<bool> isBase_;
    std::vector<std::uint32_t> next_;
    std::vector<std::uint32_t> previous_;
    std::uint32_t first_ = noCell;
    std::uint32_t last_ = noCell;
    std::uint32_t lastTaken_ = 0;
    Code highestCode_ = 0;
};

DoubleArray::DoubleArray(std::span<const std::span<const Key>> tries) {
    DoubleArrayBuilder(*this).build(tries);
}

}  // namespace vellark
