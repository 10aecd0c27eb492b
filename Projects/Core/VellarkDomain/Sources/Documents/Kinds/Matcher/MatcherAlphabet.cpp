#include <VellarkDomain/Documents/Kinds/Matcher/MatcherAlphabet.hpp>
#include <VellarkDomain/Documents/Kinds/Matcher/ScalarClasses.hpp>

#include <algorithm>
#include <utility>

namespace vellark {

MatcherAlphabet::MatcherAlphabet(std::span<const std::u32string> patterns) : entries_(firstPlane) {
    for (char32_t scalar = 0; scalar < firstPlane; ++scalar) {
        if (ScalarClasses::isBoundary(scalar)) entries_[scalar] |= boundary;
        if (ScalarClasses::isHangulSyllable(scalar)) entries_[scalar] |= hangul;
    }
    // Each code first counts how often its scalar occurs.
    constexpr Entry one = 1U << flagBits;
    std::vector<char32_t> scalars;
    for (const std::u32string& pattern : patterns) {
        if (std::ranges::any_of(pattern, [](char32_t scalar) { return scalar > 0x10'FFFF; })) continue;
        for (const char32_t scalar : pattern) {
            Entry& found = *entry(scalar);
            if (code(found) == 0) scalars.push_back(scalar);
            found += one;
        }
    }
    std::vector<std::pair<Entry, char32_t>> byCount;
    byCount.reserve(scalars.size());
    for (const char32_t scalar : scalars) {
        byCount.emplace_back(~code((*this)[scalar]), scalar);
    }
    std::ranges::sort(byCount);
    Entry next = 0;
    for (const auto& [count, scalar] : byCount) {
        Entry& found = *entry(scalar);
        found = (++next << flagBits) | (found & (one - 1));
    }
}

MatcherAlphabet::Entry* MatcherAlphabet::entry(char32_t scalar) {
    if (scalar < firstPlane) return &entries_[scalar];
    return scalar <= 0x10FFFF ? &others_[scalar] : nullptr;
}

MatcherAlphabet::Entry MatcherAlphabet::beyondFirstPlane(char32_t scalar) const {
    const auto found = others_.find(scalar);
    return found == others_.end() ? 0 : found->second;
}

}  // namespace vellark
