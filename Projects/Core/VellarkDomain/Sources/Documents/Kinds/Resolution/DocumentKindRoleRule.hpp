#pragma once

#include <VellarkDomain/Conversations/Tasks/ConversationRole.hpp>
#include <VellarkDomain/Documents/Kinds/DocumentKind.hpp>

#include <optional>

namespace vellark {

/// What the role of the subagent that wrote a document says of its kind.
struct DocumentKindRoleRule {
    enum class Weight {
        decides,   ///< the kind, unless a model or a cue names another one of the same group
        fallback,  ///< the kind when nothing else tells
    };

    Weight weight{};
    DocumentKind kind{};

    /// Nothing for roles that write documents of every kind.
    [[nodiscard]] static std::optional<DocumentKindRoleRule> forRole(ConversationRole role);

    bool operator==(const DocumentKindRoleRule&) const = default;
};

}  // namespace vellark
