// Messages as agents write them, made into blocks and runs, beside cmark-gfm's bare parse of the same messages; and
// code coloured by language. Pygments' figures for the same code come from Peers/pygments_lexing.py.

#include <VellarkDomain/Conversations/Code/CodeHighlighter.hpp>
#include <VellarkDomain/Conversations/RichText/ConversationRichText.hpp>

#include <benchmark/benchmark.h>
#include <cmark-gfm-core-extensions.h>
#include <cmark-gfm.h>

#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

using vellark::ConversationRichText;
using vellark::CodeHighlighter::code;

constexpr std::string_view pieces[] = {
    "I looked at the failing test and found the cause: the cache is filled before the lock is taken.\n\n",
    "The fix is in `SignalSpool.cpp`; **all 42 tests pass** now. See https://example.org/issues/42 for the "
    "details.\n\n",
    "## What changed\n\n- moved the check in front of the *write*\n- `PendingSignals` counts names, not files\n"
    "  - one listing per run\n- removed two copies\n\n",
    "1. Run `Scripts/setup`\n2. Build with `cmake --preset release`\n3. Read the table\n\n",
    "```cpp\nfor (const auto& entry : entries) {\n    total += entry.size();\n}\n```\n\n",
    "| Subject | Ours | Floor |\n|---|---:|---:|\n| small | 1.2 ms | 1.1 ms |\n| large | 13 ms | 1.6 ms |\n\n",
    "분기 보고서를 정리했습니다. **매출은 12% 늘었고** 비용은 그대로입니다. 자세한 표는 `보고서/2026-3분기.md`에 "
    "있습니다.\n\n",
    "> The user asked for a short answer, so I left the history out.\n\n",
    "No further steps are needed here. Tell me if the numbers look different on your machine, and I will look "
    "again.\n\n",
};

// Messages of one to four pieces, 10 MB in all, the same in every run.
const std::vector<std::string>& messages() {
    static const auto made = [] {
        std::vector<std::string> result;
        std::mt19937 random(7);
        for (std::size_t size = 0; size < 10'000'000; size += result.back().size()) {
            std::string message;
            for (std::size_t count = 1 + random() % 4; count > 0; --count)
                message += pieces[random() % std::size(pieces)];
            result.push_back(std::move(message));
        }
        return result;
    }();
    return made;
}

void count(benchmark::State& state, const std::vector<std::string>& texts) {
    std::size_t size = 0;
    for (const std::string& text : texts)
        size += text.size();
    state.SetBytesProcessed(static_cast<std::int64_t>(size) * state.iterations());
}

void parseMessages(benchmark::State& state) {
    for (auto _ : state) {
        for (const std::string& text : messages())
            benchmark::DoNotOptimize(ConversationRichText(text, true));
    }
    count(state, messages());
}
BENCHMARK(parseMessages)->Name("ours/messages")->Unit(benchmark::kMillisecond);

void parseWithCmark(benchmark::State& state) {
    cmark_gfm_core_extensions_ensure_registered();
    for (auto _ : state) {
        for (const std::string& text : messages()) {
            cmark_parser* parser = cmark_parser_new(CMARK_OPT_DEFAULT);
            for (const char* name : {"table", "strikethrough", "autolink"}) {
                cmark_parser_attach_syntax_extension(parser, cmark_find_syntax_extension(name));
            }
            cmark_parser_feed(parser, text.data(), text.size());
            cmark_node* document = cmark_parser_finish(parser);
            benchmark::DoNotOptimize(document);
            cmark_node_free(document);
            cmark_parser_free(parser);
        }
    }
    count(state, messages());
}
BENCHMARK(parseWithCmark)->Name("peer/cmark/messages")->Unit(benchmark::kMillisecond);

struct HostileMessage {
    const char* name;
    std::string_view piece;
};

constexpr HostileMessage hostileMessages[] = {
    {"quotes", "> "},          {"items", "- a\n"},      {"nested-items", "  - a\n"}, {"stars", "*a "},
    {"ticks", "`` ` "},        {"brackets", "[a]("},    {"bars", "|a|-|\n"},         {"fences", "```\n"},
    {"json", "{\"a\":["},      {"tildes", "~~a "},      {"blank-items", "- a\n\n"},  {"hashes", "# #\n"},
    {"underlines", "a\n--\n"}, {"patches", "@@ -1\n "},
};

void parseHostile(benchmark::State& state, const HostileMessage& message) {
    std::string text;
    while (text.size() < static_cast<std::size_t>(state.range(0)))
        text += message.piece;
    for (auto _ : state)
        benchmark::DoNotOptimize(ConversationRichText(text, true));
}

// A head's worth of each language, from the samples that Pygments gets too.
std::string sample(const std::string& name) {
    std::ostringstream text;
    text << std::ifstream(std::string(VELLARK_CODE_SAMPLES) + "/" + name, std::ios::binary).rdbuf();
    std::string result;
    while (result.size() < 30'000)
        result += text.str();
    return result.substr(0, 39'000);
}

void colour(benchmark::State& state, const char* language, const std::string& text) {
    std::size_t coloured = 0;
    for (auto _ : state) {
        const auto block = code(language, text);
        coloured = block.tailStart;
        benchmark::DoNotOptimize(block.tokens.data());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(coloured) * state.iterations());
}

struct Sample {
    const char* language;
    const char* file;
};

constexpr Sample samples[] = {{"python", "sample.py"},
                              {"typescript", "sample.ts"},
                              {"shell", "sample.sh"},
                              {"swift", "sample.swift"},
                              {"json", "sample.json"}};

}  // namespace

int main(int argumentCount, char** arguments) {
    for (const HostileMessage& message : hostileMessages) {
        benchmark::RegisterBenchmark((std::string("ours/hostile/") + message.name).c_str(), parseHostile, message)
            ->RangeMultiplier(2)
            ->Range(1 << 17, 1 << 18);
    }
    for (const Sample& row : samples) {
        benchmark::RegisterBenchmark((std::string("ours/colour/") + row.language).c_str(), colour, row.language,
                                     sample(row.file));
    }
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
