#pragma once

#include <VellarkDomain/Documents/Kinds/Matcher/DocumentKindMatcher.hpp>
#include <VellarkDomain/Documents/Kinds/Matcher/ScalarClasses.hpp>

#include <algorithm>
#include <cstdint>
#include <deque>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vellark::testing {

/// The matcher in its plain form: an Aho-Corasick automaton in one hash map, and every boundary rule asked of every
/// match, as the rules are worded.
class PlainKindMatcher {
public:
    using Hit = DocumentKindMatcher::Hit;

    explicit PlainKindMatcher(const DocumentKindMatcher::Patterns& patterns) : patterns_(patterns) {
        for (std::size_t index = 0; index < patterns.patterns.size(); ++index) {
            addPattern(static_cast<std::int32_t>(index));
        }
        link();
    }

    [[nodiscard]] std::vector<Hit> hits(std::u32string_view text) const {
        std::vector<Hit> hits;
        std::int32_t state = 0;
        for (std::size_t position = 0; position < text.size(); ++position) {
            state = next(state, text[position]);
            for (const std::int32_t pattern : outputs_[static_cast<std::size_t>(state)]) {
                const auto index = static_cast<std::size_t>(pattern);
                const std::size_t start = position + 1 - patterns_.patterns[index].size();
                if (!keepsBoundaries(index, text, start, position + 1)) continue;
                hits.push_back({static_cast<std::uint32_t>(pattern), static_cast<std::uint32_t>(start),
                                static_cast<std::uint32_t>(position + 1)});
            }
        }
        return hits;
    }

private:
    static std::uint64_t key(std::int32_t state, char32_t scalar) {
        return static_cast<std::uint64_t>(state) << 32 | scalar;
    }

    void addPattern(std::int32_t pattern) {
        const std::u32string& scalars = patterns_.patterns[static_cast<std::size_t>(pattern)];
        spaced_.push_back(std::ranges::none_of(scalars, ScalarClasses::isSpaceless));
        if (scalars.empty()) return;
        std::int32_t state = 0;
        for (const char32_t scalar : scalars) {
            const auto [place, isNew] =
                transitions_.try_emplace(key(state, scalar), static_cast<std::int32_t>(outputs_.size()));
            if (isNew) {
                outputs_.emplace_back();
                children_[static_cast<std::size_t>(state)].push_back(scalar);
                children_.emplace_back();
            }
            state = place->second;
        }
        outputs_[static_cast<std::size_t>(state)].push_back(pattern);
    }

    void link() {
        failure_.assign(outputs_.size(), 0);
        std::deque<std::int32_t> queue{0};
        while (!queue.empty()) {
            const std::int32_t state = queue.front();
            queue.pop_front();
            for (const char32_t scalar : children_[static_cast<std::size_t>(state)]) {
                const auto child = static_cast<std::size_t>(transitions_.at(key(state, scalar)));
                failure_[child] = state == 0 ? 0 : next(failure_[static_cast<std::size_t>(state)], scalar);
                const auto& inherited = outputs_[static_cast<std::size_t>(failure_[child])];
                outputs_[child].insert(outputs_[child].end(), inherited.begin(), inherited.end());
                queue.push_back(static_cast<std::int32_t>(child));
            }
        }
    }

    [[nodiscard]] std::int32_t next(std::int32_t state, char32_t scalar) const {
        while (true) {
            const auto found = transitions_.find(key(state, scalar));
            if (found != transitions_.end()) return found->second;
            if (state == 0) return 0;
            state = failure_[static_cast<std::size_t>(state)];
        }
    }

    static bool flag(const std::vector<bool>& flags, std::size_t pattern) {
        return pattern < flags.size() && flags[pattern];
    }

    static bool isBoundary(std::u32string_view text, std::size_t position) {
        return position >= text.size() || ScalarClasses::isBoundary(text[position]);
    }

    static bool isHangul(std::u32string_view text, std::size_t position) {
        return position < text.size() && ScalarClasses::isHangulSyllable(text[position]);
    }

    [[nodiscard]] bool keepsBoundaries(std::size_t pattern, std::u32string_view text, std::size_t start,
                                       std::size_t end) const {
        if (spaced_[pattern] && !isWhole(pattern, text, start, end)) return false;
        if (isHangul(text, start) && !flag(patterns_.suffixHead, pattern) && start > 0 && isHangul(text, start - 1)) {
            return false;
        }
        return !isHangul(text, end - 1) || !isHangul(text, end) || DocumentKindMatcher::isParticle(text, end);
    }

    [[nodiscard]] bool isWhole(std::size_t pattern, std::u32string_view text, std::size_t start,
                               std::size_t end) const {
        const bool isLeftClean = start == 0 || isBoundary(text, start - 1);
        if (!isLeftClean && !flag(patterns_.compound, pattern)) return false;
        if (isBoundary(text, end)) return true;
        if (!flag(patterns_.plural, pattern) || !isLeftClean) return false;
        if (text[end] == U's') return isBoundary(text, end + 1);
        return text.substr(end, 2) == U"es" && isBoundary(text, end + 2);
    }

    DocumentKindMatcher::Patterns patterns_;
    std::vector<bool> spaced_;
    std::unordered_map<std::uint64_t, std::int32_t> transitions_;
    std::vector<std::vector<std::int32_t>> outputs_ = {{}};
    std::vector<std::vector<char32_t>> children_ = {{}};
    std::vector<std::int32_t> failure_;
};

}  // namespace vellark::testing
