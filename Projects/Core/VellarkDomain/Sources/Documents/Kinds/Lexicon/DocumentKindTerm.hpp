#pragma once

#include <VellarkDomain/Documents/Kinds/DocumentKind.hpp>
#include <VellarkDomain/Documents/Kinds/DocumentKindLanguage.hpp>

#include <vector>

namespace vellark {

/// What one pattern of the lexicon means in one role.
struct DocumentKindTerm {
    enum class Role {
        name,         ///< names a kind of document, and can be the head of a title
        weak,         ///< a name only beside a cue of the same kind
        generic,      ///< a document noun without a topic, which a cue refines
        cue,          ///< a topic that points at a kind without naming the document
        marker,       ///< a phrase that shows up inside documents of a kind
        exclusion,    ///< hides every match that lies within it
        preposition,  ///< ends the head phrase of a title
        complement,   ///< a word behind which a noun is no head
    };

    Role role{};
    std::vector<DocumentKind> kinds = {};    ///< the preferred one first; empty for the last three roles
    DocumentKindLanguageSet languages = {};  ///< all that have the pattern; empty for one of the base vocabulary alone
    bool base = false;                       ///< the pattern stands in the base vocabulary
    bool homograph = false;                  ///< it does not, and reads as an English word

    /// Whether a language has it whose titles do not simply end with their head.
    [[nodiscard]] bool headInitial() const { return !languages.without(DocumentKindLanguage::mn).isEmpty(); }

    bool operator==(const DocumentKindTerm&) const = default;
};

}  // namespace vellark
