#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

namespace vellark {

/// Ranges of a text, of which one is asked whether it covers another range. Answers take logarithmic time, so that many
/// ranges in a long text cost no product of both.
class RangeCover {
public:
    /// In ascending order of the ends.
    void add(std::uint32_t start, std::uint32_t end) { ranges_.push_back({start, end}); }

    /// Between the last `add` and the first question.
    void finish() {
        for (std::size_t index = ranges_.size(); index > 1; --index) {
            ranges_[index - 2].start = std::min(ranges_[index - 2].start, ranges_[index - 1].start);
        }
    }

    [[nodiscard]] bool covers(std::uint32_t start, std::uint32_t end) const { return leastStart(end) <= start; }

    /// Whether a range covers it that is longer.
    [[nodiscard]] bool coversStrictly(std::uint32_t start, std::uint32_t end) const {
        return leastStart(end) < start || leastStart(end + 1) <= start;
    }

private:
    struct Range {
        std::uint32_t start;  // after `finish`, the least of this and all later ranges
        std::uint32_t end;
    };

    // Of the ranges that end at `end` or later.
    [[nodiscard]] std::uint32_t leastStart(std::uint32_t end) const {
        const auto found = std::ranges::lower_bound(ranges_, end, {}, &Range::end);
        return found == ranges_.end() ? 0xFFFF'FFFF : found->start;
    }

    std::vector<Range> ranges_;
};

}  // namespace vellark
