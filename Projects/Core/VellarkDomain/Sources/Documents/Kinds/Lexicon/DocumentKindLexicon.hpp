#pragma once

#include <VellarkDomain/Documents/Kinds/Lexicon/DocumentKindTerm.hpp>
#include <VellarkDomain/Documents/Kinds/Matcher/DocumentKindMatcher.hpp>
#include <VellarkDomain/Documents/Kinds/Rules/DocumentKindVocabulary.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// Every word that can point at a kind, ready for matching. Immutable; building it takes milliseconds.
class DocumentKindLexicon {
public:
    /// The lexicon of `DocumentKindRules`.
    DocumentKindLexicon();

    explicit DocumentKindLexicon(const DocumentKindVocabulary& vocabulary);

    /// The one that the whole process shares, built on first use.
    [[nodiscard]] static const DocumentKindLexicon& shared();

    [[nodiscard]] const DocumentKindMatcher& matcher() const { return matcher_; }

    /// The terms of each pattern of the matcher, at most one for each role.
    [[nodiscard]] const std::vector<std::vector<DocumentKindTerm>>& terms() const { return terms_; }

    /// Words that were added to the same pattern and role with other kinds: for who writes the tables.
    [[nodiscard]] const std::vector<std::string>& duplicates() const { return duplicates_; }

    /// The hits in a normalised text that no exclusion hides, in the matcher's order, in place of what `hits` held.
    void hits(std::u32string_view text, std::vector<DocumentKindMatcher::Hit>& hits) const;

    /// Those of `hits` whose pattern has a marker's term, without the cost of finding the others: what a whole text is
    /// read for.
    void markerHits(std::u32string_view text, std::vector<DocumentKindMatcher::Hit>& hits) const;

    /// The patterns of `DocumentKindRules`' lexicon, by index, with the flags that its matcher is given: for who would
    /// match them in another way.
    struct Patterns {
        std::vector<std::u32string> texts;
        std::vector<bool> suffixHead;
        std::vector<bool> plural;
        std::vector<bool> compound;
    };
    [[nodiscard]] static Patterns patterns();

    /// The pattern, and where it differs the form without the blanks between Korean, Japanese and Chinese words.
    [[nodiscard]] static std::vector<std::u32string> variants(std::u32string_view pattern);

private:
    struct Built;

    explicit DocumentKindLexicon(Built&& built);

    [[nodiscard]] std::vector<bool> patternsWith(DocumentKindTerm::Role role) const;
    void dropHidden(std::vector<DocumentKindMatcher::Hit>& hits) const;

    std::vector<std::vector<DocumentKindTerm>> terms_;
    std::vector<bool> isExclusion_;
    std::vector<bool> isMarker_;
    std::vector<std::string> duplicates_;
    DocumentKindMatcher matcher_;
    std::vector<std::uint32_t> textPatterns_;  // the markers and exclusions, in ascending order
    DocumentKindMatcher textMatcher_;          // over those alone
};

/// How a word of a language is written in plain ASCII letters: German with "ae" for "ä", French, Spanish and Vietnamese
/// without their marks. Nothing when it is ASCII already, has no such form, would read as an English word, or the
/// language is of another script.
[[nodiscard]] std::optional<std::string> asciiForm(std::string_view word, DocumentKindLanguage language);

}  // namespace vellark
