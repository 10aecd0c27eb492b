#include <VellarkDomain/Documents/Kinds/Lexicon/DocumentKindLexicon.hpp>
#include <VellarkDomain/Documents/Kinds/Matcher/ScalarClasses.hpp>
#include <VellarkDomain/Documents/Kinds/Rules/DocumentKindRules.hpp>
#include <VellarkDomain/Text/RangeCover.hpp>

#include <algorithm>
#include <functional>
#include <unordered_map>

namespace vellark {

namespace {

using Role = DocumentKindTerm::Role;
using Words = std::span<const std::string_view>;
using Kinds = std::span<const DocumentKind>;

// A blank between two words of Korean, Japanese or Chinese, which are written side by side as well.
bool isJoiningBlank(std::u32string_view pattern, std::size_t index) {
    return pattern[index] == U' ' && index > 0 && index + 1 < pattern.size() &&
           ScalarClasses::isJoining(pattern[index - 1]) && ScalarClasses::isJoining(pattern[index + 1]);
}

// Nothing where the pattern has no such blank.
std::optional<std::u32string> withoutJoiningBlanks(std::u32string_view pattern) {
    std::size_t index = pattern.find(U' ');
    while (index < pattern.size() && !isJoiningBlank(pattern, index)) {
        index = pattern.find(U' ', index + 1);
    }
    if (index >= pattern.size()) return std::nullopt;
    std::u32string result(pattern.substr(0, index));
    result.reserve(pattern.size());
    for (; index < pattern.size(); ++index) {
        if (!isJoiningBlank(pattern, index)) result += pattern[index];
    }
    return result;
}

std::vector<std::uint32_t> indicesOfEither(const std::vector<bool>& left, const std::vector<bool>& right) {
    std::vector<std::uint32_t> indices;
    for (std::uint32_t index = 0; index < left.size(); ++index) {
        if (left[index] || right[index]) indices.push_back(index);
    }
    return indices;
}

template <class Value>
std::vector<Value> picked(const std::vector<Value>& values, std::span<const std::uint32_t> indices) {
    std::vector<Value> result;
    result.reserve(indices.size());
    for (const std::uint32_t index : indices) {
        result.push_back(values[index]);
    }
    return result;
}

}  // namespace

/// The lexicon while it grows.
struct DocumentKindLexicon::Built {
    struct Origin {
        bool shared = false;  // several meanings are meant
        std::optional<DocumentKindLanguage> language = std::nullopt;
    };

    // A form in ASCII letters, and what it would mean.
    struct PlainForm {
        std::string form;
        std::u32string pattern;
        Role role{};
        DocumentKind kind{};
        DocumentKindLanguage language{};
    };

    std::vector<std::u32string> patterns;
    std::vector<std::vector<DocumentKindTerm>> terms;
    std::vector<DocumentKindLanguageSet> languages;
    std::vector<bool> base;
    std::vector<bool> compound;
    std::vector<bool> suffixHead;
    std::vector<std::string> duplicates;

    static constexpr std::size_t expected = 1U << 14;  // patterns; a power of two

    // The order of what follows fixes the indices of the patterns, by which equal claims are settled later.
    explicit Built(const DocumentKindVocabulary& vocabulary) {
        patterns.reserve(expected);
        terms.reserve(expected);
        for (const auto& row : vocabulary.shared) {
            addLists(row, row.kinds, {.shared = true});
        }
        for (const auto& row : vocabulary.table) {
            addLists(row, Kinds(&row.kind, 1), {});
        }
        for (const auto& row : vocabulary.weak) {
            add(row.words, Role::weak, Kinds(&row.kind, 1), {});
        }
        for (const auto& row : vocabulary.markers) {
            add(row.words, Role::marker, Kinds(&row.kind, 1), {});
        }
        add(vocabulary.blocked, Role::exclusion, {}, {});
        add(vocabulary.prepositions, Role::preposition, {}, {});
        for (const auto& language : vocabulary.languages) {
            addLanguage(language);
        }
        addPlainForms(vocabulary);
        finish();
    }

private:
    void addLists(const auto& row, Kinds kinds, Origin origin) {
        add(row.names, Role::name, kinds, origin);
        add(row.generics, Role::generic, kinds, origin);
        add(row.cues, Role::cue, kinds, origin);
        add(row.exclusions, Role::exclusion, kinds, origin);
    }

    void addLanguage(const DocumentKindVocabulary::Language& language) {
        const Origin origin = {.language = language.language};
        for (const auto& row : language.words) {
            add(row.nouns, Role::name, Kinds(&row.kind, 1), origin);
            add(row.weak, Role::weak, Kinds(&row.kind, 1), origin);
        }
        add(language.complements, Role::complement, {}, origin);
        add(language.exclusions, Role::exclusion, {}, origin);
    }

    void add(Words words, Role role, Kinds kinds, Origin origin) {
        for (const std::string_view word : words) {
            DocumentKindMatcher::normalize(word, normalized_);
            if (normalized_.empty()) continue;
            addTerm(word, indexOf(normalized_), role, kinds, origin);
            if (const auto joined = withoutJoiningBlanks(normalized_)) {
                addTerm(word, indexOf(*joined), role, kinds, origin);
            }
        }
    }

    void addTerm(std::string_view word, std::uint32_t index, Role role, Kinds kinds, Origin origin) {
        if (!origin.language) {
            base[index] = true;
        } else {
            languages[index].insert(*origin.language);
            const bool endsWords = role == Role::name || role == Role::weak;
            if (endsWords && *origin.language == DocumentKindLanguage::de) compound[index] = true;
        }
        auto& list = terms[index];
        const auto found = std::ranges::find(list, role, &DocumentKindTerm::role);
        if (found == list.end()) {
            list.push_back({.role = role, .kinds = {kinds.begin(), kinds.end()}});
            return;
        }
        if (!origin.shared && role != Role::marker && !std::ranges::equal(found->kinds, kinds)) {
            duplicates.emplace_back(word);
        }
        for (const DocumentKind kind : kinds) {
            if (std::ranges::find(found->kinds, kind) == found->kinds.end()) found->kinds.push_back(kind);
        }
    }

    std::uint32_t indexOf(std::u32string_view pattern) {
        if (const std::uint32_t found = slots_[slotOf(pattern)]; found != freeSlot) return found;
        const auto index = static_cast<std::uint32_t>(patterns.size());
        patterns.emplace_back(pattern);
        terms.emplace_back();
        languages.emplace_back();
        base.push_back(false);
        compound.push_back(false);
        if (2 * patterns.size() > slots_.size()) {
            slots_.assign(2 * slots_.size(), freeSlot);
            for (std::uint32_t one = 0; one < index; ++one) {
                slots_[slotOf(patterns[one])] = one;
            }
        }
        slots_[slotOf(pattern)] = index;
        return index;
    }

    // Where the index of a pattern stands, or would.
    [[nodiscard]] std::size_t slotOf(std::u32string_view pattern) const {
        const std::size_t mask = slots_.size() - 1;
        std::size_t slot = std::hash<std::u32string_view>()(pattern) & mask;
        while (slots_[slot] != freeSlot && patterns[slots_[slot]] != pattern) {
            slot = (slot + 1) & mask;
        }
        return slot;
    }

    // A form in plain letters joins the word's own term only while it can mean nothing else.
    void addPlainForms(const DocumentKindVocabulary& vocabulary) {
        const std::vector<PlainForm> forms = plainForms(vocabulary);
        std::unordered_map<std::u32string_view, std::pair<const PlainForm*, bool>> claims;  // the first; whether alone
        for (const PlainForm& form : forms) {
            const auto [place, isNew] = claims.try_emplace(form.pattern, &form, true);
            const PlainForm& first = *place->second.first;
            if (!isNew && (form.role != first.role || form.kind != first.kind)) place->second.second = false;
        }
        for (const PlainForm& form : forms) {
            if (!claims.at(form.pattern).second || !meansOnly(form)) continue;
            const std::string_view word = form.form;
            add(Words(&word, 1), form.role, Kinds(&form.kind, 1), {.language = form.language});
        }
    }

    static std::vector<PlainForm> plainForms(const DocumentKindVocabulary& vocabulary) {
        std::vector<PlainForm> forms;
        for (const auto& language : vocabulary.languages) {
            for (const auto& row : language.words) {
                const auto collect = [&](Words words, Role role) {
                    for (const std::string_view word : words) {
                        auto form = asciiForm(word, language.language);
                        if (!form) continue;
                        auto pattern = DocumentKindMatcher::normalize(*form);
                        forms.push_back({std::move(*form), std::move(pattern), role, row.kind, language.language});
                    }
                };
                collect(row.nouns, Role::name);
                collect(row.weak, Role::weak);
            }
        }
        return forms;
    }

    [[nodiscard]] bool meansOnly(const PlainForm& form) const {
        const std::uint32_t found = slots_[slotOf(form.pattern)];
        if (found == freeSlot) return true;
        return std::ranges::all_of(terms[found], [&](const DocumentKindTerm& term) {
            return term.role == form.role && term.kinds.size() == 1 && term.kinds.front() == form.kind;
        });
    }

    void finish() {
        for (std::size_t index = 0; index < patterns.size(); ++index) {
            suffixHead.push_back(DocumentKindRules::isSuffixHead(patterns[index]));
            const bool isHomograph = !base[index] && DocumentKindRules::isEnglishHomograph(patterns[index]);
            for (DocumentKindTerm& term : terms[index]) {
                term.languages = languages[index];
                term.base = base[index];
                term.homograph = isHomograph;
            }
        }
    }

    static constexpr std::uint32_t freeSlot = 0xFFFF'FFFF;

    std::u32string normalized_;
    std::vector<std::uint32_t> slots_ = std::vector<std::uint32_t>(2 * expected, freeSlot);  // open addressing
};

DocumentKindLexicon::DocumentKindLexicon() : DocumentKindLexicon(DocumentKindRules::vocabulary()) {}

DocumentKindLexicon::DocumentKindLexicon(const DocumentKindVocabulary& vocabulary)
    : DocumentKindLexicon(Built(vocabulary)) {}

DocumentKindLexicon::DocumentKindLexicon(Built&& built)
    : terms_(std::move(built.terms)),
      isExclusion_(patternsWith(Role::exclusion)),
      isMarker_(patternsWith(Role::marker)),
      duplicates_(std::move(built.duplicates)),
      matcher_({.patterns = built.patterns,
                .suffixHead = built.suffixHead,
                .plural = built.base,
                .compound = built.compound}),
      textPatterns_(indicesOfEither(isExclusion_, isMarker_)),
      textMatcher_({.patterns = picked(built.patterns, textPatterns_),
                    .suffixHead = picked(built.suffixHead, textPatterns_),
                    .plural = picked(built.base, textPatterns_),
                    .compound = picked(built.compound, textPatterns_)}) {}

std::vector<bool> DocumentKindLexicon::patternsWith(Role role) const {
    std::vector<bool> result;
    result.reserve(terms_.size());
    for (const auto& list : terms_) {
        result.push_back(std::ranges::find(list, role, &DocumentKindTerm::role) != list.end());
    }
    return result;
}

const DocumentKindLexicon& DocumentKindLexicon::shared() {
    static const DocumentKindLexicon lexicon;
    return lexicon;
}

void DocumentKindLexicon::hits(std::u32string_view text, std::vector<DocumentKindMatcher::Hit>& hits) const {
    matcher_.hits(text, hits);
    dropHidden(hits);
}

// Whether a pattern matches does not turn on the other patterns, and only exclusions hide.
void DocumentKindLexicon::markerHits(std::u32string_view text, std::vector<DocumentKindMatcher::Hit>& hits) const {
    textMatcher_.hits(text, hits);
    for (auto& hit : hits) {
        hit.pattern = textPatterns_[hit.pattern];
    }
    dropHidden(hits);
    std::erase_if(hits, [&](const auto& hit) { return !isMarker_[hit.pattern]; });
}

// Drops what lies within an exclusion, and exclusions themselves.
void DocumentKindLexicon::dropHidden(std::vector<DocumentKindMatcher::Hit>& hits) const {
    const auto isBlocker = [&](const DocumentKindMatcher::Hit& hit) { return isExclusion_[hit.pattern]; };
    if (std::ranges::none_of(hits, isBlocker)) return;
    RangeCover blockers;
    for (const auto& hit : hits) {
        if (isBlocker(hit)) blockers.add(hit.start, hit.end);
    }
    blockers.finish();
    std::erase_if(hits, [&](const auto& hit) { return blockers.covers(hit.start, hit.end); });
}

DocumentKindLexicon::Patterns DocumentKindLexicon::patterns() {
    Built built(DocumentKindRules::vocabulary());
    return {.texts = std::move(built.patterns),
            .suffixHead = std::move(built.suffixHead),
            .plural = std::move(built.base),
            .compound = std::move(built.compound)};
}

std::vector<std::u32string> DocumentKindLexicon::variants(std::u32string_view pattern) {
    if (pattern.empty()) return {};
    std::vector<std::u32string> result{std::u32string(pattern)};
    if (auto joined = withoutJoiningBlanks(pattern)) result.push_back(std::move(*joined));
    return result;
}

}  // namespace vellark
