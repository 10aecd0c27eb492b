#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkDomain/Documents/Summary/SummaryCandidates.hpp>
#include <VellarkDomain/Documents/Summary/SummaryInline.hpp>
#include <VellarkDomain/Documents/Summary/SummaryText.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <algorithm>
#include <array>

namespace vellark::DocumentSummaryExtractor {

namespace {

using GraphemeBreak::startsWith;

bool isFence(std::string_view trimmed) {
    return startsWith(trimmed, "```") || startsWith(trimmed, "~~~");
}

// Blocks that are no paragraph: headings, tables, quotes, HTML, rules, images, comments.
bool startsOtherBlock(std::string_view trimmed) {
    constexpr auto marks = std::to_array<std::string_view>({"#", "|", ">", "<", "---", "***", "___", "![", "%%"});
    return std::any_of(marks.begin(), marks.end(), [&](std::string_view mark) { return startsWith(trimmed, mark); });
}

const SummaryExpression& headingStart() {
    static const SummaryExpression expression(R"(^#{1,6}\s+\S)", SummaryCandidates::headingMark);
    return expression;
}

Prose paragraphOf(const std::vector<std::string>& entries) {
    return {SummaryText::joined(entries, " "), {}};
}

Prose listOf(std::vector<std::string> items) {
    constexpr std::size_t maximumItemCount = 3;
    std::erase_if(items, [](const std::string& item) { return item.empty(); });
    if (items.size() > maximumItemCount) items.resize(maximumItemCount);
    return {SummaryText::joined(items, " · "), std::move(items)};
}

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
    const std::size_t level = std::min(line.find_first_not_of('#'), line.size());
    if (level == 0 || level > deepest) return std::nullopt;
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
        if (isFence(Whitespace::trimmed(line))) isFenced = !isFenced;
        const auto level = isFenced ? std::nullopt : headingLevel(line);
        if (!level || *level > 3) continue;
        std::string text = SummaryInline::headingText(line);
        if (text.empty()) continue;
        auto& list = *level == 2 ? sections : others;
        if (list.size() < maximumCount) list.push_back(std::move(text));
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
    std::vector<std::string> paragraph;
    std::vector<std::string> items;
    bool isFenced = false;
    for (const std::string_view line : lines) {
        const std::string_view trimmed = Whitespace::trimmed(line);
        if (isFence(trimmed)) {
            isFenced = !isFenced;
            continue;
        }
        if (isFenced || trimmed.empty() || startsOtherBlock(trimmed) || isNavigation(trimmed)) {
            if (!paragraph.empty()) break;
        } else if (const auto item = listItem(trimmed)) {
            if (!paragraph.empty()) break;
            items.push_back(plainInline(*item));
        } else {
            if (!items.empty()) break;
            paragraph.push_back(plainInline(trimmed));
        }
    }
    return paragraph.empty() ? listOf(std::move(items)) : paragraphOf(paragraph);
}

std::vector<std::string_view> proseLines(Lines lines, bool markdown, bool isComplete) {
    if (!isComplete && !lines.empty()) lines = lines.first(lines.size() - 1);
    if (!markdown) return {lines.begin(), lines.end()};
    std::vector<std::string_view> result;
    result.reserve(lines.size());
    OpenFence fence;
    for (const std::string_view line : lines) {
        const std::string_view trimmed = Whitespace::trimmed(line);
        if (fence.takes(trimmed) || fence.isOpen() || isIndentedCode(line, trimmed)) continue;
        result.push_back(line);
    }
    return result;
}

}  // namespace vellark::DocumentSummaryExtractor
