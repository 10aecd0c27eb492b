#pragma once

#include <VellarkDomain/Conversations/Tasks/ConversationTask.hpp>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace vellark {

/// The tasks of one conversation as a tree. Tasks on a loop of parents, which no root leads to, are known but stand
/// nowhere in the order and in the layout. Every operation costs time linear in what it gives, at any depth.
class ConversationHierarchy {
public:
    struct TextHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
    };
    template <class Value>
    using Table = std::unordered_map<std::string, Value, TextHash, std::equal_to<>>;

    /// One column of the layout.
    struct Column {
        struct Row {
            std::string id;
            std::optional<std::size_t> parentRow;  ///< in the column to the left

            bool operator==(const Row&) const = default;
        };

        std::vector<Row> rows;
        std::size_t hidden = 0;  ///< rows left out

        bool operator==(const Column&) const = default;
    };

    explicit ConversationHierarchy(std::span<const ConversationTask> tasks);

    std::vector<std::string> order;                                    ///< task identifiers, depth first
    Table<std::string> parents;                                        ///< by task
    Table<std::vector<std::string>> children;                          ///< by task, in the order of the tasks
    std::vector<std::string> roots;                                    ///< tasks without a known parent
    std::unordered_set<std::string, TextHash, std::equal_to<>> known;  ///< all task identifiers

    [[nodiscard]] std::optional<std::string> parent(std::string_view id) const;

    /// From the topmost ancestor down to the task; empty for a task that is absent or unknown.
    [[nodiscard]] std::vector<std::string> path(std::optional<std::string_view> id) const;

    /// The columns of the tree, from the roots to the right, each holding the children of the rows that its left
    /// neighbour shows. A column of more than `limit` tasks shows one row fewer than that, at least one, to leave room
    /// for the note on the others, unless `expanded`; with a limit below 1 it shows one. A task on the path to the
    /// selected one takes the last row's place before it is hidden.
    [[nodiscard]] std::vector<Column> layout(std::optional<std::string_view> selected, bool expanded,
                                             std::int64_t limit) const;

    using Tally = std::vector<std::pair<ConversationTask::Status, std::size_t>>;

    /// How many tasks stand how at the moment, in the order of the statuses, without those that no task has.
    [[nodiscard]] static Tally tally(std::span<const ConversationTask> tasks, Date now);
};

}  // namespace vellark
