#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vellark {

template <class Value>
struct FixedTextEntry {
    std::string_view text;
    Value value;
};

/// A table from a few short texts to values, at most 254 of them, hashed when the program is compiled. A look-up reads
/// the text once and then compares it with the one entry that it may be.
///
///     constexpr FixedTextMap sides(std::to_array<FixedTextEntry<int>>({{"left", 1}, {"right", 2}}));
///     sides.find("left")     1
///     sides.find("Left")     nullptr
template <class Value, std::size_t count>
class FixedTextMap {
public:
    /// Of equal texts the first one counts.
    consteval explicit FixedTextMap(const std::array<FixedTextEntry<Value>, count>& entries) : entries_(entries) {
        static_assert(count < empty);
        slots_.fill(empty);
        for (std::size_t index = 0; index < count; ++index) {
            const std::string_view text = entries_[index].text;
            longest_ = std::max(longest_, text.size());
            if (find(text) != nullptr) continue;
            std::size_t slot = slotOf(text);
            while (slots_[slot] != empty)
                slot = (slot + 1) % slotCount;
            slots_[slot] = static_cast<std::uint8_t>(index);
        }
    }

    [[nodiscard]] constexpr const Value* find(std::string_view text) const {
        if (text.size() > longest_) return nullptr;
        for (std::size_t slot = slotOf(text); slots_[slot] != empty; slot = (slot + 1) % slotCount) {
            const FixedTextEntry<Value>& entry = entries_[slots_[slot]];
            if (entry.text == text) return &entry.value;
        }
        return nullptr;
    }

    [[nodiscard]] constexpr const auto& entries() const { return entries_; }

private:
    static constexpr std::uint8_t empty = 0xFF;

    // So many that most texts which are no entries meet an empty slot at once.
    static constexpr std::size_t slotCount = std::bit_ceil(4 * count);

    static constexpr std::size_t slotOf(std::string_view text) {
        std::uint32_t hash = static_cast<std::uint32_t>(text.size());
        for (const char byte : text)
            hash = hash * 31 + static_cast<unsigned char>(byte);
        return (hash * 0x9E3779B1U >> 16) % slotCount;
    }

    std::array<FixedTextEntry<Value>, count> entries_;
    std::array<std::uint8_t, slotCount> slots_{};
    std::size_t longest_ = 0;
};

}  // namespace vellark
