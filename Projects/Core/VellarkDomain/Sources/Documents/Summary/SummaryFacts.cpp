#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkDomain/Documents/Summary/FactCandidates.hpp>
#include <VellarkDomain/Documents/Summary/FactPattern.hpp>
#include <VellarkDomain/Documents/Summary/FactValues.hpp>
#include <VellarkDomain/Documents/Summary/SummaryBytes.hpp>
#include <VellarkDomain/Documents/Summary/SummaryFacts.hpp>
#include <VellarkDomain/Documents/Summary/SummaryInline.hpp>
#include <VellarkDomain/Documents/Summary/SummaryMarkers.hpp>
#include <VellarkDomain/Documents/Summary/SummaryText.hpp>
#include <VellarkDomain/Documents/Summary/TotalLabel.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <algorithm>
#include <array>
#include <cstdint>

// A document's grand total stands at its end, and only the last two totals are shown; so totals are looked for from the
// end, and due dates and amounts from the start, each no further than to the ones that count. `mayHold` keeps lines
// that cannot state such a fact off the expressions: it sees each byte of most lines once and takes nothing apart.

namespace vellark {

namespace {

using FactValues::fitted;
using SummaryBytes::Traits;
using SummaryText::startsWith;

enum class FactKind : std::uint8_t { total = 1, amount = 2, deadline = 4 };

constexpr auto allKinds = {FactKind::total, FactKind::amount, FactKind::deadline};

constexpr std::string_view timesSign = "\uE000";  // stands for a star that must outlive the emphasis

const FactPattern& pattern() {
    return FactPattern::shared();
}

std::string_view clipped(std::string_view line) {
    constexpr std::size_t longestLine = 4'000;
    if (line.size() <= longestLine) return line;
    const std::string_view kept = GraphemeBreak::prefix(line, longestLine);
    if (kept.size() == line.size()) return line;
    std::size_t end = kept.size();
    std::size_t numberStart = end;
    bool isNumber = true;
    while (end > 0) {
        end = UTF8::previousOffset(kept, end);
        const char32_t scalar = UTF8::decode(kept, end).scalar;
        if (CharacterClass::isWhitespace(scalar) && SummaryText::isBoundary(kept, end)) return kept.substr(0, end);
        isNumber = isNumber && (CharacterClass::isDecimalDigit(scalar) || scalar == U',' || scalar == U'.');
        if (isNumber) numberStart = end;
    }
    return kept.substr(0, numberStart);
}

// The text without "*" and "_".
std::string unmarked(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = SummaryBytes::findAny(text, SummaryBytes::emphasis, start);
        result += text.substr(start, end - start);
        if (end == text.size()) break;
        if (!SummaryText::isBoundary(text, end) || !SummaryText::isBoundary(text, end + 1)) result += text[end];
        start = end + 1;
    }
    return result;
}

bool hasEmphasis(std::string_view text) {
    return SummaryBytes::findAny(text, SummaryBytes::emphasis) < text.size();
}

// The text without what is no value: code, links, struck text, mathematics.
std::string valueText(std::string_view text) {
    constexpr Traits marks = SummaryBytes::tick | SummaryBytes::slash | SummaryBytes::tilde | SummaryBytes::dollar;
    std::string result(text);
    if ((SummaryBytes::of(text) & marks) != 0) replaceMatches(pattern().notValueText, result, "");
    return result;
}

std::string plainified(std::string_view text) {
    const Traits traits = SummaryBytes::of(text);
    std::string result(text);
    if ((traits & SummaryBytes::tilde) != 0) replaceMatches(SummaryInline::struck(), result, "");
    const bool hasTimes =
        (traits & SummaryBytes::star) != 0 && replaceMatches(pattern().multiplication, result, timesSign);
    result = DocumentSummaryExtractor::plainLine(result);
    if (!hasTimes && result.find(timesSign) == std::string::npos) return result;
    return SummaryText::replacing(result, timesSign, "*");
}

// Markup whose removal may bring letters or digits together that stood apart.
bool hasHardMarkup(std::string_view line, Traits traits) {
    if ((traits & (SummaryBytes::squareBracket | SummaryBytes::angleBracket | SummaryBytes::tick)) != 0) return true;
    if ((traits & SummaryBytes::tilde) != 0 && line.find("~~") != line.npos) return true;
    if ((traits & SummaryBytes::slash) != 0 && line.find("://") != line.npos) return true;
    if ((traits & SummaryBytes::dollar) == 0) return false;
    return line.find('$', line.find('$') + 1) != line.npos;
}

// A line of the document, and what is known of it.
struct FactLine {
    std::string_view text;
    Traits traits;
    bool hasHardMarkup;
    std::uint8_t refusedKinds = 0;  // what a search found that it cannot state

    explicit FactLine(std::string_view line)
        : text(clipped(line)), traits(SummaryBytes::of(text)), hasHardMarkup(vellark::hasHardMarkup(text, traits)) {
        // Every sum has a digit, and nothing that is taken away from a line leaves one that was not there.
        if ((traits & SummaryBytes::digit) == 0) refuse(FactKind::total), refuse(FactKind::amount);
    }

    void refuse(FactKind kind) { refusedKinds = static_cast<std::uint8_t>(refusedKinds | bit(kind)); }
    [[nodiscard]] bool refuses(FactKind kind) const { return (refusedKinds & bit(kind)) != 0; }

    /// Whether there is nothing to take away but white space.
    [[nodiscard]] bool isPlain() const {
        constexpr Traits marks = SummaryBytes::markup | SummaryBytes::slash | SummaryBytes::dollar;
        return (traits & marks) == 0 && SummaryMarkers::line(text) == 0 && text.find(timesSign) == text.npos;
    }

private:
    static std::uint8_t bit(FactKind kind) { return static_cast<std::uint8_t>(kind); }
};

bool mayHoldValue(std::string_view text, FactKind kind) {
    switch (kind) {
        case FactKind::total:
            return FactCandidates::totalWord(text, 0) != text.npos && FactCandidates::value(text, 0) != text.npos;
        case FactKind::amount:
            return FactCandidates::amount(text, 0) != text.npos;
        case FactKind::deadline:
            return FactCandidates::deadlineWord(text, 0) != text.npos;
    }
    return true;
}

// False when the line cannot state such a fact. Emphasis that goes brings digits together ("1**2**3"), so a line with
// any is judged by its words alone.
bool mayHold(const FactLine& line, FactKind kind) {
    if (line.refuses(kind)) return false;
    if (line.hasHardMarkup) return true;
    if ((line.traits & SummaryBytes::emphasis) == 0) return mayHoldValue(line.text, kind);
    const std::string bare = unmarked(line.text);
    switch (kind) {
        case FactKind::total:
            return FactCandidates::totalWord(bare, 0) != bare.npos;
        case FactKind::amount:
            return FactCandidates::value(bare, 0) != bare.npos || mayHoldValue(bare, FactKind::deadline);
        case FactKind::deadline:
            return mayHoldValue(bare, kind);
    }
    return true;
}

// As `mayHold`, for a table row: its cells are searched for money with their emphasis.
bool mayHoldInRow(const FactLine& row, FactKind kind) {
    if (kind != FactKind::amount || row.hasHardMarkup || row.refuses(kind)) return mayHold(row, kind);
    return mayHoldValue(row.text, kind);
}

bool endsInTotalLabel(std::string_view text) {
    return TotalLabel::mayEnd(text) && matches(pattern().totalLabel, text);
}

// Whether some number may have a total label before it; asked before any number is taken apart.
bool mayHoldTotal(std::string_view text) {
    if (FactCandidates::totalWord(text, 0) == text.npos) return false;
    const bool mayStart = FactCandidates::totalWordAtStart(text, 0) == 0;
    if (mayStart && (text.find(':') != text.npos || text.find('=') != text.npos || text.find("：") != text.npos))
        return true;
    std::size_t value = FactCandidates::value(text, 0);
    while (value != text.npos && !TotalLabel::mayEnd(text.substr(0, value)))
        value = FactCandidates::value(text, value + 1);
    return value != text.npos;
}

std::optional<std::string_view> firstIn(const SummaryExpression& expression, const SummarySubject& subject) {
    const auto match = firstMatch(expression, subject);
    if (!match) return std::nullopt;
    return match->of(subject.text());
}

std::optional<std::string_view> totalValue(const SummarySubject& subject) {
    constexpr int maximumCandidates = 16;
    constexpr std::size_t labelLength = 120;
    const std::string_view text = subject.text();
    if (!mayHoldTotal(text)) return std::nullopt;
    const Graphemes characters(text);
    SummaryMatches values(pattern().totalValue, subject);
    for (int count = 0; count < maximumCandidates; ++count) {
        const auto value = values.next();
        if (!value) break;
        const std::size_t place = characters.characterAt(value->start);
        const std::size_t start = characters.byteOffset(place - std::min(place, labelLength));
        if (endsInTotalLabel(text.substr(start, value->start - start))) return value->of(text);
    }
    if (!matches(pattern().totalStart, subject)) return std::nullopt;
    return firstIn(pattern().amount, subject);
}

std::optional<std::string_view> valueOf(FactKind kind, const SummarySubject& subject) {
    switch (kind) {
        case FactKind::total:
            return totalValue(subject);
        case FactKind::amount:
            return firstIn(pattern().amount, subject);
        case FactKind::deadline:
            return firstIn(pattern().deadlineLine, subject);
    }
    return std::nullopt;
}

bool startsOtherBlock(std::string_view line) {
    constexpr auto marks = std::to_array<std::string_view>({"#", "<", "![", "%%", "|"});
    if (line.empty() || std::string_view("#<!%|").find(line.front()) == line.npos) return false;
    return std::any_of(marks.begin(), marks.end(), [&](std::string_view mark) { return startsWith(line, mark); });
}

bool statesAnything(std::string_view bare) {
    const SummarySubject subject(bare);
    return matches(pattern().totalValue, subject) || matches(pattern().deadlineLine, subject);
}

std::optional<std::string> lineFact(FactLine& line, FactKind kind) {
    if (!mayHold(line, kind) || startsOtherBlock(line.text)) return std::nullopt;
    if (line.isPlain()) {
        const std::string plain = SummaryText::collapsed(line.text);
        const SummarySubject subject(plain);
        const auto value = valueOf(kind, subject);
        if (!value || !statesAnything(line.text)) return std::nullopt;
        return fitted(plain, *value);
    }
    const std::string cleaned = valueText(line.text);
    const std::string plain = plainified(cleaned);
    if (line.hasHardMarkup) {
        for (const FactKind other : allKinds) {
            if (!mayHoldValue(plain, other)) line.refuse(other);
        }
        if (line.refuses(kind)) return std::nullopt;
    }
    const SummarySubject subject(plain);
    const auto value = valueOf(kind, subject);
    if (!value || DocumentSummaryExtractor::isNavigation(line.text)) return std::nullopt;
    if (!statesAnything(hasEmphasis(cleaned) ? unmarked(cleaned) : cleaned)) return std::nullopt;
    return fitted(cleaned == line.text ? plain : plainified(line.text), *value);
}

// A row of a table, its cells cleaned once.
class Row {
public:
    explicit Row(std::vector<std::string_view> cells) : cells_(std::move(cells)) {
        for (const std::string_view cell : cells_) {
            values_.push_back(valueText(cell));
            plain_.push_back(plainified(cell));
        }
    }

    [[nodiscard]] std::optional<std::string> fact(FactKind kind) const {
        const bool isDeadline = matches(pattern().deadlineCell, unmarked(cells_.front()));
        if (!isDeadline && !std::any_of(values_.begin(), values_.end(), hasTotalValue)) return std::nullopt;
        switch (kind) {
            case FactKind::total:
                return total();
            case FactKind::amount:
                return amount();
            case FactKind::deadline:
                return isDeadline ? deadline() : std::nullopt;
        }
        return std::nullopt;
    }

private:
    static bool hasTotalValue(std::string_view value) { return matches(pattern().totalValue, value); }

    [[nodiscard]] std::optional<std::string> total() const {
        const auto label = std::find_if(plain_.begin(), plain_.end() - 1, endsInTotalLabel);
        if (label != plain_.end() - 1) {
            if (auto found = totalBehind(static_cast<std::size_t>(label - plain_.begin()))) return found;
        }
        for (const std::string_view cell : cells_) {
            FactLine line(cell);
            if (auto found = lineFact(line, FactKind::total)) return found;
        }
        return std::nullopt;
    }

    [[nodiscard]] std::optional<std::string> totalBehind(std::size_t label) const {
        std::vector<std::string> found;
        for (std::size_t index = label + 1; index < values_.size(); ++index) {
            if (hasTotalValue(values_[index])) found.push_back(plain_[index]);
        }
        if (found.empty()) return std::nullopt;
        const std::string& last = found.back();
        const SummarySubject subject(last);
        const std::string_view value = firstIn(pattern().totalValue, subject).value_or(last);
        std::string text = plain_[label] + ": " + SummaryText::joined(found, " · ");
        if (GraphemeBreak::exceeds(text, FactValues::factLength)) text = plain_[label] + ": " + last;
        return fitted(text, value);
    }

    [[nodiscard]] std::optional<std::string> amount() const {
        for (const std::string& value : values_) {
            const SummarySubject subject(value);
            if (const auto found = firstIn(pattern().amount, subject)) return fitted(text(), *found);
        }
        return std::nullopt;
    }

    [[nodiscard]] std::optional<std::string> deadline() const {
        if (const auto& number = pattern().number) {
            for (std::size_t index = 1; index < cells_.size(); ++index) {
                const RegexText cell(cells_[index]);
                RegexMatcher matcher(*number, cell);
                if (matcher.find() == RegexOutcome::match) return fitted(text(), matcher.string());
            }
        }
        for (std::size_t index = 1; index < cells_.size(); ++index) {
            if (SummaryText::contains(cells_[index], "요일")) return fitted(text(), cells_[index]);
        }
        return std::nullopt;
    }

    [[nodiscard]] std::string text() const {
        std::vector<std::string> filled = plain_;
        std::erase_if(filled, [](const std::string& cell) { return cell.empty(); });
        return SummaryText::joined(filled, " · ");
    }

    std::vector<std::string_view> cells_;
    std::vector<std::string> values_;
    std::vector<std::string> plain_;
};

std::vector<std::string_view> tableCells(std::string_view row) {
    std::vector<std::string_view> cells;
    for (const std::string_view piece : SummaryText::split(row, "|")) {
        const std::string_view cell = SummaryText::trimmed(piece);
        if (!cell.empty()) cells.push_back(cell);
    }
    return cells;
}

std::optional<std::string> tableFact(const FactLine& line, FactKind kind) {
    if (!mayHoldInRow(line, kind)) return std::nullopt;
    std::string row(line.text);
    if (SummaryText::contains(row, "]]")) replaceMatches(pattern().wikiAlias, row, "$1");
    auto cells = tableCells(row);
    if (cells.empty()) return std::nullopt;
    if (cells.size() > 1) return Row(std::move(cells)).fact(kind);
    FactLine cell(cells.front());
    return lineFact(cell, kind);
}

// The lines of a document but for its headings, which several searches go through.
class FactSearch {
public:
    explicit FactSearch(DocumentSummaryExtractor::Lines prose) {
        lines_.reserve(prose.size());
        for (const std::string_view line : prose) {
            const std::string_view trimmed = SummaryText::trimmed(line);
            if (!trimmed.empty() && !startsWith(trimmed, "#")) lines_.emplace_back(trimmed);
        }
    }

    std::optional<std::string> first(FactKind kind) {
        for (FactLine& line : lines_) {
            if (auto fact = factOf(line, kind)) return fact;
        }
        return std::nullopt;
    }

    std::vector<std::string> lastTotals(std::size_t maximumCount) {
        std::vector<std::string> totals;
        for (auto line = lines_.rbegin(); line != lines_.rend() && totals.size() < maximumCount; ++line) {
            if (auto total = factOf(*line, FactKind::total)) totals.insert(totals.begin(), std::move(*total));
        }
        return totals;
    }

private:
    static std::optional<std::string> factOf(FactLine& line, FactKind kind) {
        return startsWith(line.text, "|") ? tableFact(line, kind) : lineFact(line, kind);
    }

    std::vector<FactLine> lines_;
};

}  // namespace

std::vector<std::string> SummaryFacts::factsOf(DocumentSummaryExtractor::Lines prose) {
    constexpr std::size_t maximumCount = 2;
    FactSearch search(prose);
    std::vector<std::string> candidates = search.lastTotals(maximumCount);
    if (candidates.empty()) {
        if (auto amount = search.first(FactKind::amount)) candidates.push_back(std::move(*amount));
    }
    if (auto deadline = search.first(FactKind::deadline)) candidates.push_back(std::move(*deadline));

    std::vector<std::string> result;
    for (std::string& candidate : candidates) {
        if (result.size() == maximumCount) break;
        if (DocumentSummaryExtractor::isFact(candidate, SummaryText::joined(result, " "))) continue;
        result.push_back(std::move(candidate));
    }
    return result;
}

std::vector<std::string> DocumentSummaryExtractor::facts(Lines lines, bool markdown, bool isComplete) {
    return SummaryFacts::factsOf(proseLines(lines, markdown, isComplete));
}

}  // namespace vellark
