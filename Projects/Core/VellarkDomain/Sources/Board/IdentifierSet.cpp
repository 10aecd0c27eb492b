#include <VellarkDomain/Board/IdentifierSet.hpp>

#include <array>
#include <bit>
#include <cstring>
#include <random>

namespace vellark {

namespace {

__extension__ using Wide = unsigned __int128;

struct Key {
    std::uint64_t first = 0;
    std::uint64_t second = 0;
};

const Key& processKey() {
    static const Key key = [] {
        std::random_device device;
        const auto word = [&] { return std::uint64_t{device()} << 32 | device(); };
        return Key{word(), word()};
    }();
    return key;
}

// Both halves of the product: every bit of the factors reaches the bits in the middle.
std::uint64_t folded(std::uint64_t left, std::uint64_t right) {
    const Wide product = Wide{left} * right;
    return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

// 16 bytes at a time. The end of a longer text is taken together with bytes before it, a shorter text is filled up with
// zeros, which the length tells from zeros in the text.
std::uint64_t hashOf(std::string_view text) {
    const Key& key = processKey();
    std::uint64_t hash = folded(text.size() ^ key.first, key.second);
    std::array<std::uint64_t, 2> words{};
    const auto take = [&](std::size_t offset, std::size_t byteCount) {
        std::memcpy(words.data(), text.data() + offset, byteCount);
        hash = folded(words[0] ^ key.first ^ hash, words[1] ^ key.second);
    };
    if (text.size() < sizeof words) {
        if (!text.empty()) take(0, text.size());
        return hash;
    }
    const std::size_t last = text.size() - sizeof words;
    for (std::size_t offset = 0; offset < last; offset += sizeof words)
        take(offset, sizeof words);
    take(last, sizeof words);
    return hash;
}

}  // namespace

void IdentifierSet::reset(std::size_t count) {
    slots_.assign(std::bit_ceil(2 * count + 1), Slot{});
    texts_.clear();
    texts_.reserve(count);
}

std::size_t IdentifierSet::find(std::string_view text, std::uint64_t hash) const {
    const auto kept = static_cast<std::uint32_t>(hash >> 32);
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t index = hash & mask;; index = (index + 1) & mask) {
        const Slot& slot = slots_[index];
        if (slot.number == 0 || (slot.hash == kept && texts_[slot.number - 1] == text)) return index;
    }
}

bool IdentifierSet::insert(std::string_view text) {
    const std::uint64_t hash = hashOf(text);
    Slot& slot = slots_[find(text, hash)];
    if (slot.number != 0) return false;
    texts_.push_back(text);
    slot = {.hash = static_cast<std::uint32_t>(hash >> 32), .number = static_cast<std::uint32_t>(texts_.size())};
    return true;
}

bool IdentifierSet::contains(std::string_view text) const {
    return slots_[find(text, hashOf(text))].number != 0;
}

}  // namespace vellark
