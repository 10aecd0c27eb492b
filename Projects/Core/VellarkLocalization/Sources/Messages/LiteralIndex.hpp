#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace vellark {

/// Which of many literals a text begins with, found in one walk over the text's first bytes. Sorted, the literals that
/// share their first bytes with the text are one range, which each further byte narrows; a text that shares nothing is
/// done after a byte or two.
class LiteralIndex {
public:
    using Entry = std::pair<std::string, std::uint32_t>;  // a literal and what it stands for

    LiteralIndex() = default;
    explicit LiteralIndex(std::vector<Entry> entries) : entries_(std::move(entries)) { std::ranges::sort(entries_); }

    /// Calls `found` with the number of each literal that is equal to the first bytes of a text of `size` bytes, of
    /// which `byteAt` gives the one at an offset. The shortest literals come first.
    template <class ByteAt, class Found>
    void collectPrefixes(std::size_t size, ByteAt byteAt, Found found) const {
        auto first = entries_.begin();
        auto last = entries_.end();
        for (std::size_t depth = 0; first != last; ++depth) {
            for (; first != last && first->first.size() == depth; ++first) {
                found(first->second);
            }
            if (first == last || depth == size) return;
            const auto byte = static_cast<unsigned char>(byteAt(depth));
            const auto atDepth = [depth](const Entry& entry) { return static_cast<unsigned char>(entry.first[depth]); };
            first = std::ranges::lower_bound(first, last, byte, {}, atDepth);
            last = std::ranges::upper_bound(first, last, byte, {}, atDepth);
        }
    }

private:
    std::vector<Entry> entries_;
};

}  // namespace vellark
