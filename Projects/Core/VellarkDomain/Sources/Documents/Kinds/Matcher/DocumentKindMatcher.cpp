#include <VellarkDomain/Documents/Kinds/Matcher/BlockMasks.hpp>
#include <VellarkDomain/Documents/Kinds/Matcher/DocumentKindMatcher.hpp>
#include <VellarkDomain/Documents/Kinds/Matcher/KoreanParticles.hpp>
#include <VellarkDomain/Documents/Kinds/Matcher/ScalarClasses.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <algorithm>
#include <array>
#include <bit>
#include <memory>

// An automaton that follows every pattern through every scalar would mostly find what the boundary rules then refuse.
// The rules themselves say where a match can stand, so the patterns are in three tries, and a walk begins only there:
//
//   anchored   words of spaced scripts, from each start of a word; Korean words, from each start of a Korean run
//   floating   words of the other scripts, and Korean suffix nouns, from each scalar
//   reversed   backwards: words that may end a longer word, from each end of a word, for matches inside words only
//              (those at the start of one are found in the first trie); and words that begin in a spaced script and
//              go on in another ("api 문서"), which may begin anywhere, from each scalar that ends one
//
// Most walks end within three steps, and none is begun where the first scalars surely begin nothing.

namespace vellark {

namespace {

using Entry = MatcherAlphabet::Entry;
using Hit = DocumentKindMatcher::Hit;

bool flagAt(const std::vector<bool>& flags, std::size_t index) {
    return index < flags.size() && flags[index];
}

// By end, then the longest first, then by index.
bool precedes(const Hit& left, const Hit& right) {
    if (left.end != right.end) return left.end < right.end;
    if (left.start != right.start) return left.start < right.start;
    return left.pattern < right.pattern;
}

// Walks find matches nearly in order: a match is overtaken only by those that begin before its end.
void insertInOrder(std::vector<Hit>& hits, Hit hit) {
    auto place = hits.size();
    hits.push_back(hit);
    for (; place > 0 && precedes(hit, hits[place - 1]); --place) {
        hits[place] = hits[place - 1];
    }
    hits[place] = hit;
}

}  // namespace

DocumentKindMatcher::DocumentKindMatcher(const Patterns& patterns)
    : traits_(traits(patterns)), alphabet_(patterns.patterns), array_(tries(patterns.patterns)) {}

std::vector<DocumentKindMatcher::Traits> DocumentKindMatcher::traits(const Patterns& patterns) {
    std::vector<Traits> result(patterns.patterns.size());
    for (std::size_t index = 0; index < result.size(); ++index) {
        const std::u32string& pattern = patterns.patterns[index];
        if (pattern.empty()) continue;
        result[index] = {.spaced = std::ranges::none_of(pattern, ScalarClasses::isSpaceless),
                         .plural = flagAt(patterns.plural, index),
                         .compound = flagAt(patterns.compound, index),
                         .hangulStart = ScalarClasses::isHangulSyllable(pattern.front()),
                         .hangulEnd = ScalarClasses::isHangulSyllable(pattern.back()),
                         .suffixHead = flagAt(patterns.suffixHead, index)};
    }
    return result;
}

// Makes the tries, and notes in the alphabet which scalars begin their walks.
DoubleArray DocumentKindMatcher::tries(std::span<const std::u32string> patterns) {
    std::size_t size = 0;
    for (const std::u32string& pattern : patterns) {
        size += 2 * pattern.size();
    }
    std::vector<DoubleArray::Code> codes;
    codes.reserve(size);  // keys hold views of it
    std::array<std::vector<DoubleArray::Key>, trieCount> keys;
    const auto add = [&](Trie trie, std::uint32_t pattern, auto first, auto last) {
        const std::size_t start = codes.size();
        for (; first != last; ++first) {
            codes.push_back(MatcherAlphabet::code(alphabet_[*first]));
        }
        const std::span<const DoubleArray::Code> all(codes);
        // A value above U+10FFFF has no code; no text that is read holds one.
        if (std::ranges::find(all.subspan(start), 0U) != all.end()) return;
        keys[trie].push_back({all.subspan(start), pattern});
        filter_.add(trie, all.subspan(start));
    };
    const auto noteStart = [&](char32_t scalar, std::size_t length, MatcherAlphabet::Entry flag) {
        alphabet_.set(scalar, length == 1 ? flag | MatcherAlphabet::isPattern : flag);
    };
    const auto addForward = [&](Trie trie, std::uint32_t index, MatcherAlphabet::Entry flag) {
        const std::u32string& pattern = patterns[index];
        add(trie, index, pattern.begin(), pattern.end());
        noteStart(pattern.front(), pattern.size(), flag);
    };
    const auto addBackward = [&](std::uint32_t index, MatcherAlphabet::Entry flag) {
        const std::u32string& pattern = patterns[index];
        add(reversed, index, pattern.rbegin(), pattern.rend());
        noteStart(pattern.back(), pattern.size(), flag);
    };
    for (std::uint32_t index = 0; index < patterns.size(); ++index) {
        if (patterns[index].empty()) continue;
        const Traits& one = traits_[index];
        if (one.spaced) {
            addForward(anchored, index, MatcherAlphabet::beginsAnchored);
            if (one.compound) addBackward(index, MatcherAlphabet::endsCompound);
        } else if (one.hangulStart && !one.suffixHead) {
            addForward(anchored, index, MatcherAlphabet::beginsAnchored);
        } else if (ScalarClasses::isSpaceless(patterns[index].front())) {
            addForward(floating, index, MatcherAlphabet::beginsFloating);
        } else {
            addBackward(index, MatcherAlphabet::endsMixed);
        }
    }

    std::array<std::span<const DoubleArray::Key>, trieCount> sorted;
    for (std::size_t trie = 0; trie < trieCount; ++trie) {
        std::ranges::stable_sort(keys[trie], std::ranges::lexicographical_compare, &DoubleArray::Key::codes);
        std::vector<DoubleArray::Key> unique;
        unique.reserve(keys[trie].size());
        std::uint32_t last = noPattern;
        for (const DoubleArray::Key& key : keys[trie]) {
            if (!unique.empty() && std::ranges::equal(unique.back().codes, key.codes)) {
                // The first trie that holds a pattern holds all that equal it.
                traits_[last].hasEqual = true;
                nextEqual_.try_emplace(last, key.value);
            } else {
                unique.push_back(key);
            }
            last = key.value;
        }
        keys[trie] = std::move(unique);
        sorted[trie] = keys[trie];
    }
    return DoubleArray(sorted);
}

/// One walk over a text.
class DocumentKindMatcher::Scan {
public:
    Scan(const DocumentKindMatcher& matcher, std::u32string_view text, std::vector<Hit>& hits)
        : matcher_(matcher), array_(matcher.array_), text_(text), hits_(hits) {
        const std::size_t size = margin + text.size() + BlockMasks::size + 1;
        Entry* entries = few_.data();
        if (size > few_.size()) {
            many_ = std::make_unique_for_overwrite<Entry[]>(size);
            entries = many_.get();
        }
        entries = std::fill_n(entries, margin, edge);
        for (std::size_t index = 0; index < text.size(); ++index) {
            entries[index] = matcher.alphabet_[text[index]];
        }
        std::fill_n(entries + text.size(), BlockMasks::size + 1, edge);
        entries_ = entries;
    }

    // Where walks begin is found out for a block at a time, without a branch for any scalar; the walks come after.
    void run() {
        for (std::size_t block = 0; block < text_.size(); block += BlockMasks::size) {
            const Starts starts = startsOf(BlockMasks(entries_ + block));
            Places places;
            const auto anchoredEnd = choose<1>(anchored, starts.anchored, block, places.begin());
            const auto floatingEnd = choose<1>(floating, starts.floating, block, anchoredEnd);
            const auto reversedEnd = choose<-1>(reversed, starts.reversed, block, floatingEnd);
            std::for_each(places.begin(), anchoredEnd, [this](std::size_t place) { walk(anchored, place); });
            std::for_each(anchoredEnd, floatingEnd, [this](std::size_t place) { walk(floating, place); });
            std::for_each(floatingEnd, reversedEnd, [this](std::size_t place) { walkBack(place + 1); });
        }
    }

private:
    using Mask = BlockMasks::Mask;
    using Places = std::array<std::size_t, trieCount * BlockMasks::size + 1>;  // one is written beyond the last

    static constexpr Entry edge = MatcherAlphabet::boundary;  // what stands before and behind a text
    static constexpr std::size_t margin = PrefixFilter::depth - 1;
    static_assert(margin <= BlockMasks::size);

    // Where the rules let a walk of each trie begin.
    struct Starts {
        Mask anchored, floating, reversed;
    };

    // What begins a walk in `anchored` need not be tested again at its end: a pattern of a spaced script never begins
    // with a Korean syllable, and a Korean one always does.
    static Starts startsOf(const BlockMasks& masks) {
        using enum MatcherAlphabet::Flag;
        const Mask korean = masks.having(hangul);
        const Mask boundaries = masks.having(boundary);
        const Mask wordStarts =
            (korean & ~masks.behind(korean, hangul)) | (~korean & masks.behind(boundaries, boundary));
        return {
            .anchored = masks.having(beginsAnchored) & wordStarts,
            .floating = masks.having(beginsFloating),
            .reversed = masks.having(endsMixed) | (masks.having(endsCompound) & masks.before(boundaries, boundary))};
    }

    // Appends the places of a mask's bits with which a key of the trie may begin, read forward (1) or backward (-1).
    template <std::ptrdiff_t direction>
    Places::iterator choose(Trie trie, Mask mask, std::size_t block, Places::iterator end) const {
        for (; mask != 0; mask &= mask - 1) {
            *end = block + static_cast<std::size_t>(std::countr_zero(mask));
            const Entry* const at = entries_ + *end;
            const auto codeAt = [at](std::ptrdiff_t index) { return MatcherAlphabet::code(at[index * direction]); };
            const bool isPattern = (*at & MatcherAlphabet::isPattern) != 0;
            end += isPattern | matcher_.filter_.mayBegin(trie, codeAt(0), codeAt(1), codeAt(2), codeAt(3));
        }
        return end;
    }

    void walk(Trie trie, std::size_t start) {
        DoubleArray::State state = array_.root(trie);
        for (std::size_t position = start;;) {
            state = array_.step(state, codeAt(position++));  // the end of the text has no child
            if (state == DoubleArray::none) return;
            if (!array_.isMarked(state)) continue;
            if (array_.isEnd(state)) addForward(array_.value(state), start, position);
            if (!array_.hasTail(state)) continue;
            const DoubleArray::Tail tail = array_.tail(state);
            for (const DoubleArray::Code code : tail.codes) {
                if (codeAt(position++) != code) return;
            }
            return addForward(tail.value, start, position);
        }
    }

    void walkBack(std::size_t end) {
        DoubleArray::State state = array_.root(reversed);
        for (std::size_t start = end; start > 0;) {
            state = array_.step(state, codeAt(--start));
            if (state == DoubleArray::none) return;
            if (!array_.isMarked(state)) continue;
            if (array_.isEnd(state)) addBackward(array_.value(state), start, end);
            if (!array_.hasTail(state)) continue;
            const DoubleArray::Tail tail = array_.tail(state);
            if (tail.codes.size() > start) return;
            for (const DoubleArray::Code code : tail.codes) {
                if (codeAt(--start) != code) return;
            }
            return addBackward(tail.value, start, end);
        }
    }

    [[nodiscard]] DoubleArray::Code codeAt(std::size_t position) const {
        return MatcherAlphabet::code(entries_[position]);
    }

    void addForward(std::uint32_t pattern, std::size_t start, std::size_t end) {
        for (; pattern != noPattern; pattern = nextEqual(pattern)) {
            if (mayEnd(traits(pattern), end)) add(pattern, start, end);
        }
    }

    void addBackward(std::uint32_t pattern, std::size_t start, std::size_t end) {
        for (; pattern != noPattern; pattern = nextEqual(pattern)) {
            if (mayStandBack(traits(pattern), start, end)) add(pattern, start, end);
        }
    }

    // Of equal patterns some may be compounds and some not.
    [[nodiscard]] bool mayStandBack(const Traits& pattern, std::size_t start, std::size_t end) const {
        if (!pattern.spaced) return mayEnd(pattern, end);
        return pattern.compound && start > 0 && (entries_[start - 1] & MatcherAlphabet::boundary) == 0 &&
               (entries_[end] & MatcherAlphabet::boundary) != 0;
    }

    [[nodiscard]] bool mayEnd(const Traits& pattern, std::size_t end) const {
        const Entry after = entries_[end];
        if (pattern.spaced) return (after & MatcherAlphabet::boundary) != 0 || (pattern.plural && hasEnding(end));
        if (!pattern.hangulEnd || (after & MatcherAlphabet::hangul) == 0) return true;
        return isParticle(text_, end);
    }

    // Whether the word ends behind an English plural's ending.
    [[nodiscard]] bool hasEnding(std::size_t position) const {
        if (text_[position] == U'e') ++position;
        return position < text_.size() && text_[position] == U's' &&
               (entries_[position + 1] & MatcherAlphabet::boundary) != 0;
    }

    [[nodiscard]] std::uint32_t nextEqual(std::uint32_t pattern) const {
        return traits(pattern).hasEqual ? matcher_.nextEqual_.at(pattern) : noPattern;
    }

    [[nodiscard]] const Traits& traits(std::uint32_t pattern) const { return matcher_.traits_[pattern]; }

    void add(std::uint32_t pattern, std::size_t start, std::size_t end) {
        insertInOrder(hits_, {pattern, static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(end)});
    }

    const DocumentKindMatcher& matcher_;
    const DoubleArray& array_;
    std::u32string_view text_;
    std::vector<Hit>& hits_;
    std::array<Entry, 512> few_;  // a title needs no memory of its own
    std::unique_ptr<Entry[]> many_;
    const Entry* entries_ = nullptr;
};

void DocumentKindMatcher::hits(std::u32string_view text, std::vector<Hit>& hits) const {
    hits.clear();
    Scan(*this, text, hits).run();
}

std::vector<DocumentKindMatcher::Hit> DocumentKindMatcher::hits(std::u32string_view text) const {
    std::vector<Hit> result;
    hits(text, result);
    return result;
}

std::string DocumentKindMatcher::normalizedText(std::u32string_view scalars) {
    std::string text;
    for (const char32_t scalar : scalars) {
        const bool isScalar = scalar <= 0x10FFFF && (scalar < 0xD800 || scalar > 0xDFFF);
        if (isScalar) UTF8::append(text, scalar);
    }
    return text;
}

bool DocumentKindMatcher::isParticle(std::u32string_view scalars, std::size_t position) {
    return KoreanParticles::standsAt(scalars, position);
}

}  // namespace vellark
