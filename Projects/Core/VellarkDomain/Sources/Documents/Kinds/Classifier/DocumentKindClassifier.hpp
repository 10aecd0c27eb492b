#pragma once

#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindEvidence.hpp>
#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindGuess.hpp>
#include <VellarkDomain/Documents/Kinds/Lexicon/DocumentKindLexicon.hpp>

#include <optional>

namespace vellark {

/// Says what kind a document is. The places where that can be seen are asked from the strongest to the weakest, and the
/// first that names a kind decides:
///
///     the file name             "CHANGELOG.md"
///     the title and the stem    "Q3 marketing plan": the head of the phrase
///     the nearest folders       "meeting notes/"
///     front matter              "type: spec"; behind the headings also "tags: [retro]"
///     the first heading
///     a topic in the title      "lecture summary"
///     phrases of the opening    "action items", "attendees", "decisions": three of them
namespace DocumentKindClassifier {

/// Nothing when no place says anything. Never fails; the cost is linear in the evidence.
[[nodiscard]] std::optional<DocumentKindGuess> classify(const DocumentKindEvidence& evidence);

/// The same with another lexicon than the shared one.
[[nodiscard]] std::optional<DocumentKindGuess> classify(const DocumentKindEvidence& evidence,
                                                        const DocumentKindLexicon& lexicon);

}  // namespace DocumentKindClassifier

}  // namespace vellark
