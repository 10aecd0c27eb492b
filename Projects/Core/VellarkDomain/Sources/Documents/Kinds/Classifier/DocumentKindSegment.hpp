#pragma once

#include <VellarkDomain/Documents/Kinds/Lexicon/DocumentKindLexicon.hpp>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// A part of a title between colons, brackets and dashes, with the words of the lexicon in it.
struct DocumentKindSegment {
    /// One term of one match. Positions count scalars of `text`.
    struct Found {
        const DocumentKindTerm* term = nullptr;
        std::uint32_t pattern = 0;  ///< its index; of equal claims the lower one wins
        std::uint32_t start = 0;
        std::uint32_t end = 0;

        [[nodiscard]] std::uint32_t length() const { return end - start; }
        bool operator==(const Found&) const = default;
    };

    std::u32string text;       ///< normalised
    std::vector<Found> found;  ///< in the matcher's order, without what an exclusion hides

    /// A whole text as one segment. The lexicon must outlive it.
    DocumentKindSegment(std::string_view text, const DocumentKindLexicon& lexicon);

    /// The segments of a text that hold words of the lexicon, in their order.
    [[nodiscard]] static std::vector<DocumentKindSegment> segments(std::string_view text,
                                                                   const DocumentKindLexicon& lexicon);
};

}  // namespace vellark
