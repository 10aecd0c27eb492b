// Redaction of ordinary agent logs, beside the eighteen expressions and the key pass on ICU. With --tables it prints
// instead how many of a thousand generated secrets of each form stay readable, and how many ordinary lines lose
// anything.

#include "Conversations/Redaction/MadeSecrets.hpp"
#include "Conversations/Redaction/PlainRedaction.hpp"
#include <VellarkDomain/Conversations/Redaction/Redaction.hpp>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <fstream>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using vellark::Redaction::redact;

struct Line {
    std::string kind;
    std::string text;
};

const std::vector<Line>& ordinaryLines() {
    static const auto lines = [] {
        std::vector<Line> result;
        std::ifstream file(VELLARK_ORDINARY_LINES);
        for (std::string line; std::getline(file, line);) {
            const std::size_t tab = line.find('\t');
            if (!line.starts_with('#')) result.push_back({line.substr(0, tab), line.substr(tab + 1)});
        }
        return result;
    }();
    return lines;
}

// Texts of about 4 KB, as entries of a transcript are.
const std::vector<std::string>& logs() {
    static const auto texts = [] {
        std::vector<std::string> result(1);
        for (int round = 0; round < 8; ++round) {
            for (std::size_t index = 0; index < ordinaryLines().size(); ++index) {
                if (result.back().size() > 4'000) result.emplace_back();
                result.back() += ordinaryLines()[index * 7 % ordinaryLines().size()].text + "\n";
            }
        }
        return result;
    }();
    return texts;
}

void countBytes(benchmark::State& state) {
    std::size_t size = 0;
    for (const std::string& text : logs())
        size += text.size();
    state.SetBytesProcessed(static_cast<std::int64_t>(size) * state.iterations());
}

void redactLogs(benchmark::State& state) {
    for (auto _ : state) {
        for (const std::string& text : logs())
            benchmark::DoNotOptimize(redact(text));
    }
    countBytes(state);
}
BENCHMARK(redactLogs)->Name("ours/logs");

void redactOnEngine(benchmark::State& state) {
    const vellark::testing::PlainRedaction plain;
    for (auto _ : state) {
        for (const std::string& text : logs())
            benchmark::DoNotOptimize(plain.redact(text));
    }
    countBytes(state);
}
BENCHMARK(redactOnEngine)->Name("peer/icu/logs")->Unit(benchmark::kMillisecond);

struct Hostile {
    const char* name;
    std::string_view piece;
};

constexpr Hostile hostiles[] = {
    {"keys", "password="},      {"labels", "token: "},          {"addresses", "://a:"},
    {"armour", "-----BEGIN A"}, {"headers", "authorization=="}, {"bearers", "Bearer "},
    {"tokens", "sk-a"},         {"webs", "eyJaaaaaaaa."},       {"quotes", "pwd='"},
    {"blanks", "=        "},    {"marks", "a\xCC\x81zation"},
};

void redactHostile(benchmark::State& state, const Hostile& hostile) {
    std::string text;
    while (text.size() < static_cast<std::size_t>(state.range(0)))
        text += hostile.piece;
    for (auto _ : state)
        benchmark::DoNotOptimize(redact(text));
}

void printTables() {
    vellark::testing::RandomNumbers random(9);
    std::printf("%-28s %8s %16s\n", "secret", "made", "left readable");
    for (std::size_t pattern = 0; pattern < vellark::secretPatternCount; ++pattern) {
        int readable = 0;
        for (int round = 0; round < 1'000; ++round) {
            const auto& [before, after] = random.oneOf(vellark::testing::secretSettings);
            const auto made = vellark::testing::madeSecret(random, pattern);
            if (redact(before + made.text + after).find(made.secret) != std::string::npos) ++readable;
        }
        std::printf("%-28s %8d %16d\n", vellark::secretPatterns[pattern].name.data(), 1'000, readable);
    }
    std::map<std::string, std::pair<int, int>> counts;
    for (const Line& line : ordinaryLines()) {
        auto& [count, blanked] = counts[line.kind];
        ++count;
        if (redact(line.text) != line.text) ++blanked;
    }
    std::printf("\n%-28s %8s %16s\n", "ordinary lines", "read", "changed");
    for (const auto& [kind, count] : counts) {
        std::printf("%-28s %8d %16d\n", kind.c_str(), count.first, count.second);
    }
}

}  // namespace

int main(int count, char** arguments) {
    if (count > 1 && std::string_view(arguments[1]) == "--tables") {
        printTables();
        return 0;
    }
    for (const Hostile& hostile : hostiles) {
        benchmark::RegisterBenchmark((std::string("ours/hostile/") + hostile.name).c_str(), redactHostile, hostile)
            ->RangeMultiplier(2)
            ->Range(1 << 19, 1 << 20);
    }
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
