#pragma once

#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindSegment.hpp>
#include <VellarkDomain/Text/RangeCover.hpp>

#include <array>
#include <optional>
#include <span>
#include <vector>

namespace vellark {

/// Which word of a segment says what the document is. Titles of Korean, Japanese, Chinese and English end with their
/// head ("marketing plan"), up to a preposition; those of French, Spanish, Vietnamese and Thai begin with it; German
/// and Russian put complements behind it. The segment must outlive it.
class DocumentKindGrammar {
public:
    using Found = DocumentKindSegment::Found;

    /// What a segment says: kinds, the likeliest first, and the pattern that says it.
    struct Meaning {
        std::vector<DocumentKind> kinds;
        std::uint32_t pattern = 0;
    };

    explicit DocumentKindGrammar(const DocumentKindSegment& segment);

    /// The head noun.
    [[nodiscard]] std::optional<Found> head();

    /// A generic noun at the end ("notes"), made precise by a topic word ("lecture").
    [[nodiscard]] std::optional<Meaning> refinedGeneric() const;

    /// A weak word ("mail") that stands beside a topic word of its own kind.
    [[nodiscard]] std::optional<Found> corroborated();

    /// The one that ends last; of those the longest, then the one that the lexicon has had longest.
    [[nodiscard]] static const Found* latest(std::span<const Found* const> list);

private:
    using List = std::vector<const Found*>;

    void sort(const Found& found);

    [[nodiscard]] List headCandidates();
    [[nodiscard]] const Found* headFinal(const List& candidates) const;
    [[nodiscard]] bool endsPhrase(const Found& behind) const;
    [[nodiscard]] bool mayFollowHead(std::u32string_view token, std::uint32_t start) const;

    [[nodiscard]] bool headsInitially(const Found& found, DocumentKindLanguage language);
    [[nodiscard]] bool headsInitially(const Found& found);
    [[nodiscard]] std::uint32_t leadEnd(DocumentKindLanguage language);
    [[nodiscard]] bool isComplement(const Found& found) const;
    [[nodiscard]] bool complementEndsAt(std::uint32_t position, DocumentKindLanguageSet languages) const;
    [[nodiscard]] bool opensComplement(const Found& found);

    const DocumentKindSegment& segment_;
    List names_;
    List weak_;
    List generics_;
    List cues_;
    List prepositions_;
    List complements_;  // by their ends
    RangeCover genericRanges_;
    std::vector<std::uint32_t> prepositionStarts_;  // ascending
    List complementsByStart_;
    std::array<std::uint32_t, caseTable<DocumentKindLanguage>.size()> firstComplementEnd_{};
    std::array<std::optional<std::uint32_t>, caseTable<DocumentKindLanguage>.size()> leadEnds_;
};

}  // namespace vellark
