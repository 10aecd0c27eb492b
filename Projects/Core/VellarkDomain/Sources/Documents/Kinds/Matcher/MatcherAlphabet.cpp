#include <VellarkDomain/Documents/Kinds/Matcher/MatcherAlphabet.hpp>
#include <VellarkDomain/Documents/Kinds/Matcher/ScalarClasses.hpp>

#include <algorithm>
#include <utility>

namespace vellark {

namespace {

MatcherAlphabet::Entry classFlags(char32_t scalar) {
    MatcherAlphabet::Entry flags = 0;
    if (ScalarClasses::isBoundary(scalar)) flags |= MatcherAlphabet::boundary;
    if (ScalarClasses::isHangulSyllable(scalar)) flags |= MatcherAlphabet::hangul;
    return flags;
}

}  // namespace

MatcherAlphabet::MatcherAlphabet(std::span<const std::u32string> patterns) {
    addClasses();
    // Each code first counts how often its scalar occurs.
    std::vector<char32_t> scalars;
    constexpr Entry one = 1U << flagBits;
    for (const std::u32string& pattern : patterns) {
        for (const char32_t scalar : pattern) {
            Entry* const found = entry(scalar);
            if (found == nullptr) continue;
            if (code(*found) == 0) scalars.push_back(scalar);
            *found += one;
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

// Pages of one class share a block until one of their scalars gets a code.
void MatcherAlphabet::addClasses() {
    blocks_.push_back({});
    isShared_.push_back(true);
    std::array<std::uint16_t, 4> uniform{};  // block by flags, 0 where there is none yet but for the flags 0
    constexpr std::size_t pagesOfFirstPlane = 0x100;
    for (std::size_t page = 0; page < pagesOfFirstPlane; ++page) {
        Block block;
        for (std::size_t index = 0; index < block.size(); ++index) {
            block[index] = classFlags(static_cast<char32_t>(page << 8 | index));
        }
        const Entry flags = block.front();
        const bool isUniform = std::ranges::all_of(block, [&](Entry other) { return other == flags; });
        if (isUniform && (flags == 0 || uniform[flags] != 0)) {
            pages_[page] = uniform[flags];
            continue;
        }
        pages_[page] = static_cast<std::uint16_t>(blocks_.size());
        if (isUniform) uniform[flags] = pages_[page];
        blocks_.push_back(block);
        isShared_.push_back(isUniform);
    }
}

// The place of a scalar's entry in a block of its own page; null for a value above U+10FFFF.
MatcherAlphabet::Entry* MatcherAlphabet::entry(char32_t scalar) {
    const std::size_t page = scalar >> 8;
    if (page >= pages_.size()) return nullptr;
    if (isShared_[pages_[page]]) {
        blocks_.push_back(Block(blocks_[pages_[page]]));
        isShared_.push_back(false);
        pages_[page] = static_cast<std::uint16_t>(blocks_.size() - 1);
    }
    return &blocks_[pages_[page]][scalar & 0xFF];
}

}  // namespace vellark
