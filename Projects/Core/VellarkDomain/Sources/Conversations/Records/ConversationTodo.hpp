#pragma once

#include <VellarkFoundation/Records/Enumeration.hpp>

#include <array>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace vellark {

/// One item of an agent's to-do list.
struct ConversationTodo {
    enum class Status { pending, inProgress, completed };

    std::string text;
    Status status = Status::pending;

    bool operator==(const ConversationTodo&) const = default;
};

/// The words that stand in the agents' records.
template <>
inline constexpr auto caseTable<ConversationTodo::Status> = std::to_array<CaseName<ConversationTodo::Status>>({
    {ConversationTodo::Status::pending, "pending"},
    {ConversationTodo::Status::inProgress, "in_progress"},
    {ConversationTodo::Status::completed, "completed"},
});

/// A change of an agent's to-do list.
struct ConversationTodoUpdate {
    /// The whole list anew.
    struct Snapshot {
        std::vector<ConversationTodo> todos;

        bool operator==(const Snapshot&) const = default;
    };

    /// One item added.
    struct Created {
        std::optional<std::string> id;
        std::string text;

        bool operator==(const Created&) const = default;
    };

    /// One item changed; without a status it is removed.
    struct Updated {
        std::string id;
        std::optional<ConversationTodo::Status> status;

        bool operator==(const Updated&) const = default;
    };

    std::variant<Snapshot, Created, Updated> change;

    bool operator==(const ConversationTodoUpdate&) const = default;
};

}  // namespace vellark
