#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkDomain/Documents/Summary/FactPattern.hpp>
#include <VellarkDomain/Documents/Summary/SummaryText.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <algorithm>
#include <array>

namespace vellark::DocumentSummaryExtractor {

namespace {

// A sentence that ends before this character says too little to stand alone.
constexpr std::size_t shortestSentence = 60;

// The end of the last full sentence of the head, in bytes; 0 when none is long enough.
std::size_t sentenceEnd(std::string_view head, std::size_t floor) {
    constexpr auto marks = std::to_array<std::string_view>({". ", "? ", "! ", "。"});
    std::size_t end = 0;
    for (const std::string_view mark : marks) {
        const std::size_t last = SummaryText::findLast(head, mark);
        if (last != head.npos && last > floor) end = std::max(end, last + mark.size());
    }
    return end;
}

std::size_t nextMatchEnd(RegexMatcher& matcher, std::size_t position) {
    while (matcher.find() == RegexOutcome::match) {
        const ByteRange found = matcher.range();
        if (found.start < position && found.end > position) return found.end;
    }
    return 0;
}

// The offset behind the value that the cut would split, by the characters of the text.
std::optional<std::size_t> valueEnd(std::size_t crossing, const Graphemes& characters) {
    constexpr std::size_t before = 24;
    constexpr std::size_t windowLength = 48;
    const auto& guard = FactPattern::shared().cutGuard;
    if (!guard) return std::nullopt;
    const std::size_t start = crossing - std::min(crossing, before);
    const Graphemes window(characters.slice(start, start + windowLength));
    const RegexText text(window.text());
    RegexMatcher matcher(*guard, text);
    const std::size_t end = nextMatchEnd(matcher, window.byteOffset(crossing - start));
    if (end == 0) return std::nullopt;
    return start + window.roundedUp(end);
}

}  // namespace

std::optional<std::size_t> valueEnd(std::size_t crossing, std::string_view text) {
    return valueEnd(crossing, Graphemes(text));
}

std::string cut(std::string_view text, std::size_t limit) {
    const Graphemes characters(text);
    if (!characters.exceeds(limit)) return std::string(text);
    const std::string_view head = characters.prefix(limit);
    const std::size_t sentence = sentenceEnd(head, characters.byteOffset(std::min(limit, shortestSentence)));
    if (sentence > 0) return std::string(Whitespace::trimmed(head.substr(0, sentence)));

    const std::string_view kept = characters.prefix(valueEnd(limit, characters).value_or(limit));
    if (kept.size() == text.size()) return std::string(text);
    return std::string(Whitespace::trimmed(kept)) + "…";
}

}  // namespace vellark::DocumentSummaryExtractor
