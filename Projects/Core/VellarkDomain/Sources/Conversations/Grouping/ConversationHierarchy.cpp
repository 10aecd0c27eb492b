#include <VellarkDomain/Conversations/Grouping/ConversationHierarchy.hpp>

#include <algorithm>
#include <array>

namespace vellark {

namespace {

using Task = ConversationTask;
using Column = ConversationHierarchy::Column;
using Row = Column::Row;
using Views = std::unordered_set<std::string_view>;

struct Cut {
    bool expanded;
    std::int64_t limit;

    [[nodiscard]] bool showsAll(std::size_t count) const {
        if (expanded) return true;
        return limit < 1 ? count < 2 : count <= static_cast<std::uint64_t>(limit);
    }

    [[nodiscard]] std::size_t kept() const { return limit > 1 ? static_cast<std::size_t>(limit - 1) : 1; }
};

// The first rows; the selection's row takes the last one's place when it is not among them.
Column shown(std::vector<Row> candidates, const Cut& cut, const Views& onPath) {
    if (cut.showsAll(candidates.size())) return {std::move(candidates), 0};
    const std::size_t kept = cut.kept();
    const auto behind = candidates.begin() + static_cast<std::ptrdiff_t>(kept);
    const auto selected =
        std::find_if(behind, candidates.end(), [&](const Row& row) { return onPath.contains(row.id); });
    if (selected != candidates.end()) candidates[kept - 1] = std::move(*selected);
    const std::size_t hidden = candidates.size() - kept;
    candidates.resize(kept);
    return {std::move(candidates), hidden};
}

}  // namespace

ConversationHierarchy::ConversationHierarchy(std::span<const Task> tasks) {
    for (const Task& task : tasks)
        known.insert(task.id);
    for (const Task& task : tasks) {
        if (task.parentTaskID && *task.parentTaskID != task.id && known.contains(*task.parentTaskID)) {
            parents.insert_or_assign(task.id, *task.parentTaskID);
            children[*task.parentTaskID].push_back(task.id);
        } else {
            roots.push_back(task.id);
        }
    }
    std::vector<std::string_view> stack(roots.rbegin(), roots.rend());
    Views visited;
    while (!stack.empty()) {
        const std::string_view id = stack.back();
        stack.pop_back();
        if (!visited.insert(id).second) continue;
        order.emplace_back(id);
        if (const auto below = children.find(id); below != children.end())
            stack.insert(stack.end(), below->second.rbegin(), below->second.rend());
    }
}

std::optional<std::string> ConversationHierarchy::parent(std::string_view id) const {
    const auto found = parents.find(id);
    return found == parents.end() ? std::nullopt : std::optional(found->second);
}

std::vector<std::string> ConversationHierarchy::path(std::optional<std::string_view> id) const {
    std::vector<std::string> result;
    if (!id || !known.contains(*id)) return result;
    Views seen;
    for (std::string_view current = *id; seen.insert(current).second;) {
        result.emplace_back(current);
        const auto above = parents.find(current);
        if (above == parents.end()) break;
        current = above->second;
    }
    std::ranges::reverse(result);
    return result;
}

std::vector<Column> ConversationHierarchy::layout(std::optional<std::string_view> selected, bool expanded,
                                                  std::int64_t limit) const {
    const std::vector<std::string> selection = path(selected);
    const Views onPath(selection.begin(), selection.end());
    std::vector<Row> candidates;
    for (const std::string& root : roots)
        candidates.push_back({root, std::nullopt});
    std::vector<Column> columns;
    Views opened;  // a task that stands twice, under an identifier that is not unique, shows its children once
    while (!candidates.empty()) {
        columns.push_back(shown(std::move(candidates), {expanded, limit}, onPath));
        candidates.clear();
        const auto& rows = columns.back().rows;
        for (std::size_t row = 0; row < rows.size(); ++row) {
            const auto below = children.find(rows[row].id);
            if (below == children.end() || !opened.insert(below->first).second) continue;
            for (const std::string& id : below->second)
                candidates.push_back({id, row});
        }
    }
    return columns;
}

ConversationHierarchy::Tally ConversationHierarchy::tally(std::span<const Task> tasks, Date now) {
    constexpr auto statuses = allCases<Task::Status>();
    std::array<std::size_t, statuses.size()> counts{};
    for (const Task& task : tasks)
        ++counts[static_cast<std::size_t>(task.status(now))];
    Tally result;
    for (const Task::Status status : statuses) {
        if (const std::size_t count = counts[static_cast<std::size_t>(status)]; count > 0)
            result.emplace_back(status, count);
    }
    return result;
}

}  // namespace vellark
