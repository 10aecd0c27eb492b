#pragma once

#include <VellarkDomain/Conversations/Tasks/ConversationRole.hpp>
#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindEvidence.hpp>
#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindGuess.hpp>
#include <VellarkDomain/Documents/Kinds/DocumentKind.hpp>
#include <VellarkDomain/Documents/Library/DocumentRecord.hpp>
#include <VellarkFoundation/Records/Enumeration.hpp>

#include <array>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace vellark {

/// Who told a document's kind.
enum class DocumentKindSource { user, structure, subagent, ai, keywords };

template <>
inline constexpr auto caseTable<DocumentKindSource> = std::to_array<CaseName<DocumentKindSource>>({
    {DocumentKindSource::user, "user"},
    {DocumentKindSource::structure, "structure"},
    {DocumentKindSource::subagent, "subagent"},
    {DocumentKindSource::ai, "ai"},
    {DocumentKindSource::keywords, "keywords"},
});

struct DocumentKindDecision {
    DocumentKind kind{};
    DocumentKindSource source{};

    bool operator==(const DocumentKindDecision&) const = default;
};

/// Settles a document's kind among those who can tell it. A revision that is a null pointer stands for none.
namespace DocumentKindResolver {

/// What each of them says; empty where one says nothing.
struct Voices {
    std::optional<DocumentKind> user = {};  ///< `other`: the user wants no kind
    std::optional<DocumentKind> structure = {};
    std::optional<ConversationRole> role = {};  ///< of the subagent that wrote the document
    std::optional<DocumentKind> ai = {};        ///< `other` and `conversation` are no answer
    std::optional<DocumentKindGuess> keywords = {};
    std::set<DocumentKindGroup> purposes = {};  ///< what the library is mostly used for
};

/// The user comes first, then structure, then what the document calls itself, then a role that decides, then the model,
/// the keywords' hints, and last a role's fallback. A model or a hint that names a kind of the role's own group is
/// taken before the role's: it knows more of the document.
[[nodiscard]] std::optional<DocumentKindDecision> resolve(const Voices& voices);

/// Whether the document can have a kind: prose, office files, plans, and files of unknown type can.
[[nodiscard]] bool applies(const DocumentRecord& to, const DocumentRevision* revision);

/// Whether files of an extension, without its point, can have a kind.
[[nodiscard]] bool appliesToExtension(std::string_view extension);

/// Whether the content is text from which the kind can be read.
[[nodiscard]] bool readsContent(const DocumentRecord& of, const DocumentRevision* revision);

/// The kind that a document has by what it is: a kept conversation, or a plan.
[[nodiscard]] std::optional<DocumentKind> structure(const DocumentRecord& of, const DocumentRevision* revision);

/// The name of the subagent that wrote the first revision.
[[nodiscard]] std::optional<std::string> creatorSubagent(const DocumentRecord& of);

/// Its role.
[[nodiscard]] std::optional<ConversationRole> creatorRole(const DocumentRecord& of);

/// Title, path and project root, for the classifier.
[[nodiscard]] DocumentKindEvidence evidence(const DocumentRecord& of);

}  // namespace DocumentKindResolver

}  // namespace vellark
