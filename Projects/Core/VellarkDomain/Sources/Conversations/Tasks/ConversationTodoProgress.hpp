#pragma once

#include <VellarkDomain/Conversations/Records/ConversationEntry.hpp>

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace vellark {

/// How far an agent's to-do list is done.
struct ConversationTodoProgress {
    std::int64_t completed = 0;          ///< items
    std::int64_t total = 0;              ///< items
    std::optional<std::string> current;  ///< text of the first item in progress

    /// The share of completed items, 0 to 1; 0 without items.
    [[nodiscard]] double fraction() const;

    /// The list after all to-do updates of the entries, replayed in their order. Nothing when no item is left.
    ///
    /// An update of an unknown item changes nothing. An item made under an identifier that the list already holds
    /// begins a new list: agents count from one again. The cost is linear in the updates.
    [[nodiscard]] static std::optional<ConversationTodoProgress> latest(std::span<const ConversationEntry> entries);

    bool operator==(const ConversationTodoProgress&) const = default;
};

}  // namespace vellark
