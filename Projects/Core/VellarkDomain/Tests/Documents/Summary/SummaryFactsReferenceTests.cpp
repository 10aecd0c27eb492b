#include "Support/RandomInput.hpp"
#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkDomain/Documents/Summary/FactPattern.hpp>
#include <VellarkDomain/Documents/Summary/FactValues.hpp>
#include <VellarkDomain/Documents/Summary/SummaryInline.hpp>
#include <VellarkDomain/Documents/Summary/SummaryText.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

// The facts taken the plain way: every line from front to back, all three kinds at once, no test in front of any
// expression. The fast way must give the same.

namespace vellark {
namespace {

namespace Extractor = DocumentSummaryExtractor;
using MaybeText = std::optional<std::string>;

const FactPattern& pattern() {
    return FactPattern::shared();
}

std::vector<std::string> allMatches(const SummaryExpression& expression, const std::string& text) {
    std::vector<std::string> result;
    const RegexText prepared(text);
    RegexMatcher matcher(*expression.regex(), prepared);
    while (matcher.find() == RegexOutcome::match)
        result.emplace_back(matcher.string());
    return result;
}

MaybeText first(const SummaryExpression& expression, const std::string& text) {
    const auto found = allMatches(expression, text);
    if (found.empty()) return std::nullopt;
    return found.front();
}

std::string replaced(const SummaryExpression& expression, const std::string& text, const std::string& with) {
    std::string result;
    std::size_t start = 0;
    const RegexText prepared(text);
    RegexMatcher matcher(*expression.regex(), prepared);
    while (matcher.find() == RegexOutcome::match) {
        result += text.substr(start, matcher.range().start - start);
        result += with == "$1" ? std::string(matcher.groupString(1).value_or("")) : with;
        start = matcher.range().end;
    }
    return result + text.substr(start);
}

std::string plainified(const std::string& text) {
    const std::string unstruck = replaced(SummaryInline::struck(), text, "");
    const std::string plain = Extractor::plainLine(replaced(pattern().multiplication, unstruck, "\uE000"));
    return SummaryText::replacing(plain, "\uE000", "*");
}

std::string unmarked(std::string text) {
    std::erase_if(text, [](char byte) { return byte == '*' || byte == '_'; });
    return text;
}

std::string cleaned(const std::string& text) {
    return replaced(pattern().notValueText, text, "");
}

struct LineFact {
    MaybeText total;
    MaybeText amount;
    MaybeText deadline;
};

MaybeText totalValue(const std::string& text) {
    const Graphemes characters(text);
    const RegexText prepared(text);
    RegexMatcher matcher(*pattern().totalValue.regex(), prepared);
    for (int count = 0; count < 16 && matcher.find() == RegexOutcome::match; ++count) {
        const std::size_t place = characters.characterAt(matcher.range().start);
        const std::size_t start = characters.byteOffset(place < 120 ? 0 : place - 120);
        const std::string before = text.substr(start, matcher.range().start - start);
        if (first(pattern().totalLabel, before)) return std::string(matcher.string());
    }
    if (!first(pattern().totalStart, text)) return std::nullopt;
    return first(pattern().amount, text);
}

LineFact lineFact(const std::string& line) {
    for (const char* mark : {"#", "<", "![", "%%", "|"}) {
        if (GraphemeBreak::startsWith(line, mark)) return {};
    }
    const std::string value = cleaned(line);
    const std::string bare = unmarked(value);
    if (!first(pattern().totalValue, bare) && !first(pattern().deadlineLine, bare)) return {};
    if (Extractor::isNavigation(line)) return {};
    const std::string text = plainified(value);
    const std::string display = plainified(line);
    const auto fitted = [&](const MaybeText& found) {
        return found ? MaybeText(FactValues::fitted(display, *found)) : std::nullopt;
    };
    return {fitted(totalValue(text)), fitted(first(pattern().amount, text)),
            fitted(first(pattern().deadlineLine, text))};
}

LineFact rowFact(const std::vector<std::string>& cells) {
    std::vector<std::string> values;
    std::vector<std::string> plain;
    for (const std::string& cell : cells) {
        values.push_back(cleaned(cell));
        plain.push_back(plainified(cell));
    }
    const bool isDeadline = first(pattern().deadlineCell, unmarked(cells[0])).has_value();
    const auto hasValue = [&](const std::string& value) { return first(pattern().totalValue, value).has_value(); };
    if (!isDeadline && std::none_of(values.begin(), values.end(), hasValue)) return {};

    LineFact fact;
    for (std::size_t label = 0; label + 1 < plain.size(); ++label) {
        if (!first(pattern().totalLabel, plain[label])) continue;
        std::vector<std::string> found;
        for (std::size_t index = label + 1; index < values.size(); ++index) {
            if (hasValue(values[index])) found.push_back(plain[index]);
        }
        if (!found.empty()) {
            const std::string value = first(pattern().totalValue, found.back()).value_or(found.back());
            std::string text = plain[label] + ": " + SummaryText::joined(found, " · ");
            if (GraphemeBreak::exceeds(text, 120)) text = plain[label] + ": " + found.back();
            fact.total = FactValues::fitted(text, value);
        }
        break;
    }
    for (std::size_t index = 0; index < cells.size() && !fact.total; ++index)
        fact.total = lineFact(cells[index]).total;

    std::vector<std::string> filled = plain;
    std::erase(filled, "");
    const std::string rowText = SummaryText::joined(filled, " · ");
    for (std::size_t index = 0; index < values.size() && !fact.amount; ++index) {
        if (const auto found = first(pattern().amount, values[index]))
            fact.amount = FactValues::fitted(rowText, *found);
    }
    MaybeText due;
    for (std::size_t index = 1; index < cells.size() && !due; ++index) {
        const RegexText cell(cells[index]);
        RegexMatcher number(*pattern().number, cell);
        if (number.find() == RegexOutcome::match) due = std::string(number.string());
    }
    for (std::size_t index = 1; index < cells.size() && !due; ++index) {
        if (SummaryText::contains(cells[index], "요일")) due = cells[index];
    }
    if (isDeadline && due) fact.deadline = FactValues::fitted(rowText, *due);
    return fact;
}

LineFact anyFact(const std::string& line) {
    if (!GraphemeBreak::startsWith(line, "|")) return lineFact(line);
    const bool hasAlias = SummaryText::contains(line, "]]");
    const std::string row = hasAlias ? replaced(pattern().wikiAlias, line, "$1") : line;
    std::vector<std::string> cells;
    for (const std::string_view piece : SummaryText::split(row, "|")) {
        const std::string_view cell = Whitespace::trimmed(piece);
        if (!cell.empty()) cells.emplace_back(cell);
    }
    if (cells.size() >= 2) return rowFact(cells);
    return lineFact(cells.empty() ? line : cells[0]);
}

std::vector<std::string> plainFacts(const std::string& text) {
    const auto lines = SummaryText::lines(text);
    std::vector<std::string> candidates;
    MaybeText amount;
    MaybeText deadline;
    for (const std::string_view line : Extractor::proseLines(lines, true, true)) {
        const LineFact fact = anyFact(std::string(Whitespace::trimmed(line)));
        if (fact.total) candidates.push_back(*fact.total);
        if (!amount) amount = fact.amount;
        if (!deadline) deadline = fact.deadline;
    }
    if (candidates.size() > 2) candidates.erase(candidates.begin(), candidates.end() - 2);
    if (candidates.empty() && amount) candidates.push_back(*amount);
    if (deadline) candidates.push_back(*deadline);
    std::vector<std::string> result;
    for (const std::string& candidate : candidates) {
        if (result.size() < 2 && !Extractor::isFact(candidate, SummaryText::joined(result, " "))) {
            result.push_back(candidate);
        }
    }
    return result;
}

TEST(SummaryFacts, agreeWithThePlainWay) {
    const std::vector<std::string> pieces = {"total",
                                             "Total: ",
                                             "합계",
                                             "총 금액은 ",
                                             "итого ",
                                             "Gesamt",
                                             "to",
                                             "tal",
                                             "subtotal ",
                                             "마감: ",
                                             "3월 5일",
                                             " 마감",
                                             "due ",
                                             "Deadline: ",
                                             "by Friday",
                                             "기한",
                                             "$1,200",
                                             "$5",
                                             "1,234",
                                             "5000",
                                             "2025",
                                             "12.5",
                                             "1",
                                             "00",
                                             "50 달러",
                                             "만 원",
                                             "원",
                                             "명",
                                             " files",
                                             "€",
                                             "USD ",
                                             "x",
                                             "word ",
                                             "가 ",
                                             ". ",
                                             ": ",
                                             " = ",
                                             "*",
                                             "**",
                                             "_",
                                             "`",
                                             "~~",
                                             "[",
                                             "](",
                                             ")",
                                             "[[",
                                             "|",
                                             "]]",
                                             " | ",
                                             "| ",
                                             "<b>",
                                             "</b>",
                                             "$",
                                             "https://",
                                             " ",
                                             " ",
                                             "\n",
                                             "\n",
                                             "\n",
                                             "\n| ",
                                             "\n- ",
                                             "\n# ",
                                             "\n    ",
                                             "요일",
                                             "long text that goes on for a while so that the line has to be fitted, "
                                             "and on, and on, until it is long enough "};
    std::size_t withFacts = 0;
    for (const std::string& text : testing::randomTexts(21, 12'000, 24, pieces)) {
        const auto expected = plainFacts(text);
        withFacts += expected.empty() ? 0 : 1;
        ASSERT_EQ(Extractor::facts(SummaryText::lines(text), true, true), expected) << text;
    }
    EXPECT_GT(withFacts, 2'000U);
}

}  // namespace
}  // namespace vellark
