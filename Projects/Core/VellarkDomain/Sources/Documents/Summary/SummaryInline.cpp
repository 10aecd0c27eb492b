#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkDomain/Documents/Summary/SummaryBytes.hpp>
#include <VellarkDomain/Documents/Summary/SummaryCandidates.hpp>
#include <VellarkDomain/Documents/Summary/SummaryInline.hpp>
#include <VellarkDomain/Documents/Summary/SummaryLinks.hpp>
#include <VellarkDomain/Documents/Summary/SummaryMarkers.hpp>
#include <VellarkDomain/Documents/Summary/SummaryText.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <algorithm>

namespace vellark {

namespace {

using SummaryBytes::Traits;

// Takes all marks of one kind away, as `+ or \*{1,3} would, without the engine.
void drop(std::string& text, std::string_view mark) {
    if (text.find(mark) != text.npos) text = SummaryText::replacing(text, mark, "");
}

// Puts its label in the place of each piece of markup.
void keepLabels(std::string& text, SummaryLinks::Next next) {
    SummaryLinks::Walk walk(text);
    auto found = (walk.*next)();
    if (!found) return;
    std::string result;
    result.reserve(text.size());
    std::size_t start = 0;
    for (; found; found = (walk.*next)()) {
        result.append(text, start, found->range.start - start);
        result += found->label.of(text);
        start = found->range.end;
    }
    result.append(text, start);
    text = std::move(result);
}

bool isWordASCII(char byte) {
    return (byte >= '0' && byte <= '9') || (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

// A letter or a number by its general category. The scripts that most names are written in are known without asking
// the engine.
bool isWordScalar(std::string_view text, std::size_t offset) {
    if (static_cast<unsigned char>(text[offset]) < 0x80) return isWordASCII(text[offset]);
    const auto decoded = UTF8::decode(text, offset);
    const auto isWithin = [&](char32_t first, char32_t last) {
        return decoded.scalar >= first && decoded.scalar <= last;
    };
    if (isWithin(0xAC00, 0xD7A3) || isWithin(0x4E00, 0x9FFF) || isWithin(0x0400, 0x0481)) return true;
    static const auto word = Regex::compile(R"([\p{L}\p{N}])");
    return word && matchesWhole(*word, text.substr(offset, decoded.byteCount));
}

// The text without the underscores at the edges of words. What stays is one alone between two letters or numbers; of
// several in a row, each has another for a neighbour.
std::string withoutOuterUnderscores(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t mark = std::min(text.find('_', start), text.size());
        result += text.substr(start, mark - start);
        if (mark == text.size()) break;
        const std::size_t end = std::min(text.find_first_not_of('_', mark), text.size());
        const bool isInside = end == mark + 1 && mark > 0 && end < text.size() && isWordScalar(text, end) &&
                              isWordScalar(text, UTF8::previousOffset(text, mark));
        if (isInside) result += '_';
        start = end;
    }
    return result;
}

// What stands between the links of a menu.
bool isLinkSeparator(char32_t scalar) {
    return CharacterClass::isWhitespace(scalar) ||
           std::u32string_view(U"·|/—–-,>•→←").find(scalar) != std::u32string_view::npos;
}

std::string withoutSeparators(std::string_view text) {
    std::string result;
    for (const char32_t scalar : Scalars(text)) {
        if (!isLinkSeparator(scalar)) UTF8::append(result, scalar);
    }
    return result;
}

}  // namespace

namespace SummaryInline {

// The order counts: embeds before links, links before the brackets' content is taken for anything else.
std::string withoutMarkup(std::string text) {
    const Traits traits = SummaryBytes::of(text);
    if ((traits & SummaryBytes::markup) == 0) return text;
    if ((traits & SummaryBytes::squareBracket) != 0) {
        keepLabels(text, &SummaryLinks::Walk::nextEmbed);
        keepLabels(text, &SummaryLinks::Walk::nextWikiLink);
        keepLabels(text, &SummaryLinks::Walk::nextInlineLink);
    }
    if ((traits & SummaryBytes::angleBracket) != 0) keepLabels(text, &SummaryLinks::Walk::nextTag);
    if ((traits & SummaryBytes::tick) != 0) drop(text, "`");
    if ((traits & SummaryBytes::star) != 0) drop(text, "*");
    if ((traits & SummaryBytes::tilde) != 0) drop(text, "~~");
    if ((traits & SummaryBytes::underscore) != 0) text = withoutOuterUnderscores(text);
    return text;
}

std::string headingText(std::string_view line) {
    return DocumentSummaryExtractor::plainInline(SummaryText::trimmed(line, "# \t"));
}

const SummaryExpression& struck() {
    static const SummaryExpression expression(R"(~~[^~]*~~)", SummaryCandidates::struck);
    return expression;
}

}  // namespace SummaryInline

namespace DocumentSummaryExtractor {

std::string plainInline(std::string_view text) {
    if ((SummaryBytes::of(text) & SummaryBytes::markup) == 0) return SummaryText::collapsed(text);
    return SummaryText::collapsed(SummaryInline::withoutMarkup(std::string(text)));
}

std::string plainLine(std::string_view text) {
    return plainInline(text.substr(SummaryMarkers::line(text)));
}

std::optional<std::string_view> listItem(std::string_view text) {
    const std::size_t end = SummaryMarkers::listItem(text);
    if (end == 0) return std::nullopt;
    return text.substr(end);
}

bool isNavigation(std::string_view line) {
    constexpr int linksOfMenu = 3;
    constexpr std::size_t longestRestOfMenu = 20;
    if (!SummaryText::contains(line, "[")) return false;
    SummaryLinks::Walk tokens(line);
    int count = 0;
    std::string rest;
    std::size_t start = 0;
    while (const auto token = tokens.nextToken()) {
        rest += line.substr(start, token->range.start - start);
        start = token->range.end;
        ++count;
    }
    if (count == 0) return false;
    rest = withoutSeparators(rest.append(line.substr(start)));
    return rest.empty() || (count >= linksOfMenu && !GraphemeBreak::exceeds(rest, longestRestOfMenu));
}

}  // namespace DocumentSummaryExtractor

}  // namespace vellark
