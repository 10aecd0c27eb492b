#include <VellarkDomain/Conversations/Tasks/ConversationTask.hpp>

#include <gtest/gtest.h>

#include <string>

namespace vellark {
namespace {

using Entry = ConversationEntry;
using Task = ConversationTask;
using Update = ConversationTodoUpdate;
using Todo = ConversationTodo;

const auto scout = ConversationAuthor::subagent("scout");
const auto nameless = ConversationAuthor::subagent("");
const auto agent = ConversationAuthor::main();

std::string ids(const std::vector<Entry>& entries) {
    std::string result;
    for (const Entry& entry : entries)
        result += entry.id + " ";
    return result;
}

TEST(ConversationTaskTests, statusAndEndFollowTheOutcomeAndTheWindow) {
    struct Case {
        const char* name;
        Task task;
        Task::Status status;
        std::optional<Date> end;
        std::optional<double> duration;
    };
    using Outcome = Task::Outcome;
    using Status = Task::Status;
    const Date now{10'000};
    const Entry report{.time = Date{9'500}};
    const Case cases[] = {
        {"just active", {.startedAt = Date{8'000}, .lastActivity = Date{8'201}}, Status::running, {}, 2'000},
        {"window over", {.startedAt = Date{8'000}, .lastActivity = Date{8'200}}, Status::quiet, Date{8'200}, 200},
        {"in the future", {.startedAt = Date{11'000}, .lastActivity = Date{12'000}}, Status::running, {}, 0},
        {"never active", {.startedAt = Date{8'000}}, Status::quiet, {}, 2'000},
        {"done", {.lastActivity = Date{9'999}, .outcome = Outcome::done}, Status::done, Date{9'999}, {}},
        {"reported",
         {.report = report, .lastActivity = Date{9'999}, .outcome = Outcome::done},
         Status::done,
         Date{9'500},
         {}},
        {"failed",
         {.report = Entry(), .lastActivity = Date{1}, .outcome = Outcome::failed},
         Status::failed,
         Date{1},
         {}},
        {"stopped", {.outcome = Outcome::interrupted}, Status::stopped, {}, {}},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(row.task.status(now), row.status) << row.name;
        EXPECT_EQ(row.task.end(now), row.end) << row.name;
        EXPECT_EQ(row.task.duration(now), row.duration) << row.name;
    }
}

TEST(ConversationTaskTests, entriesHaveOwners) {
    struct Case {
        const char* name;
        Entry entry;
        std::optional<std::string_view> owner;
    };
    const Case cases[] = {
        {"delegation", {.kind = Entry::Delegation{"A"}, .author = scout, .topic = "T"}, "A"},
        {"delegation to nobody", {.kind = Entry::Delegation{""}, .author = scout}, ""},
        {"subagent's message", {.kind = Entry::AgentMessage{"A"}, .author = scout, .topic = "T"}, "T"},
        {"without topic", {.kind = Entry::AgentMessage{"A"}, .author = scout}, "scout"},
        {"nameless", {.kind = Entry::AgentMessage{"A"}, .author = nameless}, ""},
        {"main agent's message", {.kind = Entry::AgentMessage{"A"}, .author = agent, .topic = "T"}, "A"},
        {"to main", {.kind = Entry::AgentMessage{"main"}, .author = agent, .topic = "T"}, "T"},
        {"to nobody", {.kind = Entry::AgentMessage{""}, .author = agent}, std::nullopt},
        {"turn with topic", {.author = agent, .topic = ""}, ""},
        {"subagent's turn", {.author = scout}, "scout"},
        {"nameless turn", {.author = nameless}, std::nullopt},
        {"user's turn", Entry(), std::nullopt},
    };
    for (const Case& row : cases)
        EXPECT_EQ(Task::owner(row.entry), row.owner) << row.name;
}

TEST(ConversationTaskTests, titlesSayWhatIsToBeDone) {
    const std::string wide(81, 'w');
    const std::string fitting(80, 'w');
    const std::string path = "/home/someone/projects/shelf/Sources/Conversations/Tasks.cpp";
    const std::string reading = "Read " + path + " twice";
    const std::string word = "a" + path;
    struct Case {
        const char* name;
        Task::TitleSource source;
        std::string title;
    };
    const Case cases[] = {
        {"task", {.task = " Read\nthe  tables ", .prompt = "P", .name = "A"}, "Read the tables"},
        {"long task", {.task = wide, .name = "A"}, std::string(79, 'w') + "…"},
        {"task of 80", {.task = fitting, .name = "A"}, fitting},
        {"blank task", {.task = " \n", .prompt = "\n\u3000\n  ## Do it\nnow", .name = "A"}, "Do it"},
        {"path", {.prompt = reading, .name = "A"}, "Read /home/someone/…/Conversations/Tasks.cpp twice"},
        {"path in a word", {.prompt = word, .name = "A"}, word},
        {"nothing in the first line", {.prompt = "***\nDo it", .name = "A"}, "A"},
        {"no source", {.name = "A"}, "A"},
    };
    for (const Case& row : cases)
        EXPECT_EQ(Task::titleOf(row.source), row.title) << row.name;
}

TEST(ConversationTaskTests, todosAreReplayed) {
    const auto progress = [](std::vector<Update> updates) {
        return ConversationTodoProgress::latest(std::vector<Entry>{{.todos = std::move(updates)}});
    };
    const Update two{Update::Snapshot{{{"a", Todo::Status::completed}, {"b", Todo::Status::inProgress}}}};
    using Progress = ConversationTodoProgress;
    EXPECT_EQ(progress({two}), (Progress{1, 2, "b"}));
    EXPECT_DOUBLE_EQ(progress({two})->fraction(), 0.5);
    EXPECT_EQ(progress({two, {Update::Created{{}, "c"}}, {Update::Updated{"3", Todo::Status::completed}}}),
              (Progress{2, 3, "b"}));
    EXPECT_EQ(progress({two, {Update::Updated{"2", {}}}, {Update::Updated{"9", {}}}}), (Progress{1, 1, {}}));
    EXPECT_EQ(progress({two, {Update::Created{"2", "again"}}}), (Progress{0, 1, {}})) << "a new list";
    EXPECT_EQ(progress({two, {Update::Updated{"1", {}}}, {Update::Created{"1", "free again"}}}), (Progress{0, 2, "b"}));
    EXPECT_EQ(progress({two, {Update::Updated{"1", {}}}, {Update::Updated{"2", {}}}}), std::nullopt);
    EXPECT_EQ(progress({}), std::nullopt);
    EXPECT_EQ(progress({{Update::Snapshot{}}}), std::nullopt);
    EXPECT_EQ(Progress().fraction(), 0);
}

TEST(ConversationTaskTests, aRunDecidesTheOutcome) {
    const auto outcome = [](ConversationRun run, bool reports) {
        run.name = "scout";
        run.delegationID = "call";
        std::vector<Entry> feed = {{.id = "1", .kind = Entry::Delegation{"scout"}, .author = agent, .callID = "call"}};
        if (reports) feed.push_back({.id = "2", .kind = Entry::Report(), .author = scout});
        return Task::tasks(feed, std::vector{run}).at(0).outcome;
    };
    using Outcome = Task::Outcome;
    EXPECT_EQ(outcome({}, false), Outcome::open);
    EXPECT_EQ(outcome({}, true), Outcome::done);
    EXPECT_EQ(outcome({.finished = true, .interrupted = true}, false), Outcome::done);
    EXPECT_EQ(outcome({.finished = true, .failed = true}, true), Outcome::failed);
    EXPECT_EQ(outcome({.interrupted = true}, false), Outcome::interrupted);
}

TEST(ConversationTaskTests, handOversAndMessagesStandWhereTheyAreLookedFor) {
    std::vector<Entry> feed = {
        {.id = "1", .kind = Entry::Delegation{"scout"}, .author = agent},
        {.id = "2", .kind = Entry::Delegation{"child"}, .author = scout, .todos = {{Update::Created{{}, "x"}}}},
        {.id = "3", .kind = Entry::Delegation{"sibling"}, .author = agent},
        {.id = "4", .kind = Entry::AgentMessage{"child"}, .author = scout},
        {.id = "5", .kind = Entry::AgentMessage{"sibling"}, .author = scout},
        {.id = "6", .author = ConversationAuthor::subagent("child"), .topic = "child"},
        {.id = "7", .kind = Entry::Delegation{"child"}, .author = agent},  // a retry
        {.id = "8", .author = agent},
    };
    const auto tasks = Task::tasks(feed, {});
    ASSERT_EQ(tasks.size(), 4U);
    EXPECT_EQ(ids(tasks[0].thread), "1 2 5 ");
    EXPECT_TRUE(tasks[0].thread[1].todos.empty());
    EXPECT_EQ(tasks[0].children, std::vector<std::string>{"2"});
    EXPECT_EQ(tasks[0].messages, 1);
    EXPECT_EQ(ids(tasks[1].thread), "2 4 6 ");
    EXPECT_EQ(tasks[1].todos, (ConversationTodoProgress{0, 1, {}}));
    EXPECT_EQ(tasks[1].parentTaskID, "1");
    EXPECT_EQ(tasks[1].depth, 1);
    EXPECT_EQ(ids(tasks[2].thread), "3 ");
    EXPECT_EQ(ids(tasks[3].thread), "7 ");
    EXPECT_EQ(tasks[3].parentTaskID, std::nullopt);
}

// Threads that each hand on to the next, and one name for all.
TEST(ConversationTaskTests, deepChainsAreBuilt) {
    constexpr std::size_t depth = 10'000;
    std::vector<Entry> feed;
    std::vector<ConversationRun> runs;
    for (std::size_t index = 0; index < depth; ++index) {
        const std::string number = std::to_string(index);
        feed.push_back({.id = number, .kind = Entry::Delegation{"A"}, .author = agent, .callID = number});
        runs.push_back({.name = "A", .threadID = number, .delegationID = number});
        if (index > 0) runs.back().parentThreadID = std::to_string(index - 1);
    }
    const auto tasks = Task::tasks(feed, runs);
    ASSERT_EQ(tasks.size(), depth);
    EXPECT_EQ(tasks.back().depth, static_cast<std::int64_t>(depth) - 1);
}

}  // namespace
}  // namespace vellark
