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
// The rules themselves say where a match can stand, so the patterns are in three sets, and are looked for only there:
//
//   anchored   words of spaced scripts, from each start of a word; Korean words, from each start of a Korean run
//   floating   words of the other scripts, from each scalar; Korean suffix nouns, from each inside a Korean run
//   reversed   backwards: words that may end a longer word, from each end of a word, for matches inside words only
//              (those at the start of one are found in the first set); and words that begin in a spaced script and
//              go on in another ("api 문서"), which may begin anywhere, from each scalar that ends one
//
// What makes this dear is guessing wrong at branches, so the places are found for a block of scalars at a time, without
// a branch for any of them, and matched afterwards.

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

// Matches are found nearly in order: a match is overtaken only by those that begin before its end.
void insertInOrder(std::vector<Hit>& hits, Hit hit) {
    auto place = hits.size();
    hits.push_back(hit);
    if (place == 0 || !precedes(hit, hits[place - 1])) return;
    do {
        hits[place] = hits[place - 1];
        --place;
    } while (place > 0 && precedes(hit, hits[place - 1]));
    hits[place] = hit;
}

}  // namespace

DocumentKindMatcher::DocumentKindMatcher(const Patterns& patterns)
    : traits_(traits(patterns)), alphabet_(patterns.patterns), index_(index(patterns.patterns)) {}

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

// Makes the index, and notes in the alphabet which scalars begin its keys.
PrefixIndex DocumentKindMatcher::index(std::span<const std::u32string> patterns) {
    std::size_t size = 0;
    for (const std::u32string& pattern : patterns) {
        size += 2 * pattern.size();
    }
    std::vector<PrefixIndex::Code> codes;
    codes.reserve(size);  // keys hold views of it
    std::vector<PrefixIndex::Key> keys;
    keys.reserve(2 * patterns.size());
    const auto add = [&](Set set, std::uint32_t pattern, auto first, auto last) {
        const std::size_t start = codes.size();
        for (; first != last; ++first) {
            codes.push_back(MatcherAlphabet::code(alphabet_[*first]));
        }
        const auto added = std::span<const PrefixIndex::Code>(codes).subspan(start);
        // A value above U+10FFFF has no code; no text that is read holds one.
        if (std::ranges::find(added, 0U) == added.end()) keys.emplace_back(set, added, pattern);
    };
    const auto noteStart = [&](char32_t scalar, std::size_t length, MatcherAlphabet::Entry flag) {
        alphabet_.set(scalar, length == 1 ? flag | MatcherAlphabet::isPattern : flag);
    };
    const auto addForward = [&](Set set, std::uint32_t index, MatcherAlphabet::Entry flag) {
        const std::u32string& pattern = patterns[index];
        add(set, index, pattern.begin(), pattern.end());
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
        } else if (one.hangulStart) {
            addForward(anchored, index, MatcherAlphabet::beginsAnchored);
            if (one.suffixHead) addForward(floating, index, MatcherAlphabet::beginsFloating);
        } else if (ScalarClasses::isSpaceless(patterns[index].front())) {
            addForward(floating, index, MatcherAlphabet::beginsFloating);
        } else {
            addBackward(index, MatcherAlphabet::endsMixed);
        }
    }

    std::ranges::sort(keys, PrefixIndex::Key::precedes);
    auto kept = keys.begin();
    std::uint32_t last = noPattern;
    for (const PrefixIndex::Key& key : keys) {
        if (kept != keys.begin() && kept[-1].finds(key)) {
            // The first set that holds a pattern holds all that equal it.
            traits_[last].hasEqual = true;
            nextEqual_.try_emplace(last, key.value());
        } else {
            *kept++ = key;
        }
        last = key.value();
    }
    return PrefixIndex({keys.begin(), kept});
}

/// One walk over a text.
class DocumentKindMatcher::Scan {
public:
    Scan(const DocumentKindMatcher& matcher, std::u32string_view text, std::vector<Hit>& hits)
        : matcher_(matcher), index_(matcher.index_), rests_(matcher.index_.rests()), text_(text), hits_(hits) {
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

    void run() {
        for (std::size_t block = 0; block < text_.size(); block += BlockMasks::size) {
            const Starts starts = startsOf(BlockMasks(entries_ + block));
            Beginnings beginnings;
            auto end = beginnings.begin();
            end = choose<1>(starts.anchored | starts.floating, starts.floating, block, end);
            const auto backward = end;
            end = choose<-1>(starts.reversed, 0, block, end);
            std::for_each(beginnings.begin(), end, [this](const Beginning& one) { index_.prefetch(one.prefix); });
            std::for_each(beginnings.begin(), backward, [this](const Beginning& one) { match<1>(one); });
            std::for_each(backward, end, [this](const Beginning& one) { match<-1>(one); });
        }
    }

private:
    using Mask = BlockMasks::Mask;

    struct Beginning {
        PrefixIndex::Prefix prefix;
        std::size_t place;  // of its first scalar, read backward of its last
    };
    using Beginnings = std::array<Beginning, 2 * BlockMasks::size * PrefixIndex::depth + 1>;

    static constexpr Entry edge = MatcherAlphabet::boundary;  // what stands before and behind a text
    static constexpr std::size_t margin = PrefixIndex::depth - 1;
    static_assert(margin <= BlockMasks::size);

    // Where the rules let a pattern of each set begin; no place is both anchored and floating.
    struct Starts {
        Mask anchored, floating, reversed;
    };

    // What begins in `anchored` need not be tested again at its end: a pattern of a spaced script never begins
    // with a Korean syllable, and a Korean one always does.
    static Starts startsOf(const BlockMasks& masks) {
        using enum MatcherAlphabet::Flag;
        const Mask korean = masks.having(hangul);
        const Mask boundaries = masks.having(boundary);
        const Mask wordStarts =
            (korean & ~masks.behind(korean, hangul)) | (~korean & masks.behind(boundaries, boundary));
        return {
            .anchored = masks.having(beginsAnchored) & wordStarts,
            .floating = masks.having(beginsFloating) & ~(korean & wordStarts),
            .reversed = masks.having(endsMixed) | (masks.having(endsCompound) & masks.before(boundaries, boundary))};
    }

    // Appends what may begin a key at a mask's bits, read forward (1), of the floating set at its bits and of the
    // anchored one elsewhere, or backward (-1).
    template <std::ptrdiff_t direction>
    Beginnings::iterator choose(Mask mask, Mask floats, std::size_t block, Beginnings::iterator end) const {
        for (; mask != 0; mask &= mask - 1) {
            const int bit = std::countr_zero(mask);
            const std::size_t place = block + static_cast<std::size_t>(bit);
            const std::uint32_t set = direction < 0 ? reversed : static_cast<std::uint32_t>(floats >> bit & 1);
            const Entry* const at = entries_ + place;
            const auto codeAt = [at](std::ptrdiff_t index) { return MatcherAlphabet::code(at[index * direction]); };
            const PrefixIndex::Prefixes prefixes(set, codeAt(0), codeAt(1), codeAt(2), codeAt(3));
            const bool begins = index_.mayBegin(prefixes);
            *end = {prefixes[1], place};
            end += (*at & MatcherAlphabet::isPattern) != 0;
            for (std::size_t length = 2; length <= PrefixIndex::depth; ++length) {
                *end = {prefixes[length], place};
                end += static_cast<std::ptrdiff_t>(begins & index_.mayFind(prefixes[length]));
            }
        }
        return end;
    }

    // Reading stops at the edge of the text, which has no code.
    template <std::ptrdiff_t direction>
    void match(const Beginning& beginning) {
        const PrefixIndex::Entry* const entry = index_.find(beginning.prefix);
        if (entry == nullptr) return;
        const auto length = static_cast<std::ptrdiff_t>(PrefixIndex::length(beginning.prefix));
        const Entry* next = entries_ + beginning.place + length * direction;
        const auto add = [&](std::uint32_t pattern) {
            const auto position = static_cast<std::size_t>(next - entries_);
            direction > 0 ? addForward(pattern, beginning.place, position)
                          : addBackward(pattern, position + 1, beginning.place + 1);
        };
        if (entry->value != noPattern) add(entry->value);
        for (auto state = entry->rest; state != DoubleArray::none; next += direction) {
            if (rests_.isMarked(state)) {
                if (rests_.isEnd(state)) add(rests_.value(state));
                if (rests_.hasTail(state)) {
                    const DoubleArray::Tail tail = rests_.tail(state);
                    for (const DoubleArray::Code code : tail.codes) {
                        if (MatcherAlphabet::code(*next) != code) return;
                        next += direction;
                    }
                    return add(tail.value);
                }
            }
            state = rests_.step(state, MatcherAlphabet::code(*next));
        }
    }

    void addForward(std::uint32_t pattern, std::size_t start, std::size_t end) {
        for (; pattern != noPattern; pattern = nextEqual(pattern)) {
            if (mayBegin(traits(pattern), start) && mayEnd(traits(pattern), end)) add(pattern, start, end);
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

    // Of equal Korean patterns some may be suffix nouns and some not.
    [[nodiscard]] bool mayBegin(const Traits& pattern, std::size_t start) const {
        const Entry before = *(entries_ + start - 1);  // the edge at the start of a text
        return !pattern.hangulStart || pattern.suffixHead || (before & MatcherAlphabet::hangul) == 0;
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
    const PrefixIndex& index_;
    const DoubleArray& rests_;
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
