// The HTML event parser on real pages, beside a mere check that the same bytes are UTF-8, and on pages made to hurt it:
// those must take at most about twice as long at twice the size.
//
// The pages are those of the tests, in the folder VELLARK_PAGES.

#include <VellarkDomain/Capture/HTML/PythonHTMLTitle.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

using vellark::PythonHTMLTitle::Parser;

std::vector<std::string> pages() {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(VELLARK_PAGES)) {
        paths.push_back(entry.path());
    }
    std::sort(paths.begin(), paths.end());
    std::vector<std::string> result;
    for (const auto& path : paths) {
        std::ostringstream text;
        text << std::ifstream(path, std::ios::binary).rdbuf();
        result.push_back(text.str());
    }
    return result;
}

void countBytes(benchmark::State& state, const std::vector<std::string>& texts) {
    std::size_t size = 0;
    for (const std::string& text : texts)
        size += text.size();
    state.SetBytesProcessed(static_cast<std::int64_t>(size) * state.iterations());
}

std::size_t eventCount(std::string_view text) {
    Parser parser(text);
    std::size_t count = 0;
    while (parser.next() != nullptr)
        ++count;
    return count;
}

void parsePages(benchmark::State& state, const std::vector<std::string>& texts) {
    for (auto _ : state) {
        for (const std::string& text : texts)
            benchmark::DoNotOptimize(eventCount(text));
    }
    countBytes(state, texts);
}

void validatePages(benchmark::State& state, const std::vector<std::string>& texts) {
    for (auto _ : state) {
        for (const std::string& text : texts)
            benchmark::DoNotOptimize(vellark::UTF8::isValid(text));
    }
    countBytes(state, texts);
}

// A page of a start and as many repeats of a piece as fit the size.
struct HostilePage {
    const char* name;
    std::string_view start;
    std::string_view piece;
};

constexpr HostilePage hostilePages[] = {
    {"brackets", "", "<"},
    {"comments", "", "<!--"},
    {"dashes", "<!--", "-- "},
    {"ampersands", "", "&"},
    {"numbers", "&#", "9"},
    {"references", "", "&CounterClockwiseContourIntegral"},
    {"attributes", "<a", " a"},
    {"tags", "", "<a "},
    {"names", "", "<a"},
    {"nul-attributes", "", std::string_view("<x\"\0", 4)},
    {"bare-values", "", "<x/c="},
    {"quote-parity", "", "<a b=\">\""},
    {"open-quotes", "", "<a b=\"> <a c='>"},
    {"equals", "<a ", "="},
    {"spaces-in-tags", "", "<a         "},
    {"end-tags", "", "</"},
    {"end-tags-with-spaces", "", "</      "},
    {"sections", "", "<![CDATA["},
    {"conditional-sections", "", "<![if ]"},
    {"instructions", "", "<?"},
    {"declarations", "", "<!x"},
    {"scripts", "", "<script>"},
    {"script-ends", "<script>", "</script "},
    {"slashes", "<a", "/"},
};

std::string made(const HostilePage& page, std::size_t size) {
    std::string text(page.start);
    while (text.size() < size)
        text += page.piece;
    return text;
}

void parseHostile(benchmark::State& state, const HostilePage& page) {
    const std::string text = made(page, static_cast<std::size_t>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(eventCount(text));
    state.SetBytesProcessed(static_cast<std::int64_t>(text.size()) * state.iterations());
}

}  // namespace

int main(int count, char** arguments) {
    const std::vector<std::string> texts = pages();
    if (texts.empty()) {
        std::cerr << "no pages\n";
        return 1;
    }
    benchmark::RegisterBenchmark("ours/pages", parsePages, texts);
    benchmark::RegisterBenchmark("peer/validate-utf8", validatePages, texts);
    for (const HostilePage& page : hostilePages) {
        benchmark::RegisterBenchmark((std::string("ours/hostile/") + page.name).c_str(), parseHostile, page)
            ->RangeMultiplier(2)
            ->Range(1 << 18, 1 << 20);
    }
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
