// The digest of whole documents, facts and conclusion included, beside ICU's character segmentation of the same text
// alone and cmark-gfm's full parse; and of documents made to hurt it, at two sizes.
//
// The ordinary documents are those of the tests, in the folder VELLARK_DOCUMENTS, repeated up to 200,000 bytes.

#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>

#include <benchmark/benchmark.h>
#include <cmark-gfm-core-extensions.h>
#include <cmark-gfm.h>
#include <unicode/brkiter.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

using vellark::DocumentContentFormat;
using vellark::DocumentSummaryExtractor::extract;

constexpr std::size_t documentSize = 200'000;

std::string contentOf(const std::filesystem::path& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

// The documents of one kind, one behind another, up to the size. Where `isASCII` differs from the document, it is left
// out.
std::string collected(std::string_view extension, bool isASCII) {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(VELLARK_DOCUMENTS))
        paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    std::string all;
    for (const auto& path : paths) {
        const std::string text = contentOf(path);
        const auto other = std::count_if(text.begin(), text.end(), [](char byte) { return (byte & 0x80) != 0; });
        const bool isOfKind = path.extension() == extension && text.find("\r\n") == text.npos;
        if (isOfKind && isASCII == (static_cast<std::size_t>(other) * 20 < text.size())) all += text + "\n\n";
    }
    if (all.empty()) return all;
    std::string result;
    while (result.size() < documentSize)
        result += all;
    return result.substr(0, result.find('\n', documentSize));
}

void digest(benchmark::State& state, const std::string& text, const DocumentContentFormat& format) {
    for (auto _ : state)
        benchmark::DoNotOptimize(extract(text, format));
    state.SetBytesProcessed(static_cast<std::int64_t>(text.size()) * state.iterations());
}

void segment(benchmark::State& state, const std::string& text) {
    UErrorCode status = U_ZERO_ERROR;
    const auto units = icu::UnicodeString::fromUTF8(text);
    const std::unique_ptr<icu::BreakIterator> characters(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    for (auto _ : state) {
        characters->setText(units);
        std::size_t count = 0;
        while (characters->next() != icu::BreakIterator::DONE)
            ++count;
        benchmark::DoNotOptimize(count);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(text.size()) * state.iterations());
}

void parseMarkdown(benchmark::State& state, const std::string& text) {
    cmark_gfm_core_extensions_ensure_registered();
    for (auto _ : state) {
        cmark_parser* const parser = cmark_parser_new(CMARK_OPT_DEFAULT);
        for (const char* const name : {"table", "strikethrough", "autolink"})
            cmark_parser_attach_syntax_extension(parser, cmark_find_syntax_extension(name));
        cmark_parser_feed(parser, text.data(), text.size());
        cmark_node_free(cmark_parser_finish(parser));
        cmark_parser_free(parser);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(text.size()) * state.iterations());
}

// A document of a start and as many repeats of a piece as fit the size.
struct HostileDocument {
    const char* name;
    std::string_view start;
    std::string_view piece;
};

constexpr HostileDocument hostileMarkdown[] = {
    {"digits", "", "1"},
    {"digit-lines", "", "1234 "},
    {"brackets", "", "["},
    {"double-brackets", "", "[["},
    {"open-links", "]](", "[[a|"},
    {"link-targets", "", "[a]("},
    {"embeds", "", "![["},
    {"bracket-pairs", "", "[]"},
    {"dollars", "", "$"},
    {"dollar-words", "", "$a "},
    {"dollar-amounts", "", "$1,234 "},
    {"tildes", "", "~"},
    {"tilde-words", "", "~~a~"},
    {"ticks", "", "`"},
    {"stars", "", "*"},
    {"star-lines", "", "*1* "},
    {"underscores", "", "_a"},
    {"angles", "", "<a"},
    {"bars", "", "|"},
    {"total-words", "", "total "},
    {"total-lines", "", "total x 1,000\n"},
    {"totals", "", "total: 1,000\n"},
    {"total-rows", "", "|total|x|1|\n"},
    {"total-cells", "", "|total|1,000|2,000"},
    {"alias-rows", "|", "[[a|b]]|"},
    {"open-alias-rows", "|", "[[a|"},
    {"marked-totals", "", "**total** [x](y) 1,000\n"},
    {"deadline-words", "", "due "},
    {"deadline-lines", "", "due date 2025\n"},
    {"dates-before-words", "", "3일 마감\n"},
    {"dates-in-line", "", "1 2 3 마감"},
    {"parentheses", "total", " ("},
    {"headings", "", "## a\n"},
    {"conclusions", "", "## Conclusion\n"},
    {"conclusion-labels", "", "결론: 미정\n"},
    {"points", "## Conclusion\n\n", "A."},
    {"colons", "", ":"},
    {"list-items", "", "    - a\n"},
    {"numbers-with-points", "", "1.2,3"},
    {"blanks", "", " "},
    {"carriage-returns", "", "a\r\n"},
    {"front-matter", "---\na:\n", "- b\n"},
    {"marks", "a", "\u0301"},
    {"flags", "", "🇰"},
    {"joiners", "", "👩\u200D"},
};

constexpr HostileDocument hostilePages[] = {
    {"tables", "", "<table><tr><td>"},
    {"cells", "<table><tr>", "<td>1,000 "},
    {"paragraphs", "", "<p>a"},
    {"section-heads", "", "<h2>Conclusion</h2>"},
    {"breaks", "", "<br>"},
    {"page-brackets", "<p>", "["},
};

std::string made(const HostileDocument& document, std::size_t size) {
    std::string text(document.start);
    while (text.size() < size)
        text += document.piece;
    return text;
}

void digestHostile(benchmark::State& state, const HostileDocument& document, const DocumentContentFormat& format) {
    digest(state, made(document, static_cast<std::size_t>(state.range(0))), format);
}

template <class Documents>
void registerHostile(const Documents& documents, const DocumentContentFormat& format) {
    for (const HostileDocument& document : documents) {
        benchmark::RegisterBenchmark((std::string("ours/hostile/") + document.name).c_str(), digestHostile, document,
                                     format)
            ->Arg(documentSize / 2)
            ->Arg(documentSize);
    }
}

}  // namespace

int main(int count, char** arguments) {
    const std::string english = collected(".md", true);
    const std::string others = collected(".md", false);
    const std::string pages = collected(".html", true) + collected(".html", false);
    if (english.empty() || others.empty() || pages.empty()) {
        std::cerr << "no documents\n";
        return 1;
    }
    for (const auto& [name, text] : {std::pair("english", &english), std::pair("others", &others)}) {
        const std::string suffix = name;
        benchmark::RegisterBenchmark(("ours/" + suffix).c_str(), digest, *text, DocumentContentFormat::markdown());
        benchmark::RegisterBenchmark(("peer/icu-characters/" + suffix).c_str(), segment, *text);
        benchmark::RegisterBenchmark(("peer/cmark-gfm/" + suffix).c_str(), parseMarkdown, *text);
    }
    const std::string page = pages.substr(0, pages.find('\n', documentSize));
    benchmark::RegisterBenchmark("ours/page", digest, page, DocumentContentFormat::html());
    benchmark::RegisterBenchmark("peer/icu-characters/page", segment, page);
    registerHostile(hostileMarkdown, DocumentContentFormat::markdown());
    registerHostile(hostilePages, DocumentContentFormat::html());
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
