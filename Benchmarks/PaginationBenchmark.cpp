// Pages of a text of 200 MB, beside the least that anyone must do with its bytes: one pass that checks that they are
// UTF-8 and one that counts the line feeds. Then one page by its index, which must not depend on the length of the
// text.
//
// simdjson's validation is the floor where it is installed, our own otherwise.

#include <VellarkDomain/Documents/Pagination/DocumentTextPagination.hpp>
#include <VellarkFoundation/Text/ByteScan.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <benchmark/benchmark.h>
#ifdef VELLARK_HAS_SIMDJSON
#include <simdjson.h>
#endif

#include <functional>
#include <iostream>
#include <string>
#include <string_view>

namespace {

using namespace vellark;

constexpr std::size_t textBytes = 200'000'000;

struct Text {
    const char* name;
    DocumentContentFormat format;
    std::string bytes;
};

std::string repeated(std::string_view piece, std::size_t byteCount) {
    std::string text;
    text.reserve(byteCount + piece.size());
    while (text.size() < byteCount)
        text += piece;
    return text;
}

constexpr std::string_view english =
    "The shelf keeps what the agents write, so that the people who work with them find it again.\n"
    "A document comes in as a file, is read once, and gets a title, a kind and a summary.\n"
    "\n"
    "    if (signal.isComplete) { shelf.add(signal.document); }\n"
    "\n";

constexpr std::string_view korean =
    "보관함은 에이전트가 쓴 문서를 모아 두어, 함께 일하는 사람이 다시 찾을 수 있게 한다.\n"
    "문서는 파일로 들어와 한 번 읽히고 제목과 종류와 요약을 얻는다. The signal is kept as JSON.\n"
    "\n";

constexpr std::string_view markdown =
    "## What the week brought\n"
    "\n"
    "- The `CaptureSignal` of every agent is read by **one** parser, see `HookNormalizer`.\n"
    "- 서명된 요약은 `Summary` 표에 남는다.\n"
    "\n"
    "| subject | ours | floor |\n"
    "|---|---:|---:|\n"
    "| pages | 3,100 | 4,000 |\n"
    "| library | 250 | 44 |\n"
    "\n"
    "```cpp\n"
    "for (const auto& page : pagination.pages) {\n"
    "    show(page.prefix | text(page) | page.suffix);\n"
    "}\n"
    "```\n"
    "\n"
    "A paragraph between the blocks goes on for a line or two, as paragraphs do, and then it ends.\n";

bool isValid(std::string_view text) {
#ifdef VELLARK_HAS_SIMDJSON
    return simdjson::validate_utf8(text.data(), text.size());
#else
    return UTF8::isValid(text);
#endif
}

void setBytes(benchmark::State& state, std::string_view bytes) {
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes.size()) * state.iterations());
}

void makeFromText(benchmark::State& state, const Text& text) {
    for (auto _ : state)
        benchmark::DoNotOptimize(DocumentTextPagination::make(text.bytes, text.format));
    setBytes(state, text.bytes);
}

void makeFromBlocks(benchmark::State& state, const Text& text) {
    for (auto _ : state) {
        std::string_view rest = text.bytes;
        const auto read = [&]() -> Result<std::string_view, std::error_code> {
            const std::string_view block = rest.substr(0, DocumentTextPagination::maximumPageBytes);
            rest.remove_prefix(block.size());
            return block;
        };
        benchmark::DoNotOptimize(DocumentTextPagination::make(text.format, read));
    }
    setBytes(state, text.bytes);
}

void validateAndCount(benchmark::State& state, const Text& text) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(isValid(text.bytes));
        benchmark::DoNotOptimize(ByteScan::count(text.bytes, '\n'));
    }
    setBytes(state, text.bytes);
}

void pageByIndex(benchmark::State& state, const Text& text, std::size_t byteCount) {
    const std::string_view source = std::string_view(text.bytes).substr(0, text.bytes.rfind('\n', byteCount) + 1);
    const auto pagination = DocumentTextPagination::make(source, text.format);
    std::ptrdiff_t index = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(pagination->page(index, source));
        index = (index + 7) % static_cast<std::ptrdiff_t>(pagination->pages.size());
    }
}

// The pages are the whole text, one behind another.
bool areWhole(const Text& text) {
    const auto pagination = DocumentTextPagination::make(text.bytes, text.format);
    if (!pagination || !isValid(text.bytes)) return false;
    std::size_t offset = 0;
    for (const auto& page : pagination->pages) {
        if (page.bytes.begin != offset) return false;
        offset = page.bytes.end;
    }
    return offset == text.bytes.size();
}

}  // namespace

int main(int count, char** arguments) {
    const Text texts[] = {
        {"english", DocumentContentFormat::code("plaintext"), repeated(english, textBytes)},
        {"korean", DocumentContentFormat::code("plaintext"), repeated(korean, textBytes)},
        {"markdown", DocumentContentFormat::markdown(), repeated(markdown, textBytes)},
        {"bars", DocumentContentFormat::markdown(), repeated("a|b\n---|---\n", textBytes / 4)},
        {"backticks", DocumentContentFormat::markdown(), repeated("``\n", textBytes / 4)},
    };
    for (const Text& text : texts) {
        if (!areWhole(text)) {
            std::cerr << "the pages of " << text.name << " are not the text\n";
            return 1;
        }
        const auto registered = [&](const char* what, auto function) {
            benchmark::RegisterBenchmark((std::string(what) + text.name).c_str(), function, std::cref(text))
                ->Unit(benchmark::kMillisecond);
        };
        registered("ours/text/", makeFromText);
        registered("peer/floor/", validateAndCount);
        registered("ours/blocks/", makeFromBlocks);
    }
    for (const std::size_t megabytes : {2, 200}) {
        const std::string name = "ours/page/" + std::to_string(megabytes) + "MB";
        benchmark::RegisterBenchmark(name.c_str(), pageByIndex, std::cref(texts[2]), megabytes * 1'000'000);
    }
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
