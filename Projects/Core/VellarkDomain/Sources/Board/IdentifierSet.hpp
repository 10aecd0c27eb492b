#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vellark {

/// A set of texts that are kept elsewhere, meant to be filled and emptied over and over without a new allocation.
///
/// One table with open addressing, at most half full. A slot keeps half of the text's hash, so that a text is compared
/// almost only with its equal. Hashes are keyed by numbers drawn once per process: no file can be made so that its
/// identifiers collide.
class IdentifierSet {
public:
    /// Empties the set and makes room for `count` texts; no more may be inserted.
    void reset(std::size_t count);

    /// Adds a text, which must outlive the set's use; false when it is there already.
    bool insert(std::string_view text);

    [[nodiscard]] bool contains(std::string_view text) const;

private:
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t number = 0;  // of the text, counted from 1; 0 in a free slot
    };

    // The slot of the text, or the free one where it belongs.
    [[nodiscard]] std::size_t find(std::string_view text, std::uint64_t hash) const;

    std::vector<Slot> slots_;  // a power of two of them
    std::vector<std::string_view> texts_;
};

}  // namespace vellark
