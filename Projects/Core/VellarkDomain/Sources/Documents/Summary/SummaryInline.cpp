#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkDomain/Documents/Summary/SummaryCandidates.hpp>
#include <VellarkDomain/Documents/Summary/SummaryInline.hpp>
#include <VellarkDomain/Documents/Summary/SummaryText.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <array>

namespace vellark {

namespace {

namespace Candidates = SummaryCandidates;

struct InlineRule {
    SummaryExpression expression;
    std::string_view replacement;
};

// Takes all marks of one kind away, as `+ or \*{1,3} would, without the engine.
void erase(std::string& text, std::string_view mark) {
    if (text.find(mark) != text.npos) text = SummaryText::replacing(text, mark, "");
}

// The order counts: embeds before links, links before the brackets' content is taken for anything else.
const std::array<InlineRule, 4>& linkRules() {
    static const std::array<InlineRule, 4> rules = {{
        {{R"(!\[\[[^\]]*\]\]|!\[[^\]]*\]\([^)]*\))", Candidates::embed, Candidates::lastRoundBracket}, ""},
        {{R"(\[\[(?:[^\]|]*\|)?([^\]]*)\]\])", Candidates::wikiLink}, "$1"},
        {{R"(\[([^\]]*)\]\([^)]*\))", Candidates::inlineLink, Candidates::lastRoundBracket}, "$1"},
        {{R"(</?[A-Za-z][^>]*>)", Candidates::tag, Candidates::lastAngleBracket}, ""},
    }};
    return rules;
}

// Underscores that stand at the edge of a word; those inside a name stay.
const SummaryExpression& outerUnderscore() {
    static const SummaryExpression expression(R"((?<![\p{L}\p{N}])_{1,3}|_{1,3}(?![\p{L}\p{N}]))",
                                              Candidates::underscore);
    return expression;
}

const SummaryExpression& lineMarker() {
    static const SummaryExpression expression(R"(^\s*(?:#{1,6}\s+|>+\s*|(?:[-*+]|\d+[.)])\s+(?:\[.\]\s*)?))",
                                              Candidates::lineMark);
    return expression;
}

const SummaryExpression& itemMarker() {
    static const SummaryExpression expression(R"(^(?:[-*+]|\d+[.)])\s+(?:\[.\]\s*)?)", Candidates::itemMark);
    return expression;
}

const SummaryExpression& linkToken() {
    static const SummaryExpression expression(R"(!?\[\[[^\]]*\]\]|!?\[[^\]]*\]\([^)]*\))", Candidates::linkToken,
                                              Candidates::lastRoundBracket);
    return expression;
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

std::string withoutMarkup(std::string text) {
    for (const InlineRule& rule : linkRules())
        replaceMatches(rule.expression, text, rule.replacement);
    for (const std::string_view mark : {"`", "*", "~~"})
        erase(text, mark);
    replaceMatches(outerUnderscore(), text, "");
    return text;
}

std::string headingText(std::string_view line) {
    return DocumentSummaryExtractor::plainInline(SummaryText::trimmed(line, "# \t"));
}

const SummaryExpression& struck() {
    static const SummaryExpression expression(R"(~~[^~]*~~)", Candidates::struck);
    return expression;
}

}  // namespace SummaryInline

namespace DocumentSummaryExtractor {

std::string plainInline(std::string_view text) {
    return SummaryText::collapsed(SummaryInline::withoutMarkup(std::string(text)));
}

std::string plainLine(std::string_view text) {
    const auto marker = firstMatch(lineMarker(), SummarySubject(text));
    return plainInline(marker ? text.substr(marker->end) : text);
}

std::optional<std::string_view> listItem(std::string_view text) {
    const auto marker = firstMatch(itemMarker(), SummarySubject(text));
    if (!marker) return std::nullopt;
    return text.substr(marker->end);
}

bool isNavigation(std::string_view line) {
    constexpr int linksOfMenu = 3;
    constexpr std::size_t longestRestOfMenu = 20;
    if (!SummaryText::contains(line, "[")) return false;
    const SummarySubject subject(line);
    SummaryMatches tokens(linkToken(), subject);
    int count = 0;
    std::string rest;
    std::size_t start = 0;
    while (const auto token = tokens.next()) {
        rest += line.substr(start, token->start - start);
        start = token->end;
        ++count;
    }
    if (count == 0) return false;
    rest = withoutSeparators(rest.append(line.substr(start)));
    return rest.empty() || (count >= linksOfMenu && !GraphemeBreak::exceeds(rest, longestRestOfMenu));
}

}  // namespace DocumentSummaryExtractor

}  // namespace vellark
