// The greatest archive of boards that is valid: 100 boards of 2,000 nodes and 8,000 edges, a million items, with
// identifiers and texts as long as people and programs make them. One iteration is the whole archive.
//
// `validated` hands the archive over and takes it back. Beside the check stands what its identifiers alone cost with
// the standard library's hash sets.

#include <VellarkDomain/Board/DocumentBoardArchive.hpp>

#include <benchmark/benchmark.h>

#include <functional>
#include <iostream>
#include <random>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace {

using namespace vellark;

using Archive = DocumentBoardArchive;

constexpr std::string_view titles[] = {"Release plan", "출시 계획과 남은 일",
                                       "What Ann said about the reader on Tuesday", "Übersicht der Entscheidungen",
                                       "会议记录"};
constexpr std::string_view notes[] = {
    "", "Ask again when the numbers are in.\nUntil then the older figure stands.",
    "이 부분은 다음 회의에서 다시 이야기한다. 그때까지는 지금의 안을 그대로 둔다.",
    "The board grew out of the meeting in March: three documents, two of them drafts, and the people who wrote them."};
constexpr std::string_view labels[] = {"", "answers", "다음", "is an older version of"};

class Sample {
public:
    Archive archive() {
        Archive archive;
        for (std::size_t index = 0; index < Archive::maximumBoards; ++index)
            archive.boards.push_back(board());
        return archive;
    }

private:
    std::string identifier() {
        std::string text = "00000000-0000-4000-8000-000000000000";
        for (char& digit : text) {
            if (digit == '0') digit = "0123456789abcdef"[random_() % 16];
        }
        return text;
    }

    template <std::size_t count>
    std::string_view oneOf(const std::string_view (&texts)[count]) {
        return texts[random_() % count];
    }

    double coordinate() { return static_cast<double>(random_() % 200'000) - Archive::maximumCoordinate; }

    DocumentBoard board() {
        DocumentBoard board{.id = identifier(), .title = std::string(oneOf(titles)), .updatedAt = {1.78e9}};
        for (std::size_t index = 0; index < Archive::maximumNodes; ++index) {
            DocumentBoardNode node{.id = identifier(),
                                   .title = std::string(oneOf(titles)),
                                   .note = std::string(oneOf(notes)),
                                   .position = {coordinate(), coordinate(), 0}};
            if (index % 2 == 0) node.documentID = identifier();
            if (index % 4 == 0) node.date = "2024-02-29";
            board.nodes.push_back(node);
        }
        for (std::size_t index = 0; index < Archive::maximumEdges; ++index) {
            const std::size_t from = random_() % Archive::maximumNodes;
            const std::size_t to = (from + 1 + random_() % (Archive::maximumNodes - 1)) % Archive::maximumNodes;
            board.edges.push_back({.id = identifier(),
                                   .fromNodeID = board.nodes[from].id,
                                   .toNodeID = board.nodes[to].id,
                                   .label = std::string(oneOf(labels))});
        }
        return board;
    }

    std::mt19937_64 random_{3};
};

void setItems(benchmark::State& state) {
    constexpr std::size_t items = Archive::maximumBoards * (Archive::maximumNodes + Archive::maximumEdges);
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(items));
}

void check(benchmark::State& state, const Archive& archive) {
    for (auto _ : state)
        benchmark::DoNotOptimize(archive.firstViolation());
    setItems(state);
}

void validated(benchmark::State& state, const Archive& archive) {
    Archive passed = archive;
    for (auto _ : state) {
        passed = *std::move(passed).validated();
        benchmark::DoNotOptimize(passed);
    }
    setItems(state);
}

bool hasSoundIdentifiers(const DocumentBoard& board) {
    std::unordered_set<std::string_view> nodes;
    for (const DocumentBoardNode& node : board.nodes) {
        if (!nodes.insert(node.id).second) return false;
    }
    std::unordered_set<std::string_view> edges;
    for (const DocumentBoardEdge& edge : board.edges) {
        if (!edges.insert(edge.id).second) return false;
        if (!nodes.contains(edge.fromNodeID) || !nodes.contains(edge.toNodeID)) return false;
    }
    return true;
}

void checkIdentifiersPlainly(benchmark::State& state, const Archive& archive) {
    for (auto _ : state) {
        for (const DocumentBoard& board : archive.boards)
            benchmark::DoNotOptimize(hasSoundIdentifiers(board));
    }
    setItems(state);
}

}  // namespace

int main(int count, char** arguments) {
    const Archive archive = Sample().archive();
    if (archive.firstViolation()) {
        std::cerr << "the sample breaks a rule: " << rawValue(*archive.firstViolation()) << '\n';
        return 1;
    }
    const auto registered = [&](const char* name, auto function) {
        benchmark::RegisterBenchmark(name, function, std::cref(archive))->Unit(benchmark::kMillisecond);
    };
    registered("ours/check/million-items", check);
    registered("ours/validated/million-items", validated);
    registered("peer/plain/million-items", checkIdentifiersPlainly);
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
