#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindGrammar.hpp>
#include <VellarkDomain/Documents/Kinds/Matcher/KoreanParticles.hpp>
#include <VellarkDomain/Documents/Kinds/Rules/DocumentKindRules.hpp>

#include <algorithm>
#include <tuple>

// Every question about a match is answered from lists that are sorted once, so that a title of many thousand words
// costs no product of its words.

namespace vellark {

namespace {

using Found = DocumentKindSegment::Found;
using Role = DocumentKindTerm::Role;

constexpr std::uint32_t nowhere = 0xFFFF'FFFF;

// Of matches that begin first, the longest, then the one that the lexicon has had longest.
const Found* earliest(std::span<const Found* const> list) {
    const auto rank = [](const Found* found) { return std::tuple(found->start, ~found->length(), found->pattern); };
    const auto first = std::ranges::min_element(list, {}, rank);
    return first == list.end() ? nullptr : *first;
}

std::uint64_t mask(const std::vector<DocumentKind>& kinds) {
    static_assert(caseTable<DocumentKind>.size() <= 64);
    std::uint64_t bits = 0;
    for (const DocumentKind kind : kinds) {
        bits |= std::uint64_t{1} << static_cast<unsigned>(kind);
    }
    return bits;
}

// Titles of the base vocabulary and of Mongolian end with their head.
bool isFinal(const DocumentKindTerm& term) {
    return term.base || term.languages.contains(DocumentKindLanguage::mn);
}

// The kinds of a generic noun that lie in the field of a topic; failing that, those of the topic itself.
std::vector<DocumentKind> refinedKinds(const DocumentKindTerm& cue, const DocumentKindTerm& generic) {
    const auto sharesGroup = [&](DocumentKind kind) {
        const auto group = DocumentKinds::group(kind);
        return group &&
               std::ranges::any_of(cue.kinds, [&](DocumentKind other) { return DocumentKinds::group(other) == group; });
    };
    std::vector<DocumentKind> kinds;
    for (const DocumentKind kind : generic.kinds) {
        if (DocumentKindRules::isRefinable(kind) && sharesGroup(kind)) kinds.push_back(kind);
    }
    if (kinds.empty()) std::ranges::copy_if(cue.kinds, std::back_inserter(kinds), DocumentKindRules::isRefinable);
    return kinds;
}

}  // namespace

DocumentKindGrammar::DocumentKindGrammar(const DocumentKindSegment& segment) : segment_(segment) {
    firstComplementEnd_.fill(nowhere);
    for (const Found& found : segment.found) {
        sort(found);
    }
    genericRanges_.finish();
    std::ranges::sort(prepositionStarts_);
    complementsByStart_ = complements_;
    std::ranges::stable_sort(complementsByStart_, {}, &Found::start);
}

void DocumentKindGrammar::sort(const Found& found) {
    switch (found.term->role) {
        case Role::name:
            names_.push_back(&found);
            break;
        case Role::weak:
            weak_.push_back(&found);
            break;
        case Role::generic:
            generics_.push_back(&found);
            genericRanges_.add(found.start, found.end);
            break;
        case Role::cue:
            cues_.push_back(&found);
            break;
        case Role::preposition:
            prepositions_.push_back(&found);
            prepositionStarts_.push_back(found.start);
            break;
        case Role::complement:
            complements_.push_back(&found);
            for (const DocumentKindLanguage language : allCases<DocumentKindLanguage>()) {
                auto& first = firstComplementEnd_[static_cast<std::size_t>(language)];
                if (found.term->languages.contains(language)) first = std::min(first, found.end);
            }
            break;
        case Role::marker:
        case Role::exclusion:
            break;
    }
}

std::optional<Found> DocumentKindGrammar::head() {
    if (names_.empty()) return std::nullopt;
    const List names = headCandidates();
    List initials;
    RangeCover initialRanges;
    for (const Found* found : names) {
        if (found->term->base || !found->term->headInitial()) continue;
        initials.push_back(found);
        initialRanges.add(found->start, found->end);
    }
    initialRanges.finish();
    List finals;
    std::ranges::copy_if(names, std::back_inserter(finals), [&](const Found* found) {
        return isFinal(*found->term) && !initialRanges.coversStrictly(found->start, found->end);
    });
    if (const Found* const found = headFinal(finals)) return *found;

    List openers;
    for (const Found* found : initials) {
        if (found->term->homograph ? opensComplement(*found) : headsInitially(*found)) openers.push_back(found);
    }
    std::ranges::copy_if(finals, std::back_inserter(openers),
                         [&](const Found* found) { return opensComplement(*found); });
    const Found* const first = earliest(openers);
    return first == nullptr ? std::nullopt : std::optional(*first);
}

// The names, without those that only say what another one is about ("plan de test").
DocumentKindGrammar::List DocumentKindGrammar::headCandidates() {
    if (complements_.empty()) return names_;
    List names;
    std::ranges::copy_if(names_, std::back_inserter(names),
                         [&](const Found* found) { return !found->term->headInitial() || !isComplement(*found); });
    return names;
}

// The head of a phrase that ends with it; null when the last name is none.
const Found* DocumentKindGrammar::headFinal(const List& candidates) const {
    const auto preposition = std::ranges::find_if(prepositions_, [](const Found* found) { return found->start > 0; });
    const Found* last = nullptr;
    if (preposition == prepositions_.end()) {
        last = latest(candidates);
    } else {
        List before;
        std::ranges::copy_if(candidates, std::back_inserter(before),
                             [&](const Found* found) { return found->end <= (*preposition)->start; });
        last = latest(before);
    }
    if (last == nullptr) return nullptr;
    const std::u32string_view text = segment_.text;
    if (last->start == 0 && DocumentKindRules::isLabel(text.substr(0, last->end))) return last;
    return endsPhrase(*last) ? last : nullptr;
}

// Whether nothing stands behind the match up to a preposition or the end but what may follow a head.
bool DocumentKindGrammar::endsPhrase(const Found& behind) const {
    const std::u32string_view text = segment_.text;
    for (std::size_t start = behind.end; start < text.size();) {
        const auto position = static_cast<std::uint32_t>(start);
        if (std::ranges::binary_search(prepositionStarts_, position)) return true;
        const std::size_t end = std::min(text.find(U' ', start), text.size());
        if (!mayFollowHead(text.substr(start, end - start), position)) return false;
        start = end + 1;
    }
    return true;
}

bool DocumentKindGrammar::mayFollowHead(std::u32string_view token, std::uint32_t start) const {
    if (token.empty() || (token.size() == 1 && token[0] < 0x80)) return true;
    const auto end = start + static_cast<std::uint32_t>(token.size());
    return KoreanParticles::contains(token) || genericRanges_.covers(start, end) || DocumentKindRules::isTail(token);
}

// Whether the match may be the head that opens a title of the language.
bool DocumentKindGrammar::headsInitially(const Found& found, DocumentKindLanguage language) {
    if (language == DocumentKindLanguage::mn) return false;
    if (!headLeadsSegment(language)) return firstComplementEnd_[static_cast<std::size_t>(language)] > found.start;
    const std::u32string_view text = segment_.text;
    const bool beginsToken = found.start == 0 || text[found.start - 1] == U' ';
    return beginsToken && found.start <= leadEnd(language);
}

bool DocumentKindGrammar::headsInitially(const Found& found) {
    return std::ranges::any_of(allCases<DocumentKindLanguage>(), [&](DocumentKindLanguage language) {
        return found.term->languages.contains(language) && headsInitially(found, language);
    });
}

// Where the first token stands that is neither an article of the language nor a single scalar.
std::uint32_t DocumentKindGrammar::leadEnd(DocumentKindLanguage language) {
    auto& known = leadEnds_[static_cast<std::size_t>(language)];
    if (known) return *known;
    const std::u32string_view text = segment_.text;
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end = std::min(text.find(U' ', start), text.size());
        if (end - start != 1 && !DocumentKindRules::isArticle(text.substr(start, end - start), language)) break;
        start = end + 1;
    }
    known = static_cast<std::uint32_t>(start);
    return *known;
}

// Whether a complement word of one of its languages stands before it, perhaps with articles in between.
bool DocumentKindGrammar::isComplement(const Found& found) const {
    const std::u32string_view text = segment_.text;
    const DocumentKindLanguageSet languages = found.term->languages;
    if (complementEndsAt(found.start, languages)) return true;
    std::size_t blank = found.start;
    while (blank > 0 && text[blank - 1] == U' ') {
        --blank;
        if (complementEndsAt(static_cast<std::uint32_t>(blank), languages)) return true;
        const std::size_t before = text.rfind(U' ', blank - 1);
        const std::size_t start = before == text.npos ? 0 : before + 1;
        const std::u32string_view token = text.substr(start, blank - start);
        const bool isArticle =
            std::ranges::any_of(allCases<DocumentKindLanguage>(), [&](DocumentKindLanguage language) {
                return languages.contains(language) && DocumentKindRules::isArticle(token, language);
            });
        if (!isArticle) return false;
        blank = start;
    }
    return false;
}

bool DocumentKindGrammar::complementEndsAt(std::uint32_t position, DocumentKindLanguageSet languages) const {
    const auto first = std::ranges::lower_bound(complements_, position, {}, &Found::end);
    const auto last = std::ranges::upper_bound(complements_, position, {}, &Found::end);
    return std::any_of(first, last, [&](const Found* complement) {
        return complement->start > 0 && complement->term->languages.intersects(languages);
    });
}

// Whether a complement word of a language in which the match may open the title follows it directly.
bool DocumentKindGrammar::opensComplement(const Found& found) {
    for (auto next = std::ranges::lower_bound(complementsByStart_, found.end, {}, &Found::start);
         next != complementsByStart_.end() && (*next)->start <= found.end + 1; ++next) {
        for (const DocumentKindLanguage language : allCases<DocumentKindLanguage>()) {
            if ((*next)->term->languages.contains(language) && found.term->languages.contains(language) &&
                headsInitially(found, language)) {
                return true;
            }
        }
    }
    return false;
}

std::optional<DocumentKindGrammar::Meaning> DocumentKindGrammar::refinedGeneric() const {
    const Found* const generic = latest(generics_);
    if (generic == nullptr || !endsPhrase(*generic)) return std::nullopt;
    List before;
    List behind;
    for (const Found* cue : cues_) {
        const bool isBefore = cue->end <= generic->start;
        if (!isBefore && cue->start < generic->end) continue;
        if (refinedKinds(*cue->term, *generic->term).empty()) continue;
        (isBefore ? before : behind).push_back(cue);
    }
    const Found* const cue = before.empty() ? earliest(behind) : latest(before);
    if (cue == nullptr) return std::nullopt;
    std::vector<DocumentKind> kinds;
    if (cue->term->kinds.front() == DocumentKind::other) kinds.push_back(DocumentKind::other);
    std::ranges::copy(refinedKinds(*cue->term, *generic->term), std::back_inserter(kinds));
    return Meaning{std::move(kinds), cue->pattern};
}

std::optional<Found> DocumentKindGrammar::corroborated() {
    std::uint64_t topics = 0;
    for (const Found* cue : cues_) {
        topics |= mask(cue->term->kinds);
    }
    if (topics == 0 || weak_.empty()) return std::nullopt;
    List finals;
    List initials;
    for (const Found* found : weak_) {
        if ((mask(found->term->kinds) & topics) == 0) continue;
        if (isFinal(*found->term)) {
            finals.push_back(found);
        } else if (headsInitially(*found)) {
            initials.push_back(found);
        }
    }
    const Found* const last = latest(finals);
    if (last != nullptr && endsPhrase(*last)) return *last;
    const Found* const first = earliest(initials);
    return first == nullptr ? std::nullopt : std::optional(*first);
}

const Found* DocumentKindGrammar::latest(std::span<const Found* const> list) {
    const auto rank = [](const Found* found) { return std::tuple(found->end, found->length(), ~found->pattern); };
    const auto last = std::ranges::max_element(list, {}, rank);
    return last == list.end() ? nullptr : *last;
}

}  // namespace vellark
