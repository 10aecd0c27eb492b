#include <VellarkDomain/Documents/Pagination/MarkdownContext.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>

#include <algorithm>
#include <array>

// A page is walked line by line. Hardly any line gets a second look: one that does not begin like a fence and holds no
// bar changes nothing but the line before the next, and the bars are found by one search that runs ahead of the lines.
// The walk keeps views into the page; texts are copied once, at its end.

namespace vellark {

namespace {

constexpr auto npos = std::string_view::npos;
constexpr std::size_t smallestRun = 3;
constexpr std::size_t mostLeadingSpaces = 3;

bool isBlankOrNewline(char32_t scalar) {
    return scalar == ' ' || scalar == '\t' || Whitespace::isNewline(scalar);
}

// The text without the scalars of the set at its two ends. Ill-formed bytes are in no set.
template <class IsInSet>
std::string_view trimmed(std::string_view text, IsInSet isInSet) {
    while (!text.empty()) {
        const UTF8::Decoded first = UTF8::decode(text, 0);
        if (!isInSet(first.scalar)) break;
        text.remove_prefix(first.byteCount);
    }
    while (!text.empty()) {
        const bool isASCII = static_cast<unsigned char>(text.back()) < 0x80;
        const std::size_t last = isASCII ? text.size() - 1 : UTF8::previousOffset(text, text.size());
        if (!isInSet(UTF8::decode(text, last).scalar)) break;
        text.remove_suffix(text.size() - last);
    }
    return text;
}

// How often the character stands at the start of the text.
std::size_t runLength(std::string_view text, char character) {
    std::size_t length = 0;
    while (length < text.size() && text[length] == character)
        ++length;
    return length;
}

// False only for lines that are no fence: a look at the first bytes, which spares most lines the rest.
bool mayBeFence(std::string_view line) {
    std::size_t spaces = 0;
    while (spaces < line.size() && line[spaces] == ' ' && spaces <= mostLeadingSpaces)
        ++spaces;
    return line.size() - spaces >= smallestRun && (line[spaces] == '`' || line[spaces] == '~');
}

// A line that begins like a fence: the run of markers behind few enough blanks.
struct FenceRun {
    char marker;
    std::size_t length;
    std::string_view rest;
};

std::optional<FenceRun> fenceRun(std::string_view line) {
    const std::size_t spaces = runLength(line.substr(0, mostLeadingSpaces + 1), ' ');
    if (spaces > mostLeadingSpaces || spaces == line.size()) return std::nullopt;
    line.remove_prefix(spaces);
    const char marker = line.front();
    if (marker != '`' && marker != '~') return std::nullopt;
    const std::size_t length = runLength(line, marker);
    if (length < smallestRun) return std::nullopt;
    return FenceRun{marker, length, line.substr(length)};
}

struct OpenFence {
    char marker;
    std::size_t length;
    std::string_view opening;
};

std::optional<OpenFence> openedFence(std::string_view line) {
    const auto run = fenceRun(line);
    if (!run || line.size() > MarkdownContext::maximumLineBytes) return std::nullopt;
    if (run->marker == '`' && run->rest.find('`') != npos) return std::nullopt;
    return OpenFence{run->marker, run->length, line};
}

bool closes(const OpenFence& fence, std::string_view line) {
    const auto run = fenceRun(line);
    return run && run->marker == fence.marker && run->length >= fence.length &&
           trimmed(run->rest, isBlankOrNewline).empty();
}

bool isSeparatorCell(std::string_view cell) {
    cell = trimmed(cell, Whitespace::isWhitespace);
    while (cell.starts_with(':'))
        cell.remove_prefix(1);
    while (cell.ends_with(':'))
        cell.remove_suffix(1);
    return cell.size() >= 3 && cell.find_first_not_of('-') == npos;
}

// Whether an ASCII byte may stand in a separator.
constexpr auto separatorBytes = [] {
    std::array<bool, 128> table{};
    for (const char character : std::string_view("|-: \t\n\v\f\r"))
        table[static_cast<std::size_t>(character)] = true;
    return table;
}();

// False only for lines that are no separators: most rows of a table show it in their first letter.
bool mayBeSeparator(std::string_view line) {
    return std::ranges::all_of(line, [](char character) {
        const auto byte = static_cast<unsigned char>(character);
        return byte >= 0x80 || separatorBytes[byte];
    });
}

// One pass over the whole lines of a page.
class LineWalk {
public:
    LineWalk(const MarkdownContext& context, std::string_view lines) : lines_(lines), previous_(context.previousLine) {
        if (context.fence) fence_ = {context.fence->marker, context.fence->length, context.fence->opening};
        if (context.table) table_ = {context.table->header, context.table->separator};
    }

    MarkdownContext run() {
        for (std::size_t offset = 0; offset < lines_.size();) {
            const std::string_view line = lines_.substr(offset, lines_.find('\n', offset) - offset);
            takeLine(line, offset);
            previous_ = line;
            offset += line.size() + 1;
        }
        MarkdownContext context{.previousLine = std::string(previous_)};
        if (fence_) context.fence = {fence_->marker, fence_->length, std::string(fence_->opening)};
        if (table_) context.table = {std::string(table_->header), std::string(table_->separator)};
        return context;
    }

private:
    struct OpenTable {
        std::string_view header;
        std::string_view separator;
    };

    void takeLine(std::string_view line, std::size_t offset) {
        const bool isMarked = mayBeFence(line);
        if (fence_) {
            if (isMarked && closes(*fence_, line)) fence_.reset();
        } else if (const auto fence = isMarked ? openedFence(line) : std::nullopt) {
            fence_ = fence;
            table_.reset();
        } else if (!hasBar(line, offset)) {
            table_.reset();
        } else if (mayBeSeparator(line) && MarkdownContext::isSeparator(line) && previous_.find('|') != npos) {
            table_.reset();
            const bool isShort = std::max(line.size(), previous_.size()) <= MarkdownContext::maximumLineBytes;
            if (isShort) table_ = {previous_, line};
        }
    }

    bool hasBar(std::string_view line, std::size_t offset) {
        if (!nextBar_ || *nextBar_ < offset) nextBar_ = std::min(lines_.find('|', offset), lines_.size());
        return *nextBar_ < offset + line.size();
    }

    std::string_view lines_;
    std::string_view previous_;
    std::optional<OpenFence> fence_;
    std::optional<OpenTable> table_;
    std::optional<std::size_t> nextBar_;
};

}  // namespace

std::string MarkdownContext::prefix(std::string_view text, bool continuesLine) const {
    if (fence) return fence->opening + '\n';
    if (continuesLine) return {};
    const std::string_view line = text.substr(0, text.find('\n'));
    if (table && line.find('|') != npos) return table->header + '\n' + table->separator + '\n';
    if (previousLine.size() < maximumLineBytes && previousLine.find('|') != npos && isSeparator(line)) {
        return previousLine + '\n';
    }
    return {};
}

std::string MarkdownContext::suffix() const {
    if (!fence) return {};
    return '\n' + std::string(fence->length, fence->marker) + '\n';
}

void MarkdownContext::consume(std::string_view text, bool continuesLine, bool splitsLine) {
    if (continuesLine) {
        const std::size_t end = text.find('\n');
        if (end == npos) return;
        text.remove_prefix(end + 1);
    }
    if (splitsLine) text = text.substr(0, text.rfind('\n') + 1);
    *this = LineWalk(*this, text).run();
}

bool MarkdownContext::isSeparator(std::string_view line) {
    line = trimmed(line, isBlankOrNewline);
    bool hasCell = false;
    while (!line.empty()) {
        const std::size_t length = std::min(line.find('|'), line.size());
        if (length > 0 && !isSeparatorCell(line.substr(0, length))) return false;
        hasCell = hasCell || length > 0;
        line.remove_prefix(std::min(length + 1, line.size()));
    }
    return hasCell;
}

}  // namespace vellark
