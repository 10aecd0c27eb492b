// Telling documents' kinds: normalising and matching texts of about 4 KB, beside the automaton in its plain form and
// pyahocorasick (see Peers); building the lexicon; whole documents; and titles made to hurt.
//
// Texts amount to a million bytes for each pass, so that passes in a second are megabytes in a second. The words are
// those of the lexicon. `--accuracy` prints how the classifier does on the tests' titles and documents, in
// VELLARK_KINDS.

#include "Documents/Kinds/KindCorpus.hpp"
#include "Documents/Kinds/PlainKindMatcher.hpp"
#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindClassifier.hpp>
#include <VellarkDomain/Documents/Kinds/Rules/DocumentKindRules.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <random>

namespace {

using namespace vellark;

constexpr std::size_t passBytes = 1'000'000;
constexpr std::size_t textBytes = 4'096;

// What stands between the words that count, in the lexicon's scripts.
constexpr std::string_view fillers[] = {
    "the",   "quick",  "of",    "and",      "project", "with", "which",  "이번",    "프로젝트에서", "사용자가",
    "함께",  "정리된", "これ",  "について", "です",    "这个", "在项目", "我们",    "для",          "проекта",
    "между", "und",    "nicht", "werden",   "les",     "avec", "donde",  "nuestro", "đường",        "những",
    "ที่",     "และ",    "нь",    "байна",    "2026",    "-",    ".",      "v2"};

std::vector<std::string_view> vocabularyWords() {
    std::vector<std::string_view> words;
    const auto add = [&](const DocumentKindVocabulary::Words& list) {
        words.insert(words.end(), list.begin(), list.end());
    };
    for (const auto& row : DocumentKindRules::table()) {
        add(row.names);
        add(row.cues);
    }
    for (const DocumentKindLanguage language : allCases<DocumentKindLanguage>()) {
        for (const auto& row : DocumentKindRules::words(language)) {
            add(row.nouns);
        }
    }
    return words;
}

// Texts of which so many words in a hundred are of the vocabulary.
std::vector<std::string> texts(unsigned percent) {
    const auto words = vocabularyWords();
    std::mt19937_64 random(7);
    std::vector<std::string> result;
    for (std::size_t size = 0; size < passBytes;) {
        std::string text;
        while (text.size() < textBytes && size + text.size() < passBytes) {
            text += random() % 100 < percent ? words[random() % words.size()] : fillers[random() % std::size(fillers)];
            text += ' ';
        }
        size += text.size();
        result.push_back(std::move(text));
    }
    return result;
}

// The texts as the matchers take them, filled up to the bytes that normalising took away.
std::vector<std::u32string> normalized(unsigned percent) {
    std::vector<std::u32string> result;
    std::size_t size = 0;
    while (size < passBytes) {
        for (const std::string& text : texts(percent)) {
            result.push_back(DocumentKindMatcher::normalize(text));
            size += DocumentKindMatcher::normalizedText(result.back()).size();
            if (size >= passBytes) break;
        }
    }
    return result;
}

// Both matchers have the lexicon's patterns and flags.
const DocumentKindMatcher::Patterns& flaggedPatterns() {
    static const DocumentKindLexicon::Patterns list = DocumentKindLexicon::patterns();
    static const DocumentKindMatcher::Patterns result = {
        .patterns = list.texts, .suffixHead = list.suffixHead, .plural = list.plural, .compound = list.compound};
    return result;
}

void match(benchmark::State& state, unsigned percent) {
    const auto texts = normalized(percent);
    const DocumentKindMatcher matcher(flaggedPatterns());
    std::vector<DocumentKindMatcher::Hit> hits;
    for (auto _ : state) {
        for (const std::u32string& text : texts) {
            matcher.hits(text, hits);
            benchmark::DoNotOptimize(hits.data());
        }
    }
}

void matchPlainly(benchmark::State& state, unsigned percent) {
    const auto texts = normalized(percent);
    const testing::PlainKindMatcher matcher(flaggedPatterns());
    for (auto _ : state) {
        for (const std::u32string& text : texts) {
            benchmark::DoNotOptimize(matcher.hits(text));
        }
    }
}

// Before the clock starts: both find the same.
bool agree() {
    const DocumentKindMatcher matcher(flaggedPatterns());
    const testing::PlainKindMatcher plain(flaggedPatterns());
    for (const std::u32string& text : normalized(50)) {
        if (matcher.hits(text) != plain.hits(text)) return false;
    }
    return true;
}

void normalize(benchmark::State& state, const std::vector<std::string>& texts) {
    std::u32string result;
    for (auto _ : state) {
        for (const std::string& text : texts) {
            DocumentKindMatcher::normalize(text, result);
            benchmark::DoNotOptimize(result.data());
        }
    }
}

std::vector<std::string> asciiTexts() {
    constexpr std::string_view prose =
        "The launch plan covers 3 phases; each team's lead signs off before the next one starts (see appendix B). ";
    std::vector<std::string> result(1);
    for (std::size_t size = 0; size < passBytes; size += prose.size()) {
        if (result.back().size() >= textBytes) result.emplace_back();
        result.back() += prose;
    }
    return result;
}

void buildLexicon(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(DocumentKindLexicon());
    }
}

// Documents whose kind shows nowhere, so that every place is asked.
void classifyBody(benchmark::State& state) {
    const auto bodies = texts(5);
    std::size_t next = 0;
    for (auto _ : state) {
        DocumentKindEvidence evidence = {.title = "What we did in the autumn", .path = "/work/app/misc/autumn.md"};
        evidence.read(bodies[next++ % bodies.size()], {});
        benchmark::DoNotOptimize(DocumentKindClassifier::classify(evidence));
    }
}

void classifyTitle(benchmark::State& state) {
    const std::vector<DocumentKindEvidence> titles = {{.title = "2026년 3분기 마케팅 회의록 초안"},
                                                      {.title = "Weekly project report (draft)"},
                                                      {.title = "プロジェクト計画書 第3版"},
                                                      {.title = "Compte rendu de la réunion du 3 mars"},
                                                      {.title = "Projektspezifikation"},
                                                      {.title = "Отчёт о проекте за март"},
                                                      {.title = "What we did in the autumn"},
                                                      {.title = "รายงานการประชุม"}};
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(DocumentKindClassifier::classify(titles[next++ % titles.size()]));
    }
}

void classifyHostile(benchmark::State& state, std::string_view piece) {
    DocumentKindEvidence evidence;
    while (evidence.title.size() < static_cast<std::size_t>(state.range(0))) {
        evidence.title += piece;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(DocumentKindClassifier::classify(evidence));
    }
}

void write(const std::filesystem::path& path, std::span<const std::u32string> lines) {
    std::ofstream file(path);
    for (const std::u32string& line : lines) {
        file << DocumentKindMatcher::normalizedText(line) << '\n';
    }
}

// For peers that run in a process of their own.
void leaveData() {
    const char* const directory = std::getenv("VELLARK_BENCHMARK_DATA");
    if (directory == nullptr) return;
    const std::filesystem::path path(directory);
    write(path / "kinds-patterns.txt", flaggedPatterns().patterns);
    write(path / "kinds-dense.txt", normalized(50));
    write(path / "kinds-sparse.txt", normalized(5));
}

void print(const std::string& name, const testing::KindCorpus::Score& score) {
    std::printf("%-16s %4d of %4d  %5.1f %%\n", name.c_str(), score.right, score.total, score.percent());
}

int printAccuracy() {
    testing::KindCorpus corpus(VELLARK_KINDS);
    if (!corpus.run()) {
        std::cout << "no titles\n";
        return 0;
    }
    for (const auto* scores : {&corpus.languages, &corpus.kinds}) {
        for (const auto& [name, score] : *scores) {
            print(name, score);
        }
        std::cout << '\n';
    }
    print("without a kind", corpus.kindless);
    print("documents", corpus.documents);
    for (const auto& [name, score] : corpus.languages) {
        for (const std::string& miss : score.misses) {
            std::cout << miss << '\n';
        }
    }
    for (const auto* score : {&corpus.kindless, &corpus.documents}) {
        for (const std::string& miss : score->misses) {
            std::cout << miss << '\n';
        }
    }
    return 0;
}

}  // namespace

int main(int count, char** arguments) {
    if (count == 2 && std::string_view(arguments[1]) == "--accuracy") return printAccuracy();
    if (!agree()) {
        std::cerr << "the matchers differ\n";
        return 1;
    }
    leaveData();
    benchmark::RegisterBenchmark("ours/match/dense", match, 50);
    benchmark::RegisterBenchmark("ours/match/sparse", match, 5);
    benchmark::RegisterBenchmark("peer/plain/dense", matchPlainly, 50);
    benchmark::RegisterBenchmark("peer/plain/sparse", matchPlainly, 5);
    benchmark::RegisterBenchmark("ours/normalize/ascii", normalize, asciiTexts());
    benchmark::RegisterBenchmark("ours/normalize/mixed", normalize, texts(20));
    benchmark::RegisterBenchmark("ours/lexicon", buildLexicon);
    benchmark::RegisterBenchmark("ours/classify/body", classifyBody);
    benchmark::RegisterBenchmark("ours/classify/title", classifyTitle);
    benchmark::RegisterBenchmark("ours/hostile/brackets", classifyHostile, "(plan)")->Arg(100'000)->Arg(200'000);
    benchmark::RegisterBenchmark("ours/hostile/names", classifyHostile, "plan rapport ")->Arg(100'000)->Arg(200'000);
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
