#pragma once

#include <VellarkDomain/Documents/Kinds/DocumentKind.hpp>

#include <optional>
#include <set>
#include <vector>

namespace vellark {

/// What the classifier makes of a document.
struct DocumentKindGuess {
    /// Where the kind was found, from the surest place to the least sure.
    enum class Level { fileName, name, folder, declared, heading, cue, weakCue, body, generic };

    std::vector<DocumentKind> candidates;  ///< the best first
    Level level{};
    bool decided = false;  ///< the first candidate is sure

    /// Whether the kind was named somewhere, and not only hinted at.
    [[nodiscard]] bool isNamed() const { return level < Level::cue; }

    /// Whether a look at the document's content could still better it.
    [[nodiscard]] bool wantsContent() const { return level > Level::folder; }

    /// The first candidate; of an undecided guess the first of the groups, if one is of them. Nothing for `other`.
    [[nodiscard]] std::optional<DocumentKind> kind(const std::set<DocumentKindGroup>& preferring) const;

    bool operator==(const DocumentKindGuess&) const = default;
};

template <>
inline constexpr auto caseTable<DocumentKindGuess::Level> = std::to_array<CaseName<DocumentKindGuess::Level>>({
    {DocumentKindGuess::Level::fileName, "fileName"},
    {DocumentKindGuess::Level::name, "name"},
    {DocumentKindGuess::Level::folder, "folder"},
    {DocumentKindGuess::Level::declared, "declared"},
    {DocumentKindGuess::Level::heading, "heading"},
    {DocumentKindGuess::Level::cue, "cue"},
    {DocumentKindGuess::Level::weakCue, "weakCue"},
    {DocumentKindGuess::Level::body, "body"},
    {DocumentKindGuess::Level::generic, "generic"},
});

}  // namespace vellark
