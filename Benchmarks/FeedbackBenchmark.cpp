// Notes on a text of 50,000 lines, the longest that is searched.
//
// One note on 400 lines whose lines are gone: every stretch has to be hashed anew. Beside it the plain loop, one
// stretch after another; and our own search of a text made to pass its sieve everywhere. Then archives of 5,000 notes
// in which nothing moved, or all lines moved down by one, beside one plain hashing of the text's lines: what the
// archive must cost at the least.

#include "Feedback/PlainRelocation.hpp"

#include <benchmark/benchmark.h>

#include <iostream>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace vellark;

constexpr std::size_t lineCount = FeedbackLineIndex::maximumLineCount;
constexpr std::int64_t longestSpan = DocumentFeedbackNote::maximumLineSpan;

std::string document() {
    std::string text;
    for (std::size_t line = 1; line < lineCount; ++line)
        text += "    The shelf keeps what agents write; this is line " + std::to_string(line) + ".\n";
    return text;
}

DocumentFeedbackNote note(std::int64_t startLine, std::int64_t span, std::uint64_t hash) {
    return {.id = "n",
            .documentID = "d",
            .revisionID = "old",
            .startLine = startLine,
            .endLine = startLine + span - 1,
            .anchor = FeedbackHash::text(hash),
            .text = "Is this still so?"};
}

// Short notes all over the text, as readers write them: 1 to 40 lines.
std::vector<DocumentFeedbackNote> archive(const testing::PlainRelocation& text, std::int64_t movedBy) {
    std::vector<DocumentFeedbackNote> notes;
    for (std::int64_t index = 0; index < 5'000; ++index) {
        const std::int64_t span = index % 40 + 1;
        const std::int64_t line = index * 9 + 1;
        const auto start = static_cast<std::size_t>(line + movedBy - 1);
        notes.push_back(note(line, span, text.stretchHash(start, static_cast<std::size_t>(span))));
    }
    return notes;
}

void searchOurs(benchmark::State& state, const std::string& text, std::uint64_t hash) {
    const FeedbackLineIndex index(text);
    const DocumentFeedbackNote lost = note(20'000, longestSpan, hash);
    for (auto _ : state)
        benchmark::DoNotOptimize(DocumentFeedbackAnchor::relocate(lost, "new", index));
}

void searchPlainly(benchmark::State& state, const std::string& text, std::uint64_t hash) {
    const testing::PlainRelocation plain(text);
    for (auto _ : state)
        benchmark::DoNotOptimize(plain.nearestStretch(hash, longestSpan, 19'999));
}

void relocateArchive(benchmark::State& state, const std::string& text, const std::vector<DocumentFeedbackNote>& notes) {
    for (auto _ : state) {
        const FeedbackLineIndex index(text);
        for (const DocumentFeedbackNote& note : notes)
            benchmark::DoNotOptimize(DocumentFeedbackAnchor::relocate(note, "new", index));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(notes.size()));
}

void hashLines(benchmark::State& state, const std::string& text) {
    for (auto _ : state) {
        for (const std::string_view line : DocumentFeedbackAnchor::lines(text))
            benchmark::DoNotOptimize(FeedbackHash::ofWellFormedLine(line));
    }
}

// Every note of an archive is found.
bool areFound(const std::string& text, const std::vector<DocumentFeedbackNote>& notes) {
    const FeedbackLineIndex index(text);
    for (const DocumentFeedbackNote& note : notes) {
        if (DocumentFeedbackAnchor::relocate(note, "new", index).isStale) return false;
    }
    return true;
}

}  // namespace

int main(int count, char** arguments) {
    const std::string text = document();
    const std::string sameLines(lineCount - 1, '\n');
    const testing::PlainRelocation plain(text);
    const auto unmoved = archive(plain, 0);
    const auto moved = archive(plain, 1);
    if (!areFound(text, unmoved) || !areFound(text, moved)) {
        std::cerr << "notes were not found again\n";
        return 1;
    }
    const std::uint64_t lost = plain.stretchHash(0, longestSpan) + (1U << 20);
    const std::uint64_t passing = testing::PlainRelocation(sameLines).stretchHash(0, longestSpan) + (1U << 20);

    benchmark::RegisterBenchmark("ours/search", searchOurs, text, lost)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("peer/plain/search", searchPlainly, text, lost)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("ours/hostile/same-lines", searchOurs, sameLines, passing)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("peer/floor/hash-lines", hashLines, text)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("ours/archive/unmoved", relocateArchive, text, unmoved)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("ours/archive/moved", relocateArchive, text, moved)->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
