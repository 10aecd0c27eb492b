#pragma once

#include <VellarkDomain/Feedback/DocumentFeedbackAnchor.hpp>

#include <cstdlib>
#include <optional>
#include <string_view>
#include <vector>

namespace vellark::testing {

/// The search for a note's lines in its plain form: every stretch hashed from its first line on, one after another.
class PlainRelocation {
public:
    explicit PlainRelocation(std::string_view text) {
        for (const std::string_view line : DocumentFeedbackAnchor::lines(text))
            hashes_.push_back(FeedbackHash::ofLine(line));
    }

    [[nodiscard]] std::size_t lineCount() const { return hashes_.size(); }

    [[nodiscard]] std::uint64_t stretchHash(std::size_t start, std::size_t span) const {
        std::uint64_t state = FeedbackHash::offsetBasis;
        for (std::size_t line = start; line < start + span; ++line)
            state = FeedbackHash::combined(state, hashes_[line]);
        return state;
    }

    /// The start, counted from 0, nearest to `from`; of two as near the earlier.
    [[nodiscard]] std::optional<std::size_t> nearestStretch(std::uint64_t hash, std::size_t span,
                                                            std::size_t from) const {
        std::optional<std::size_t> nearest;
        for (std::size_t start = 0; start + span <= hashes_.size(); ++start) {
            if (stretchHash(start, span) != hash) continue;
            if (!nearest || distance(start, from) < distance(*nearest, from)) nearest = start;
        }
        return nearest;
    }

private:
    static std::size_t distance(std::size_t left, std::size_t right) {
        return left < right ? right - left : left - right;
    }

    std::vector<std::uint64_t> hashes_;
};

}  // namespace vellark::testing
