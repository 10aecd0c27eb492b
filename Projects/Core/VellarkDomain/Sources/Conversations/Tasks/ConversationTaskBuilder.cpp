// Tasks are built in two passes over the feed, so that every entry is moved once, into a thread whose length is known.
// The first pass finds each entry's task and notes it as a placement; the second fills the threads. An entry is copied
// only where it stands twice: as a prompt, as a report, and as the hand-over in the thread of the task above.

#include <VellarkDomain/Conversations/Tasks/ConversationRunIndex.hpp>
#include <VellarkDomain/Conversations/Tasks/ConversationTask.hpp>

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <utility>

namespace vellark {

namespace {

using Entry = ConversationEntry;
using Run = ConversationRun;
using Task = ConversationTask;
using Place = std::optional<std::size_t>;

void raise(std::optional<Date>& latest, Date date) {
    if (!latest || date > *latest) latest = date;
}

class TaskBuilder {
public:
    TaskBuilder(std::vector<Entry> feed, std::span<const Run> runs)
        : feed_(std::move(feed)), runs_(runs), index_(runs), taskOfRun_(runs.size()) {
        placements_.reserve(feed_.size());
    }

    std::vector<Task> build() && {
        for (std::size_t place = 0; place < feed_.size(); ++place)
            assign(place);
        fillThreads();
        for (std::size_t place = 0; place < tasks_.size(); ++place)
            finish(tasks_[place], links_[place]);
        return std::move(tasks_);
    }

private:
    // What a task hangs on while tasks are built.
    struct Links {
        Place run;
        Place parent;
        std::size_t entries = 0;  // of its thread
        Place report;             // in the feed
    };

    struct Placement {
        std::uint32_t task;
        std::uint32_t entry;
        bool isHandOver;
    };

    void assign(std::size_t place) {
        const Entry& entry = feed_[place];
        const auto owner = Task::owner(entry);
        if (!owner) return;
        const Place run = runOf(entry, *owner);
        const std::string_view name = run ? std::string_view(runs_[*run].name) : *owner;
        Place task = continued(entry, run, name);
        if (!task) task = open(place, run, name);
        tie(*task, run);
        add(place, addressee(entry, *task).value_or(*task));
    }

    // A name that a run bears is taken at its word: which of the name's runs it means stays open.
    Place runOf(const Entry& entry, std::string_view owner) {
        if (const Place run = index_.ofDelegation(entry.callID)) return run;
        const Place run = index_.ofLocation(entry.location);
        if (run && runs_[*run].name == owner) return run;
        if (index_.ofName(owner)) return std::nullopt;
        return index_.ofAlias(owner);
    }

    // The task that the entry goes on with. A delegation opens a new one unless its run has one already.
    Place continued(const Entry& entry, Place run, std::string_view name) const {
        if (run && taskOfRun_[*run]) return taskOfRun_[*run];
        if (entry.is<Entry::Delegation>()) return std::nullopt;
        const Place task = taskOfName(name);
        const bool isAnotherRuns = task && run && links_[*task].run;
        return isAnotherRuns ? std::nullopt : task;
    }

    std::size_t open(std::size_t place, Place run, std::string_view name) {
        const Entry& entry = feed_[place];
        const Place parent = parentOf(entry, run);
        const std::size_t task = tasks_.size();
        Task opened{.id = entry.id, .name = std::string(name), .startedAt = entry.time};
        if (entry.is<Entry::Delegation>()) opened.prompt = entry;
        if (parent) {
            Task& above = tasks_[*parent];
            opened.parentTaskID = above.id;
            opened.depth = above.depth + 1;
            above.children.push_back(entry.id);
            note(place, *parent, true);
        }
        tasks_.push_back(std::move(opened));
        links_.push_back({.run = std::nullopt, .parent = parent, .report = std::nullopt});
        taskOfName_.insert_or_assign(name, task);
        return task;
    }

    // The task of the run's parent thread; a subagent's own delegation also tells by where it stands and who wrote it.
    Place parentOf(const Entry& entry, Place run) {
        if (run && runs_[*run].parentThreadID) {
            const Place parent = taskOf(index_.ofThread(*runs_[*run].parentThreadID));
            if (parent) return parent;
        }
        const bool isSubagents = entry.author.role == ConversationAuthor::Role::subagent;
        if (!entry.is<Entry::Delegation>() || !isSubagents) return std::nullopt;
        const Place writer = index_.ofLocation(entry.location);
        const Place parent = writer != run ? taskOf(writer) : std::nullopt;
        return parent ? parent : taskOfName(entry.author.name);
    }

    void tie(std::size_t task, Place run) {
        if (!run || links_[task].run) return;
        links_[task].run = run;
        taskOfRun_[*run] = task;
    }

    // A subagent's message to a task that it handed on belongs to that task.
    Place addressee(const Entry& entry, std::size_t sender) const {
        const auto* message = std::get_if<Entry::AgentMessage>(&entry.kind);
        if (message == nullptr || entry.author.role != ConversationAuthor::Role::subagent) return std::nullopt;
        Place task = taskOfName(message->to);
        if (!task) task = taskOf(index_.ofAlias(message->to));
        return task && links_[*task].parent == sender ? task : std::nullopt;
    }

    void add(std::size_t place, std::size_t target) {
        const Entry& entry = feed_[place];
        Task& task = tasks_[target];
        note(place, target, false);
        if (entry.time) {
            if (!task.startedAt) task.startedAt = entry.time;
            raise(task.lastActivity, *entry.time);
        }
        if (entry.is<Entry::AgentMessage>()) ++task.messages;
        if (entry.is<Entry::Report>()) links_[target].report = place;
    }

    void note(std::size_t place, std::size_t task, bool isHandOver) {
        placements_.push_back({static_cast<std::uint32_t>(task), static_cast<std::uint32_t>(place), isHandOver});
        ++links_[task].entries;
    }

    // An entry's hand-over is noted before its own place, so it is copied before it moves.
    void fillThreads() {
        for (std::size_t task = 0; task < tasks_.size(); ++task) {
            tasks_[task].thread.reserve(links_[task].entries);
            if (links_[task].report) tasks_[task].report = feed_[*links_[task].report];
        }
        for (const Placement& placement : placements_) {
            auto& thread = tasks_[placement.task].thread;
            Entry& entry = feed_[placement.entry];
            if (placement.isHandOver) {
                thread.push_back(entry);
                thread.back().todos.clear();
            } else {
                thread.push_back(std::move(entry));
            }
        }
    }

    void finish(Task& task, const Links& links) const {
        const Place named = links.run ? links.run : index_.ofName(task.name);
        const Run* run = links.run ? &runs_[*links.run] : nullptr;
        Task::TitleSource source{.name = task.name};
        if (task.prompt) source.prompt = task.prompt->text;
        if (named) {
            source.task = runs_[*named].task;
            task.role = runs_[*named].role;
        }
        task.title = Task::titleOf(source);
        if (run != nullptr) {
            task.threadID = run->threadID;
            raise(task.lastActivity, run->updatedAt);
        }
        task.todos = ConversationTodoProgress::latest(task.thread);
        task.outcome = outcome(task, run);
    }

    static Task::Outcome outcome(const Task& task, const Run* run) {
        if (run != nullptr && run->failed) return Task::Outcome::failed;
        if (task.report || (run != nullptr && run->finished)) return Task::Outcome::done;
        return run != nullptr && run->interrupted ? Task::Outcome::interrupted : Task::Outcome::open;
    }

    Place taskOf(Place run) const { return run ? taskOfRun_[*run] : std::nullopt; }

    Place taskOfName(std::string_view name) const {
        const auto row = taskOfName_.find(name);
        return row == taskOfName_.end() ? std::nullopt : Place(row->second);
    }

    std::vector<Entry> feed_;
    std::span<const Run> runs_;
    ConversationRunIndex index_;
    std::vector<Task> tasks_;
    std::vector<Links> links_;  // beside the tasks
    std::vector<Place> taskOfRun_;
    std::unordered_map<std::string_view, std::size_t> taskOfName_;  // the latest; names stand in runs and in the feed
    std::vector<Placement> placements_;
};

}  // namespace

std::vector<ConversationTask> ConversationTask::tasks(std::vector<Entry> feed, std::span<const Run> runs) {
    return TaskBuilder(std::move(feed), runs).build();
}

}  // namespace vellark
