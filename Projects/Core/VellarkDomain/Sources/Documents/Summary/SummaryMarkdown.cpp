#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkDomain/Documents/Summary/SummaryCandidates.hpp>
#include <VellarkDomain/Documents/Summary/SummaryInline.hpp>
#include <VellarkDomain/Documents/Summary/SummaryMarkdown.hpp>
#include <VellarkDomain/Documents/Summary/SummaryText.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <algorithm>
#include <array>

namespace vellark {

namespace DocumentSummaryExtractor {

namespace {

using SummaryText::startsWith;

bool isFence(std::string_view trimmed) {
    return startsWith(trimmed, "```") || startsWith(trimmed, "~~~");
}

// Blocks that are no paragraph: headings, tables, quotes, HTML, rules, images, comments.
bool startsOtherBlock(std::string_view trimmed) {
    constexpr auto marks = std::to_array<std::string_view>({"#", "|", ">", "<", "---", "***", "___", "![", "%%"});
    if (std::string_view("#|><-*_!%").find(trimmed.front()) == std::string_view::npos) return false;
    return std::any_of(marks.begin(), marks.end(), [&](std::string_view mark) { return startsWith(trimmed, mark); });
}

const SummaryExpression& headingStart() {
    static const SummaryExpression expression(R"(^#{1,6}\s+\S)", SummaryCandidates::headingMark);
    return expression;
}

constexpr std::size_t maximumItemCount = 3;

// The first paragraph or list, gathered line by line.
class Opening {
public:
    /// False when no further line can change what is gathered.
    bool addItem(std::string_view item) {
        hasItems_ = true;
        std::string text = plainInline(item);
        if (!text.empty()) items_.push_back(std::move(text));
        return items_.size() < maximumItemCount;
    }

    void addLine(std::string_view line) {
        if (lineCount_++ > 0) paragraph_ += ' ';
        paragraph_ += plainInline(line);
    }

    [[nodiscard]] bool hasItems() const { return hasItems_; }
    [[nodiscard]] std::size_t lineCount() const { return lineCount_; }

    [[nodiscard]] Prose take() {
        if (lineCount_ > 0) return {std::move(paragraph_), {}};
        return {SummaryText::joined(items_, " · "), std::move(items_)};
    }

private:
    std::string paragraph_;
    std::size_t lineCount_ = 0;
    std::vector<std::string> items_;
    bool hasItems_ = false;
};

// The fence that the lines so far have left open.
class OpenFence {
public:
    /// Whether the line, its white space trimmed, is a fence; if so, it opens or closes one.
    bool takes(std::string_view trimmed) {
        if (!isFence(trimmed)) return false;
        const std::string_view run = trimmed.substr(0, runLength(trimmed));
        if (marker_.empty()) {
            marker_ = run;
        } else if (run.starts_with(marker_) && run.size() == trimmed.size()) {
            marker_ = {};
        }
        return true;
    }

    [[nodiscard]] bool isOpen() const { return !marker_.empty(); }

private:
    // Bytes of the characters at the start that are all the first one.
    static std::size_t runLength(std::string_view trimmed) {
        const std::size_t end = std::min(trimmed.find_first_not_of(trimmed.front()), trimmed.size());
        return SummaryText::isBoundary(trimmed, end) ? end : end - 1;
    }

    std::string_view marker_;
};

bool isIndentedCode(std::string_view line, std::string_view trimmed) {
    if (!startsWith(line, "    ") && !startsWith(line, "\t")) return false;
    return !listItem(trimmed) && !startsWith(trimmed, "|");
}

}  // namespace

std::optional<int> headingLevel(std::string_view line) {
    constexpr std::size_t deepest = 6;
    if (!line.starts_with('#')) return std::nullopt;
    const std::size_t level = std::min(line.find_first_not_of('#'), line.size());
    if (level > deepest) return std::nullopt;
    const std::string_view rest = line.substr(level);
    if (!startsWith(rest, " ") && !startsWith(rest, "\t")) return std::nullopt;
    return static_cast<int>(level);
}

std::vector<std::string> keyHeadings(Lines lines) {
    constexpr std::size_t maximumCount = 3;
    std::vector<std::string> sections;
    std::vector<std::string> others;
    bool isFenced = false;
    for (const std::string_view line : lines) {
        if (isFence(SummaryText::trimmed(line))) isFenced = !isFenced;
        const auto level = isFenced ? std::nullopt : headingLevel(line);
        if (!level || *level > 3) continue;
        auto& list = *level == 2 ? sections : others;
        if (list.size() == maximumCount) continue;
        std::string text = SummaryInline::headingText(line);
        if (!text.empty()) list.push_back(std::move(text));
        if (sections.size() == maximumCount) break;
    }
    return sections.empty() ? others : sections;
}

std::optional<std::string> nearestHeading(Lines lines, std::ptrdiff_t atOrAbove) {
    if (lines.empty() || atOrAbove < 0) return std::nullopt;
    const std::size_t last = std::min(static_cast<std::size_t>(atOrAbove), lines.size() - 1);
    for (std::size_t count = last + 1; count > 0; --count) {
        const std::string_view line = lines[count - 1];
        if (!matches(headingStart(), line)) continue;
        std::string text = SummaryInline::headingText(line);
        if (text.empty()) return std::nullopt;
        return text;
    }
    return std::nullopt;
}

Prose prose(Lines lines) {
    return SummaryMarkdown::opening(lines, lines.size());
}

std::vector<std::string_view> proseLines(Lines lines, bool markdown, bool isComplete) {
    if (!isComplete && !lines.empty()) lines = lines.first(lines.size() - 1);
    if (!markdown) return {lines.begin(), lines.end()};
    std::vector<std::string_view> result;
    result.reserve(lines.size());
    OpenFence fence;
    for (const std::string_view line : lines) {
        const std::string_view trimmed = SummaryText::trimmed(line);
        if (fence.takes(trimmed) || fence.isOpen() || isIndentedCode(line, trimmed)) continue;
        result.push_back(line);
    }
    return result;
}

}  // namespace DocumentSummaryExtractor

DocumentSummaryExtractor::Prose SummaryMarkdown::opening(DocumentSummaryExtractor::Lines lines,
                                                         std::size_t maximumLineCount) {
    using namespace DocumentSummaryExtractor;
    Opening opening;
    bool isFenced = false;
    for (const std::string_view line : lines) {
        const std::string_view trimmed = SummaryText::trimmed(line);
        if (isFence(trimmed)) {
            isFenced = !isFenced;
            continue;
        }
        const bool hasLines = opening.lineCount() > 0;
        if (isFenced || trimmed.empty() || startsOtherBlock(trimmed) || isNavigation(trimmed)) {
            if (hasLines) break;
        } else if (const auto item = listItem(trimmed)) {
            if (hasLines || !opening.addItem(*item)) break;
        } else {
            if (opening.hasItems() || opening.lineCount() == maximumLineCount) break;
            opening.addLine(trimmed);
        }
    }
    return opening.take();
}

}  // namespace vellark
