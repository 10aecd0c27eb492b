#include <VellarkDomain/Documents/Kinds/Matcher/PrefixIndex.hpp>

#include <algorithm>
#include <bit>
#include <stdexcept>

namespace vellark {

PrefixIndex::Prefixes PrefixIndex::prefixesOf(const Key& key) {
    const auto codeAt = [&](std::size_t index) { return index < key.codes.size() ? key.codes[index] : 0; };
    if (std::ranges::max(key.codes) >= codeLimit) throw std::length_error("too many codes");
    return {key.set, codeAt(0), codeAt(1), codeAt(2), codeAt(3)};
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
        const Prefix prefix = prefixes[std::min(key.codes.size(), depth)];
        Entry& found = entry(prefix);
        mark(prefixes_, prefix);
        if (key.codes.size() > 1) mark(pairs_, prefixes[2]);
        if (key.codes.size() <= depth) {
            found.value = key.value;
            continue;
        }
        rests.push_back({key.codes.subspan(depth), key.value});
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
