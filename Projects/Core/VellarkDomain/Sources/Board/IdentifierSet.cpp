#include <VellarkDomain/Board/IdentifierSet.hpp>

#include <bit>
#include <cstring>
#include <random>

namespace vellark {

namespace {

// Odd, with about as many ones as zeros: the fractions of the square roots of 2 and 3.
constexpr std::uint64_t firstFactor = 0x6A09E667F3BCC909U;
constexpr std::uint64_t secondFactor = 0xBB67AE8584CAA73BU;

std::uint64_t processKey() {
    static const std::uint64_t key = [] {
        std::random_device device;
        return std::uint64_t{device()} << 32 | device();
    }();
    return key;
}

std::uint64_t mixed(std::uint64_t value) {
    value *= firstFactor;
    value ^= value >> 32;
    value *= secondFactor;
    return value ^ value >> 29;
}

// Eight bytes at a time; the last ones, fewer than eight, are one word with zeros behind them, which the length tells
// from zeros in the text.
std::uint64_t hashOf(std::string_view text, std::uint64_t key) {
    std::uint64_t hash = mixed(key ^ text.size());
    while (!text.empty()) {
        std::uint64_t word = 0;
        const std::size_t count = text.size() < sizeof word ? text.size() : sizeof word;
        std::memcpy(&word, text.data(), count);
        hash = mixed(std::rotl(hash, 23) + (word ^ key));
        text.remove_prefix(count);
    }
    return hash;
}

}  // namespace

void IdentifierSet::reset(std::size_t count) {
    slots_.assign(std::bit_ceil(2 * count + 1), Slot{});
}

std::size_t IdentifierSet::find(std::string_view text, std::uint64_t hash) const {
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t index = hash & mask;; index = (index + 1) & mask) {
        const Slot& slot = slots_[index];
        if (slot.text == nullptr) return index;
        if (slot.hash == hash && std::string_view(slot.text, slot.byteCount) == text) return index;
    }
}

bool IdentifierSet::insert(std::string_view text) {
    const std::uint64_t hash = hashOf(text, processKey());
    Slot& slot = slots_[find(text, hash)];
    if (slot.text != nullptr) return false;
    slot = {.hash = hash, .text = text.data(), .byteCount = text.size()};
    return true;
}

bool IdentifierSet::contains(std::string_view text) const {
    return slots_[find(text, hashOf(text, processKey()))].text != nullptr;
}

}  // namespace vellark
