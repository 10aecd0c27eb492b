// Each construct has one function that either takes its lines or says no without moving. Lines are views into the
// message; only what is joined anew is copied.

#include <VellarkDomain/Conversations/Code/CodeHighlighter.hpp>
#include <VellarkDomain/Conversations/RichText/RichTextLine.hpp>
#include <VellarkDomain/Conversations/RichText/RichTextParser.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <utility>

namespace vellark {

namespace {

using Rich = ConversationRichText;
using RichTextLine::Fence;
using RichTextLine::Item;

constexpr std::size_t blockIndentLimit = 4;  // columns from which a heading, rule or quote mark is mere text
constexpr std::size_t levelColumns = 2;      // columns by which an item must stand further in to open a level
constexpr std::size_t greatestColumnCount = 32;

std::string joined(std::span<const std::string_view> lines) {
    std::size_t size = lines.size();
    for (const std::string_view line : lines)
        size += line.size();
    std::string text;
    text.reserve(size);
    for (std::size_t index = 0; index < lines.size(); ++index) {
        if (index > 0) text += '\n';
        text += lines[index];
    }
    return text;
}

// The line without as many white-space characters at its start, as far as it has them.
std::string_view droppingIndent(std::string_view line, std::size_t count) {
    std::size_t start = 0;
    while (count-- > 0 && start < line.size() && CharacterClass::isWhitespace(line.substr(start))) {
        start = GraphemeBreak::next(line, start);
    }
    return line.substr(start);
}

class Parser {
public:
    Parser(std::vector<std::string_view> lines, std::size_t depth) : lines_(std::move(lines)), depth_(depth) {}

    std::vector<Rich::Block> blocks() {
        while (index_ < lines_.size()) {
            if (RichTextLine::isBlank(line())) {
                ++index_;
            } else if (!fencedCode() && !headingRuleOrQuote() && !itemWithCode() && !list() && !table() && !diff()) {
                paragraph();
            }
        }
        return std::move(blocks_);
    }

private:
    std::string_view line() const { return lines_[index_]; }

    std::optional<std::string_view> lineBehind(std::size_t index) const {
        if (index + 1 >= lines_.size()) return std::nullopt;
        return lines_[index + 1];
    }

    template <class Content>
    bool add(Content content) {
        blocks_.push_back({std::move(content)});
        return true;
    }

    bool fencedCode() {
        const auto fence = RichTextLine::fence(RichTextLine::content(line()));
        return fence && code(*fence, RichTextLine::indentWidth(line()));
    }

    bool itemWithCode() {
        const auto item = RichTextLine::listItem(line());
        const auto fence = item ? RichTextLine::fence(item->content) : std::nullopt;
        if (!fence) return false;
        const std::string_view before = line().substr(0, line().size() - item->content.size());
        return code(*fence, GraphemeBreak::count(before));
    }

    // The lines behind the current one up to the fence's close, or to the end of the message.
    bool code(const Fence& fence, std::size_t indent) {
        std::vector<std::string_view> body;
        for (++index_; index_ < lines_.size(); ++index_) {
            if (RichTextLine::closes(fence, RichTextLine::content(line()))) {
                ++index_;
                break;
            }
            body.push_back(droppingIndent(line(), indent));
        }
        return add(CodeHighlighter::code(fence.language, joined(body)));
    }

    bool headingRuleOrQuote() {
        if (RichTextLine::indentWidth(line()) >= blockIndentLimit) return false;
        const std::string_view content = RichTextLine::content(line());
        if (const int level = RichTextLine::headingLevel(content); level > 0) {
            ++index_;
            return add(Rich::Heading{level, Rich::inlineRuns(RichTextLine::headingTitle(content, level))});
        }
        if (RichTextLine::isRule(content)) {
            ++index_;
            return add(Rich::Rule());
        }
        return RichTextLine::beginsWith(content, '>') && quote();
    }

    bool quote() {
        std::vector<std::string_view> inner;
        for (; index_ < lines_.size(); ++index_) {
            std::string_view content = RichTextLine::content(line());
            if (!RichTextLine::beginsWith(content, '>')) break;
            content.remove_prefix(1);
            if (RichTextLine::beginsWith(content, ' ')) content.remove_prefix(1);
            inner.push_back(content);
        }
        if (depth_ >= RichTextParser::greatestQuoteDepth) {
            return add(Rich::Paragraph{Rich::inlineRuns(joined(inner))});
        }
        return add(Rich::Quote{RichTextParser::blocks(std::move(inner), depth_ + 1)});
    }

    bool list();
    bool table();

    bool diff() {
        if (!RichTextLine::startsDiff(line(), lineBehind(index_))) return false;
        const std::size_t first = index_;
        for (; index_ < lines_.size(); ++index_) {
            if (!RichTextLine::isBlank(line())) {
                if (!RichTextLine::belongsToDiff(line())) break;
            } else if (const auto next = lineBehind(index_); !next || !RichTextLine::continuesDiffBehindBlank(*next)) {
                break;
            }
        }
        return add(CodeHighlighter::diff(joined(span(first, index_))));
    }

    bool interrupts(std::size_t index) const {
        const std::string_view line = lines_[index];
        if (const auto item = RichTextLine::listItem(line)) return item->number.value_or(1) == 1;
        const std::string_view content = RichTextLine::content(line);
        if (RichTextLine::fence(content)) return true;
        if (RichTextLine::indentWidth(line) < blockIndentLimit &&
            (RichTextLine::headingLevel(content) > 0 || RichTextLine::isRule(content) ||
             RichTextLine::beginsWith(content, '>'))) {
            return true;
        }
        return RichTextLine::isTableStart(line, lineBehind(index)) || RichTextLine::startsDiff(line, lineBehind(index));
    }

    void paragraph() {
        const std::size_t first = index_++;
        for (; index_ < lines_.size() && !RichTextLine::isBlank(line()); ++index_) {
            if (const int level = RichTextLine::setextLevel(line()); level > 0) {
                const std::string text = joined(span(first, index_++));
                add(Rich::Heading{level, Rich::inlineRuns(Whitespace::trimmed(text))});
                return;
            }
            if (interrupts(index_)) break;
        }
        addParagraph(joined(span(first, index_)));
    }

    void addParagraph(const std::string& text) {
        const std::string_view content = RichTextLine::content(text);
        if (RichTextLine::beginsWith(content, '{') || RichTextLine::beginsWith(content, '[')) {
            if (auto code = CodeHighlighter::json(text)) {
                add(std::move(*code));
                return;
            }
            if (RichTextLine::looksLikeJSON(text)) {
                add(CodeHighlighter::code("json", text));
                return;
            }
        }
        add(Rich::Paragraph{Rich::inlineRuns(text)});
    }

    std::span<const std::string_view> span(std::size_t first, std::size_t end) const {
        return std::span(lines_).subspan(first, end - first);
    }

    std::vector<std::string_view> lines_;
    std::size_t index_ = 0;
    std::size_t depth_;
    std::vector<Rich::Block> blocks_;
};

// The items of one list while its lines are read.
class ListBuilder {
public:
    [[nodiscard]] bool isEmpty() const { return items_.empty(); }
    [[nodiscard]] std::size_t firstIndent() const { return indents_.empty() ? 0 : indents_.front(); }

    void addItem(const Item& item) {
        while (!indents_.empty() && indents_.back() > item.indent)
            indents_.pop_back();
        if (indents_.empty() || item.indent >= indents_.back() + levelColumns) indents_.push_back(item.indent);
        lastNumbers_.resize(indents_.size());
        std::optional<std::int64_t>& last = lastNumbers_.back();
        last = item.number && last ? std::optional(*last + 1) : item.number;
        items_.push_back({.depth = indents_.size() - 1, .number = last, .text = std::string(item.content)});
    }

    void append(std::string_view separator, std::string_view content) {
        items_.back().text += separator;
        items_.back().text += content;
    }

    [[nodiscard]] Rich::List take() {
        Rich::List list;
        list.items.reserve(items_.size());
        for (const Draft& item : items_) {
            list.items.push_back({.depth = item.depth, .number = item.number, .content = Rich::inlineRuns(item.text)});
        }
        return list;
    }

private:
    struct Draft {
        std::size_t depth;
        std::optional<std::int64_t> number;
        std::string text;
    };

    std::vector<std::size_t> indents_;
    std::vector<std::optional<std::int64_t>> lastNumbers_;
    std::vector<Draft> items_;
};

bool Parser::list() {
    if (!RichTextLine::listItem(line())) return false;
    ListBuilder items;
    while (index_ < lines_.size()) {
        const auto opensFence = [](std::string_view content) { return RichTextLine::fence(content).has_value(); };
        const bool isBehindBlank = RichTextLine::isBlank(line());
        if (isBehindBlank) {
            std::size_t next = index_;
            while (next < lines_.size() && RichTextLine::isBlank(lines_[next]))
                ++next;
            index_ = next;
            if (next == lines_.size()) break;
        }
        const std::string_view content = RichTextLine::content(line());
        const auto item = RichTextLine::listItem(line());
        if (item && opensFence(item->content)) break;
        if (item && !RichTextLine::isRule(content)) {
            items.addItem(*item);
        } else if (items.isEmpty() || opensFence(content) || RichTextLine::indentWidth(line()) <= items.firstIndent()) {
            break;
        } else {
            items.append(isBehindBlank && !item ? "\n\n" : "\n", content);
        }
        ++index_;
    }
    return !items.isEmpty() && add(items.take());
}

std::optional<Rich::Table::Alignment> alignment(std::string_view delimiter) {
    const bool begins = delimiter.starts_with(':');
    const bool ends = delimiter.ends_with(':');
    std::string_view dashes = delimiter;
    if (begins) dashes.remove_prefix(1);
    if (ends && !dashes.empty()) dashes.remove_suffix(1);
    if (dashes.empty() || dashes.find_first_not_of('-') != std::string_view::npos) return std::nullopt;
    if (!ends) return Rich::Table::Alignment::leading;
    return begins ? Rich::Table::Alignment::center : Rich::Table::Alignment::trailing;
}

std::vector<Rich::Table::Cell> row(std::string_view line, std::size_t columnCount) {
    std::vector<Rich::Table::Cell> result(columnCount);
    const auto cells = RichTextLine::cells(line);
    for (std::size_t column = 0; column < std::min(columnCount, cells.size()); ++column) {
        result[column] = Rich::inlineRuns(cells[column]);
    }
    return result;
}

bool Parser::table() {
    if (!RichTextLine::isTableStart(line(), lineBehind(index_))) return false;
    const auto delimiters = RichTextLine::cells(lines_[index_ + 1]);
    const std::size_t columnCount = delimiters.size();
    if (columnCount > greatestColumnCount || RichTextLine::cells(line()).size() != columnCount) return false;
    Rich::Table table;
    for (const std::string_view delimiter : delimiters) {
        const auto read = alignment(delimiter);
        if (!read) return false;
        table.alignments.push_back(*read);
    }
    const std::size_t first = index_;
    table.header = row(line(), columnCount);
    for (index_ += 2; index_ < lines_.size() && RichTextLine::hasBar(line()); ++index_) {
        table.rows.push_back(row(line(), columnCount));
    }
    table.source = joined(span(first, index_));
    return add(std::move(table));
}

}  // namespace

std::vector<ConversationRichText::Block> RichTextParser::blocks(std::vector<std::string_view> lines,
                                                                std::size_t depth) {
    return Parser(std::move(lines), depth).blocks();
}

}  // namespace vellark
