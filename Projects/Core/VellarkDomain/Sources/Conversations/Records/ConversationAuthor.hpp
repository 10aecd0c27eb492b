#pragma once

#include <VellarkFoundation/Records/Enumeration.hpp>

#include <array>
#include <string>
#include <utility>

namespace vellark {

/// Who speaks in a conversation.
struct ConversationAuthor {
    enum class Role { user, main, subagent };

    Role role = Role::user;
    std::string name;  ///< display name of the subagent; empty for the user and the main agent

    static ConversationAuthor user() { return {Role::user, {}}; }
    static ConversationAuthor main() { return {Role::main, {}}; }
    static ConversationAuthor subagent(std::string name) { return {Role::subagent, std::move(name)}; }

    bool operator==(const ConversationAuthor&) const = default;
};

template <>
inline constexpr auto caseTable<ConversationAuthor::Role> = std::to_array<CaseName<ConversationAuthor::Role>>({
    {ConversationAuthor::Role::user, "user"},
    {ConversationAuthor::Role::main, "main"},
    {ConversationAuthor::Role::subagent, "subagent"},
});

template <class Fields>
void describe(Fields& fields, ConversationAuthor& author) {
    fields.required("role", author.role);
    fields.required("name", author.name);
}

}  // namespace vellark
