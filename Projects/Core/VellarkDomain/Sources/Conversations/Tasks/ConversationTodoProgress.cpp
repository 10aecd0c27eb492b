#include <VellarkDomain/Conversations/Tasks/ConversationTodoProgress.hpp>

#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

namespace vellark {

namespace {

using Status = ConversationTodo::Status;
using Update = ConversationTodoUpdate;

// A list under replay. Identifiers are unique in it; a removed item keeps its place, empty, so that nothing moves.
class TodoList {
public:
    void apply(const Update::Snapshot& snapshot) {
        clear();
        for (const ConversationTodo& todo : snapshot.todos)
            append(std::to_string(items_.size() + 1), todo.text, todo.status);
        created_ = items_.size();
    }

    void apply(const Update::Created& created) {
        ++created_;
        std::string id = created.id ? *created.id : std::to_string(created_);
        if (places_.contains(id)) clear();
        append(std::move(id), created.text, Status::pending);
    }

    void apply(const Update::Updated& updated) {
        const auto found = places_.find(updated.id);
        if (found == places_.end()) return;
        items_[found->second].status = updated.status;
        if (!updated.status) places_.erase(found);
    }

    [[nodiscard]] std::optional<ConversationTodoProgress> progress() const {
        if (places_.empty()) return std::nullopt;
        ConversationTodoProgress result{.total = static_cast<std::int64_t>(places_.size())};
        for (const Item& item : items_) {
            if (item.status == Status::completed) ++result.completed;
            if (item.status == Status::inProgress && !result.current) result.current = std::string(item.text);
        }
        return result;
    }

private:
    struct Item {
        std::string_view text;
        std::optional<Status> status;  // nothing for a removed item
    };

    void append(std::string id, std::string_view text, Status status) {
        places_.emplace(std::move(id), items_.size());
        items_.push_back({text, status});
    }

    void clear() {
        items_.clear();
        places_.clear();
    }

    std::vector<Item> items_;
    std::unordered_map<std::string, std::size_t> places_;  // of the items that are left, by identifier
    std::size_t created_ = 0;
};

}  // namespace

double ConversationTodoProgress::fraction() const {
    return total > 0 ? static_cast<double>(completed) / static_cast<double>(total) : 0;
}

std::optional<ConversationTodoProgress> ConversationTodoProgress::latest(std::span<const ConversationEntry> entries) {
    TodoList list;
    for (const ConversationEntry& entry : entries) {
        for (const Update& update : entry.todos)
            std::visit([&list](const auto& change) { list.apply(change); }, update.change);
    }
    return list.progress();
}

}  // namespace vellark
