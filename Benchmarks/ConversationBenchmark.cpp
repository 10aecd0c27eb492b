// The conversation list of 20,000 sessions, and the feed of one conversation of 200,000 entries in 300 sessions, put
// together and divided into tasks. The floor of the feed is a plain sort of the same entries by time, which anyone who
// shows them must do. Then grouping where a plain reading of its rules costs the square: many continuations, many
// subagents under one name, deep chains.

#include <VellarkDomain/Conversations/Assembly/ConversationAssembly.hpp>
#include <VellarkDomain/Conversations/Grouping/ConversationGrouping.hpp>
#include <VellarkDomain/Conversations/Grouping/ConversationHierarchy.hpp>
#include <VellarkDomain/Conversations/Tasks/ConversationTask.hpp>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace vellark;
using ConversationAssembly::Part;
using Entry = ConversationEntry;
using Sessions = std::vector<ConversationSession>;

constexpr double now = 2'000'000'000;

std::string threadID(std::size_t index) {
    return "0b6e5f1a-7c1d-4c39-9a53-" + std::to_string(100'000'000'000 + index);
}

ConversationSession session(std::size_t index) {
    ConversationSession result;
    result.id = std::to_string(index);
    result.agent = "claude";
    result.threadID = threadID(index);
    result.path = "/home/someone/.claude/projects/-home-someone-projects-shelf/" + result.threadID + ".jsonl";
    result.cwd = "/home/someone/projects/shelf";
    result.startedAt = {now - 400'000 + static_cast<double>(index % 9'973)};
    result.updatedAt = {now - 200'000 + static_cast<double>(index % 9'967)};
    result.instruction = "Measure the library's reader beside its peers, then write down what you found & why.";
    result.preview = "The figures stand in the table; two goals are missed.";
    result.finished = true;
    result.documentSessions = {result.threadID};
    return result;
}

void makeSubagent(ConversationSession& session, std::size_t parent, std::size_t name) {
    session.parentThreadID = threadID(parent);
    session.name = "reviewer-" + std::to_string(name);
    session.delegationID = "toolu_" + session.id;
    session.role = "review";
    session.task = "Review the change";
}

// Conversations of ten sessions: a root, a continuation, six subagents, two subagents of a subagent.
Sessions everyday(std::size_t count) {
    Sessions result;
    for (std::size_t index = 0; index < count; ++index) {
        const std::size_t place = index % 10;
        const std::size_t root = index - place;
        result.push_back(session(index));
        if (place == 1) {
            result.back().parentThreadID = threadID(root);
            result.back().continuation = true;
        } else if (place > 1) {
            makeSubagent(result.back(), place > 7 ? root + 2 : root, place % 4);
        }
    }
    return result;
}

Sessions continuations(std::size_t count) {
    Sessions result = {session(0)};
    for (std::size_t index = count - 1; index > 0; --index) {
        result.push_back(session(index));
        // Runs of fifteen below the root, the last first: each pass of a plain search finds one.
        result.back().parentThreadID = threadID(index % 15 == 1 ? 0 : index - 1);
        result.back().continuation = true;
    }
    return result;
}

Sessions subagents(std::size_t count) {
    Sessions result = {session(0)};
    while (result.size() < count) {
        result.push_back(session(result.size()));
        makeSubagent(result.back(), 0, result.size());
    }
    return result;
}

Sessions chain(std::size_t count) {
    Sessions result = {session(0)};
    while (result.size() < count) {
        result.push_back(session(result.size()));
        makeSubagent(result.back(), result.size() - 2, 0);
    }
    return result;
}

struct List {
    const char* name;
    Sessions (*make)(std::size_t count);
    bool showsSubagents;
};

constexpr List lists[] = {{"everyday", everyday, false},
                          {"everyday-with-subagents", everyday, true},
                          {"continuations", continuations, false},
                          {"subagents", subagents, false},
                          {"chain", chain, false}};

void group(benchmark::State& state, const List& list) {
    const Sessions sessions = list.make(static_cast<std::size_t>(state.range(0)));
    const ConversationGrouping::Context context{.now = {now}, .showsSubagents = list.showsSubagents};
    for (auto _ : state)
        benchmark::DoNotOptimize(ConversationGrouping::conversations(sessions, context));
}

constexpr std::size_t entryCount = 200'000;
constexpr std::size_t partCount = 300;

// What stands in a subagent's record: turns, tool work, messages, to-do changes, a report.
Entry entry(const ConversationSession& session, std::size_t index, std::mt19937_64& random) {
    static const std::string words =
        "The reader takes the line in one pass and keeps the offsets that it needs later. ";
    Entry result{.id = session.threadID + "#" + std::to_string(index)};
    const std::string name = session.name.value_or("");
    result.author = session.name ? ConversationAuthor::subagent(name) : ConversationAuthor::main();
    result.topic = session.name;
    result.location = ConversationTextLocation{
        .agent = session.agent, .path = session.path, .offset = static_cast<std::int64_t>(index) * 4'096};
    switch (index % 8) {
        case 0:
        case 3:
        case 6:
            result.kind = ConversationActivity{
                .editedFiles = {"/home/someone/projects/shelf/Sources/Reader.cpp"}, .commands = 2, .otherTools = 5};
            result.todos = {{ConversationTodoUpdate::Created{.text = "Read the table"}}};
            break;
        case 4:
            result.kind = Entry::AgentMessage{"reviewer-1"};
            break;
        default:
            break;
    }
    for (std::size_t count = 1 + random() % 8; count > 0; --count)
        result.text += words;
    return result;
}

// The root hands every other session its task; all work at the same time.
std::vector<Part> conversationParts() {
    std::mt19937_64 random(65);
    std::vector<Part> parts(partCount);
    for (std::size_t place = 0; place < partCount; ++place) {
        Part& part = parts[place];
        part.session = session(place);
        part.isRoot = place == 0;
        if (place > 0) makeSubagent(part.session, place % 10 == 0 ? place - 1 : 0, place % 100);
        double time = part.session.startedAt.secondsSince1970;
        for (std::size_t index = 0; index < entryCount / partCount + (place < entryCount % partCount); ++index) {
            part.entries.push_back(entry(part.session, index, random));
            time += static_cast<double>(random() % 2'000) / 10;
            part.entries.back().time = Date{time};
        }
    }
    for (std::size_t place = 1; place < partCount; ++place) {
        Entry& delegation = parts[0].entries[2 * place + 1];
        delegation.kind = Entry::Delegation{*parts[place].session.name};
        delegation.callID = parts[place].session.delegationID;
    }
    return parts;
}

struct Conversation {
    std::vector<Part> parts = conversationParts();
    std::vector<Entry> entries;  // the same, part by part
    std::vector<ConversationRun> runs;

    Conversation() {
        Sessions sessions;
        for (const Part& part : parts) {
            sessions.push_back(part.session);
            entries.insert(entries.end(), part.entries.begin(), part.entries.end());
        }
        runs = ConversationGrouping::conversations(sessions, {.now = {now}}).at(0).runs;
    }
};

const Conversation& sample() {
    static const Conversation conversation;
    return conversation;
}

std::vector<ConversationTask> tasksOf(std::vector<Part> parts) {
    return ConversationTask::tasks(ConversationAssembly::feed(std::move(parts)), sample().runs);
}

// Both sides consume a copy that is made, and what they give is freed, while the clock stands.
template <class Input, class Work>
void measure(benchmark::State& state, const Input& input, Work work) {
    for (auto _ : state) {
        state.PauseTiming();
        {
            Input copy = input;
            state.ResumeTiming();
            const auto result = work(std::move(copy));
            benchmark::DoNotOptimize(result.data());
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}

void feedAndTasks(benchmark::State& state) {
    measure(state, sample().parts, tasksOf);
}

void feedAlone(benchmark::State& state) {
    measure(state, sample().parts, ConversationAssembly::feed);
}

bool standsBefore(const Entry& left, const Entry& right) {
    return left.time < right.time;
}

void stableSort(benchmark::State& state) {
    measure(state, sample().entries, [](std::vector<Entry> entries) {
        std::stable_sort(entries.begin(), entries.end(), standsBefore);
        return entries;
    });
}

void plainSort(benchmark::State& state) {
    measure(state, sample().entries, [](std::vector<Entry> entries) {
        std::sort(entries.begin(), entries.end(), standsBefore);
        return entries;
    });
}

void layOut(benchmark::State& state) {
    std::vector<ConversationTask> tasks(static_cast<std::size_t>(state.range(0)));
    for (std::size_t index = 0; index < tasks.size(); ++index) {
        tasks[index].id = std::to_string(index);
        if (index % 100 > 0) tasks[index].parentTaskID = std::to_string(index - 1);
    }
    for (auto _ : state) {
        const ConversationHierarchy hierarchy(tasks);
        benchmark::DoNotOptimize(hierarchy.layout(tasks.back().id, true, 0));
    }
}

// Every subagent's session must have become a task that is tied to its run.
void checkSample() {
    const auto tasks = tasksOf(sample().parts);
    const auto tied = std::count_if(tasks.begin(), tasks.end(), [](const auto& task) { return task.threadID; });
    if (static_cast<std::size_t>(tied) == partCount - 1) return;
    std::cerr << tied << " tasks of " << partCount - 1 << " sessions\n";
    std::exit(1);
}

}  // namespace

BENCHMARK(feedAndTasks)->Name("ours/feed-and-tasks")->Unit(benchmark::kMillisecond);
BENCHMARK(feedAlone)->Name("ours/feed")->Unit(benchmark::kMillisecond);
BENCHMARK(stableSort)->Name("peer/stable-sort")->Unit(benchmark::kMillisecond);
BENCHMARK(plainSort)->Name("peer/sort")->Unit(benchmark::kMillisecond);
BENCHMARK(layOut)->Name("ours/layout")->Arg(5'000)->Arg(10'000);

int main(int argumentCount, char** arguments) {
    checkSample();
    for (const List& list : lists) {
        benchmark::RegisterBenchmark((std::string("ours/group/") + list.name).c_str(), group, list)
            ->Arg(5'000)
            ->Arg(10'000)
            ->Arg(20'000)
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
