#include <VellarkDomain/Documents/Kinds/Matcher/PrefixIndex.hpp>

#include <algorithm>
#include <bit>
#include <stdexcept>

namespace vellark {

namespace {

PrefixIndex::Code codeAt(std::span<const PrefixIndex::Code> codes, std::size_t index) {
    return index < codes.size() ? codes[index] : 0;
}

}  // namespace

PrefixIndex::Key::Key(std::uint32_t set, std::span<const Code> codes, std::uint32_t value)
    : order_(std::uint64_t{set} << setStart), codes_(codes), value_(value) {
    if (std::ranges::max(codes) >= codeLimit) throw std::length_error("too many codes");
    for (std::size_t index = 0; index < depth; ++index) {
        order_ |= std::uint64_t{codeAt(codes, index)} << (codeBits * (depth - 1 - index));
    }
}

bool PrefixIndex::Key::precedes(const Key& left, const Key& right) {
    if (left.order_ != right.order_) return left.order_ < right.order_;
    const auto order = std::lexicographical_compare_three_way(left.codes_.begin(), left.codes_.end(),
                                                              right.codes_.begin(), right.codes_.end());
    return order != 0 ? order < 0 : left.value_ < right.value_;
}

bool PrefixIndex::Key::finds(const Key& other) const {
    return order_ == other.order_ && std::ranges::equal(codes_, other.codes_);
}

PrefixIndex::Prefixes PrefixIndex::prefixesOf(const Key& key) {
    const auto codes = key.codes();
    return {key.set(), codeAt(codes, 0), codeAt(codes, 1), codeAt(codes, 2), codeAt(codes, 3)};
}

PrefixIndex::Entry& PrefixIndex::entry(Prefix prefix) {
    std::size_t place = hash(prefix) >> tableShift_;
    while (entries_[place].prefix != 0 && entries_[place].prefix != prefix) {
        place = (place + 1) & (entries_.size() - 1);
    }
    entries_[place].prefix = prefix;
    return entries_[place];
}

PrefixIndex::PrefixIndex(std::span<const Key> keys) {
    const std::size_t size = std::bit_ceil(keys.size() * 4 / 3 + 2);
    entries_.resize(size);
    tableShift_ = 64 - static_cast<unsigned>(std::bit_width(size) - 1);

    std::vector<DoubleArray::Key> rests;
    rests.reserve(keys.size());  // tries are views of it
    std::vector<std::span<const DoubleArray::Key>> tries;
    std::vector<Prefix> owners;
    for (const Key& key : keys) {
        const Prefixes prefixes = prefixesOf(key);
        const Prefix prefix = prefixes[std::min(key.codes().size(), depth)];
        Entry& found = entry(prefix);
        mark(prefixes_, prefix);
        if (key.codes().size() > 1) mark(pairs_, prefixes[2]);
        if (key.codes().size() <= depth) {
            found.value = key.value();
            continue;
        }
        rests.push_back({key.codes().subspan(depth), key.value()});
        if (owners.empty() || owners.back() != prefix) {
            owners.push_back(prefix);
            tries.emplace_back(&rests.back(), 0);
        }
        tries.back() = {tries.back().data(), tries.back().size() + 1};
    }
    rests_ = DoubleArray(tries);
    for (std::size_t trie = 0; trie < owners.size(); ++trie) {
        entry(owners[trie]).rest = rests_.root(trie);
    }
}

}  // namespace vellark
