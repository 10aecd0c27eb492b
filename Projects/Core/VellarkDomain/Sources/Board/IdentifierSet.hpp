#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vellark {

/// A set of texts that are kept elsewhere, meant to be filled and emptied over and over without a new allocation.
///
/// One table with open addressing, at most half full. A slot keeps the text's whole hash, so that a text is compared
/// almost only with its equal. Hashes are keyed by a number drawn once per process: no file can be made so that its
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
        std::uint64_t hash = 0;
        const char* text = nullptr;  ///< null in a free slot
        std::size_t byteCount = 0;
    };

    // The slot of the text, or the free one where it belongs.
    [[nodiscard]] std::size_t find(std::string_view text, std::uint64_t hash) const;

    std::vector<Slot> slots_;  // a power of two of them
};

}  // namespace vellark
