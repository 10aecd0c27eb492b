// Task building beside its plain reading, which searches all runs and all tasks for every entry.

#include "Conversations/Support/RandomConversation.hpp"
#include <VellarkDomain/Conversations/Grouping/ConversationGrouping.hpp>
#include <VellarkDomain/Conversations/Tasks/ConversationTask.hpp>

#include <gtest/gtest.h>

#include <tuple>

namespace vellark {
namespace {

using Entry = ConversationEntry;
using Run = ConversationRun;
using Runs = std::vector<Run>;
using Place = std::optional<std::size_t>;

std::optional<ConversationTodoProgress> replay(const std::vector<Entry>& entries) {
    using Update = ConversationTodoUpdate;
    struct Item {
        std::string id;
        std::string text;
        ConversationTodo::Status status;
    };
    std::vector<Item> items;
    std::size_t counter = 0;
    const auto find = [&items](const std::string& id) {
        return std::find_if(items.begin(), items.end(), [&id](const Item& item) { return item.id == id; });
    };
    for (const Entry& entry : entries) {
        for (const auto& todo : entry.todos) {
            if (const auto* snapshot = std::get_if<Update::Snapshot>(&todo.change)) {
                items.clear();
                counter = 0;
                for (const auto& item : snapshot->todos)
                    items.push_back({std::to_string(++counter), item.text, item.status});
            } else if (const auto* created = std::get_if<Update::Created>(&todo.change)) {
                ++counter;
                const std::string id = created->id.value_or(std::to_string(counter));
                if (find(id) != items.end()) items.clear();
                items.push_back({id, created->text, ConversationTodo::Status::pending});
            } else {
                const auto& updated = std::get<Update::Updated>(todo.change);
                const auto item = find(updated.id);
                if (item == items.end()) continue;
                if (updated.status) {
                    item->status = *updated.status;
                } else {
                    items.erase(item);
                }
            }
        }
    }
    if (items.empty()) return std::nullopt;
    ConversationTodoProgress result;
    for (const Item& item : items) {
        ++result.total;
        if (item.status == ConversationTodo::Status::completed) ++result.completed;
        if (item.status == ConversationTodo::Status::inProgress && !result.current) result.current = item.text;
    }
    return result;
}

class Model {
public:
    explicit Model(const Runs& runs) : runs_(runs) {}

    std::vector<ConversationTask> tasks(const std::vector<Entry>& feed) {
        for (const Entry& entry : feed)
            add(entry);
        for (std::size_t task = 0; task < tasks_.size(); ++task)
            finish(task);
        return tasks_;
    }

private:
    template <class Test>
    Place lastRun(Test test) const {
        for (std::size_t place = runs_.size(); place > 0; --place) {
            if (test(runs_[place - 1])) return place - 1;
        }
        return std::nullopt;
    }

    Place byName(const std::string& name) const {
        return lastRun([&](const Run& run) { return run.name == name; });
    }

    Place byAlias(const std::string& alias) const {
        return lastRun([&](const Run& run) {
            std::vector<std::string> pieces;
            std::string piece;
            for (const char unit : run.threadID + "/") {
                if (unit != '/') {
                    piece += unit;
                } else if (!piece.empty()) {
                    pieces.push_back(std::exchange(piece, ""));
                }
            }
            return run.threadID == alias || (!pieces.empty() && pieces.back() == alias);
        });
    }

    Place byLocation(const Entry& entry) const {
        if (!entry.location) return std::nullopt;
        std::string key = entry.location->path;
        if (entry.location->session) key += "#" + *entry.location->session;
        return lastRun([&](const Run& run) { return run.path == key || run.path + "#" + run.threadID == key; });
    }

    Place taskOfRun(Place run) const {
        for (std::size_t task = 0; run && task < tasks_.size(); ++task) {
            if (runOfTask_[task] == run) return task;
        }
        return std::nullopt;
    }

    Place taskOfName(const std::string& name) const {
        for (std::size_t task = tasks_.size(); task > 0; --task) {
            if (tasks_[task - 1].name == name) return task - 1;
        }
        return std::nullopt;
    }

    Place findRun(const Entry& entry, const std::string& owner) const {
        if (entry.callID) {
            if (const Place run = lastRun([&](const Run& row) { return row.delegationID == entry.callID; })) return run;
        }
        if (const Place run = byLocation(entry); run && runs_[*run].name == owner) return run;
        return byName(owner) ? std::nullopt : byAlias(owner);
    }

    Place findParent(const Entry& entry, Place run) const {
        Place parent;
        if (run && runs_[*run].parentThreadID) {
            parent = taskOfRun(lastRun([&](const Run& row) { return row.threadID == *runs_[*run].parentThreadID; }));
        }
        if (parent || !entry.is<Entry::Delegation>() || entry.author.role != ConversationAuthor::Role::subagent)
            return parent;
        const Place writer = byLocation(entry);
        if (writer && (!run || *writer != *run)) parent = taskOfRun(writer);
        return parent ? parent : taskOfName(entry.author.name);
    }

    void add(const Entry& entry) {
        const auto found = ConversationTask::owner(entry);
        if (!found) return;
        const std::string owner(*found);
        const Place run = findRun(entry, owner);
        const std::string name = run ? runs_[*run].name : owner;
        Place task = taskOfRun(run);
        if (!task && !entry.is<Entry::Delegation>()) {
            task = taskOfName(name);
            if (task && run && runOfTask_[*task]) task.reset();
        }
        if (!task) {
            const Place parent = findParent(entry, run);
            ConversationTask opened{.id = entry.id, .name = name, .title = name, .startedAt = entry.time};
            if (entry.is<Entry::Delegation>()) opened.prompt = entry;
            if (parent) {
                opened.parentTaskID = tasks_[*parent].id;
                opened.depth = tasks_[*parent].depth + 1;
                tasks_[*parent].children.push_back(entry.id);
                tasks_[*parent].thread.push_back(entry);
                tasks_[*parent].thread.back().todos.clear();
            }
            task = tasks_.size();
            tasks_.push_back(opened);
            runOfTask_.push_back(std::nullopt);
            parentOfTask_.push_back(parent);
        }
        if (run && !runOfTask_[*task]) runOfTask_[*task] = run;
        append(entry, target(entry, *task));
    }

    std::size_t target(const Entry& entry, std::size_t task) const {
        const auto* message = std::get_if<Entry::AgentMessage>(&entry.kind);
        if (message == nullptr || entry.author.role != ConversationAuthor::Role::subagent) return task;
        Place child = taskOfName(message->to);
        if (!child) child = taskOfRun(byAlias(message->to));
        return child && parentOfTask_[*child] == task ? *child : task;
    }

    void append(const Entry& entry, std::size_t place) {
        ConversationTask& task = tasks_[place];
        task.thread.push_back(entry);
        if (entry.time && !task.startedAt) task.startedAt = entry.time;
        if (entry.time) task.lastActivity = std::max(task.lastActivity.value_or(*entry.time), *entry.time);
        if (entry.is<Entry::AgentMessage>()) ++task.messages;
        if (entry.is<Entry::Report>()) task.report = entry;
    }

    void finish(std::size_t place) {
        using Outcome = ConversationTask::Outcome;
        ConversationTask& task = tasks_[place];
        const Place named = runOfTask_[place] ? runOfTask_[place] : byName(task.name);
        ConversationTask::TitleSource source{.name = task.name};
        if (named) source.task = runs_[*named].task;
        if (named) task.role = runs_[*named].role;
        if (task.prompt) source.prompt = task.prompt->text;
        task.title = ConversationTask::titleOf(source);
        task.todos = replay(task.thread);
        if (task.report) task.outcome = Outcome::done;
        if (!runOfTask_[place]) return;
        const Run& run = runs_[*runOfTask_[place]];
        task.threadID = run.threadID;
        task.lastActivity = std::max(task.lastActivity.value_or(run.updatedAt), run.updatedAt);
        if (run.finished) task.outcome = Outcome::done;
        if (run.failed) task.outcome = Outcome::failed;
        if (run.interrupted && task.outcome == Outcome::open) task.outcome = Outcome::interrupted;
    }

    Runs runs_;
    std::vector<ConversationTask> tasks_;
    std::vector<Place> runOfTask_;
    std::vector<Place> parentOfTask_;
};

TEST(ConversationTaskModelTests, buildingIsItsPlainReading) {
    std::size_t built = 0;
    std::size_t nested = 0;
    std::size_t withTodos = 0;
    std::size_t tied = 0;
    for (std::uint64_t seed = 0; seed < 10'000; ++seed) {
        testing::RandomConversation input(seed);
        Runs runs;
        for (auto& conversation : ConversationGrouping::conversations(input.sessions(), {.now = {input.now}}))
            runs.insert(runs.end(), conversation.runs.begin(), conversation.runs.end());
        const auto feed = ConversationAssembly::feed(input.parts());
        const auto tasks = ConversationTask::tasks(feed, runs);
        const auto expected = Model(runs).tasks(feed);
        ASSERT_EQ(tasks.size(), expected.size()) << "seed " << seed;
        for (std::size_t task = 0; task < tasks.size(); ++task)
            ASSERT_TRUE(tasks[task] == expected[task])
                << "seed " << seed << ", task " << task << ", " << tasks[task].id;
        for (const auto& task : tasks) {
            ++built;
            if (task.depth > 1) ++nested;
            if (task.todos) ++withTodos;
            if (task.threadID) ++tied;
        }
    }
    EXPECT_GT(built, 30'000U);
    EXPECT_GT(nested, 1'000U);
    EXPECT_GT(withTodos, 10'000U);
    EXPECT_GT(tied, 10'000U);
}

}  // namespace
}  // namespace vellark
