// A conversation of two megabytes written as Markdown, redaction included, beside two floors: redaction of the same
// texts alone, and the same texts joined.

#include <VellarkDomain/Conversations/Export/ConversationExport.hpp>
#include <VellarkDomain/Conversations/Text/ConversationText.hpp>

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

namespace {

using namespace vellark;
using Entry = ConversationEntry;

constexpr std::size_t exportSize = 2'000'000;

constexpr std::string_view turns[] = {
    "Please split the reader from the cache, and keep the old file readable until the migration has run.\n",
    "I looked at `Sources/Reader.cpp` first. The cache is filled in three places:\n\n- the reader itself\n- the "
    "watcher\n"
    "- a test that nobody runs\n\n```cpp\nconst auto found = cache.find(path);\nif (found == cache.end()) return "
    "{};\n```\n",
    "회의에서 정한 대로 이전 파일은 그대로 두고, 새 파일을 옆에 씁니다. 실패하면 이전 파일이 남습니다.\n",
    "Done. 214 tests pass; the slow one takes 1.3 s now (was 4.1 s). The commit is 9f2c1ab7d0, on the branch reader.\n",
};

std::vector<Entry> makeEntries() {
    std::vector<Entry> entries;
    for (std::size_t size = 0, index = 0; size < exportSize - 200'000; ++index) {
        Entry entry{.id = std::to_string(index), .time = Date{1'767'323'045 + static_cast<double>(index) * 40}};
        entry.author = index % 4 == 0 ? ConversationAuthor::user() : ConversationAuthor::main();
        if (index % 9 == 8) {
            entry.kind = ConversationActivity{.editedFiles = {"/a/Reader.cpp"}, .commands = 7, .commits = 1};
        } else {
            for (std::size_t count = 1 + index % 3; count > 0; --count)
                entry.text += turns[index % std::size(turns)];
        }
        size += entry.text.size() + 40;
        entries.push_back(std::move(entry));
    }
    return entries;
}

const std::vector<Entry>& sample() {
    static const std::vector<Entry> entries = makeEntries();
    return entries;
}

std::string exported() {
    static const AgentConversation conversation{.title = "Split the reader from the cache", .cwd = "/home/me/shelf"};
    return ConversationExport::markdown({.conversation = conversation,
                                         .instruction = turns[0],
                                         .entries = sample(),
                                         .agentName = "Claude",
                                         .exportedAt = Date{1'767'400'000},
                                         .timeZone = "Europe/Berlin"});
}

void perByte(benchmark::State& state, std::size_t bytes) {
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * static_cast<std::int64_t>(bytes));
}

void exportAll(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(exported());
    perByte(state, exported().size());
}

template <class Add>
void addTexts(benchmark::State& state, Add add) {
    for (auto _ : state) {
        std::string text;
        for (const Entry& entry : sample()) {
            add(text, entry.text);
        }
        benchmark::DoNotOptimize(text);
    }
    perByte(state, exported().size());
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const std::size_t size = exported().size();
    if (size < exportSize * 8 / 10 || size > ConversationExport::maximumBytes) {
        std::cerr << "the export has " << size << " bytes\n";
        return EXIT_FAILURE;
    }
    benchmark::RegisterBenchmark("ours/export", exportAll)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("peer/redact-alone", [](benchmark::State& state) {
        addTexts(state, [](std::string& text, const std::string& turn) { text += ConversationText::redact(turn); });
    })->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("peer/join", [](benchmark::State& state) {
        addTexts(state, [](std::string& text, const std::string& turn) { text += turn; });
    })->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
