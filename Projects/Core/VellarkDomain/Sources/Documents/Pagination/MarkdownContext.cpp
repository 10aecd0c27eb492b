#include <VellarkDomain/Documents/Pagination/MarkdownContext.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>

#include <algorithm>

// Only a line with a bar, a backtick or a tilde can change the context, and inside a fence only one with the fence's
// own marker. Such lines are searched for, and the lines between them passed over together: of those only the last one
// counts, as the line before the next. Each search runs once over a page, so the cost is linear in its bytes.

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
        const std::size_t last = UTF8::previousOffset(text, text.size());
        if (!isInSet(UTF8::decode(text, last).scalar)) break;
        text.remove_suffix(text.size() - last);
    }
    return text;
}

// How often the character stands at the start of the text.
std::size_t runLength(std::string_view text, char character) {
    return std::min(text.find_first_not_of(character), text.size());
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

std::optional<MarkdownContext::Fence> openedFence(std::string_view line) {
    if (line.size() > MarkdownContext::maximumLineBytes) return std::nullopt;
    const auto run = fenceRun(line);
    if (!run || (run->marker == '`' && run->rest.find('`') != npos)) return std::nullopt;
    return MarkdownContext::Fence{run->marker, run->length, std::string(line)};
}

bool closes(const MarkdownContext::Fence& fence, std::string_view line) {
    const auto run = fenceRun(line);
    return run && run->marker == fence.marker && run->length >= fence.length &&
           trimmed(run->rest, isBlankOrNewline).empty();
}

bool isSeparatorCell(std::string_view cell) {
    cell = Whitespace::trimmed(cell);
    while (cell.starts_with(':'))
        cell.remove_prefix(1);
    while (cell.ends_with(':'))
        cell.remove_suffix(1);
    return cell.size() >= 3 && cell.find_first_not_of('-') == npos;
}

// Finds the places of one byte, in order. Remembers the last place, so that asking again costs nothing.
class Finder {
public:
    Finder(std::string_view text, char byte) : text_(text), byte_(byte) {}

    // The first place at or behind `offset`, which must not fall from call to call; the text's length without one.
    std::size_t at(std::size_t offset) {
        if (!place_ || *place_ < offset) place_ = std::min(text_.find(byte_, offset), text_.size());
        return *place_;
    }

private:
    std::string_view text_;
    char byte_;
    std::optional<std::size_t> place_;
};

// One pass over the whole lines of a page.
class LineWalk {
public:
    LineWalk(MarkdownContext& context, std::string_view lines)
        : context_(context), lines_(lines), previous_(context.previousLine) {}

    void run() {
        while (offset_ < lines_.size()) {
            const std::size_t start = startOfLine(nextCandidate());
            if (start > offset_) passOver(start);
            if (offset_ < lines_.size()) takeLine();
        }
        if (previous_.data() != context_.previousLine.data()) context_.previousLine = previous_;
    }

private:
    // The next byte that may make its line count; the end without one.
    std::size_t nextCandidate() {
        if (context_.fence) return (context_.fence->marker == '`' ? backticks_ : tildes_).at(offset_);
        return std::min({bars_.at(offset_), backticks_.at(offset_), tildes_.at(offset_)});
    }

    std::size_t startOfLine(std::size_t place) const {
        if (place == lines_.size()) return place;
        const std::size_t end = lines_.substr(offset_, place - offset_).rfind('\n');
        return end == npos ? offset_ : offset_ + end + 1;
    }

    // The line that begins at `offset` without its line feed.
    std::string_view lineAt(std::size_t offset) const {
        return lines_.substr(offset, lines_.find('\n', offset) - offset);
    }

    // Passes over lines of which none counts, up to `end`, where a line begins or the text ends.
    void passOver(std::size_t end) {
        std::string_view passed = lines_.substr(offset_, end - offset_);
        if (passed.ends_with('\n')) passed.remove_suffix(1);
        previous_ = passed.substr(passed.rfind('\n') + 1);
        context_.table.reset();  // for none of them has a bar; inside a fence there is no table anyway
        offset_ = end;
    }

    void takeLine() {
        const std::string_view line = lineAt(offset_);
        if (context_.fence) {
            if (closes(*context_.fence, line)) context_.fence.reset();
        } else if (auto fence = openedFence(line)) {
            context_.fence = std::move(fence);
            context_.table.reset();
        } else {
            takeTableLine(line);
        }
        previous_ = line;
        offset_ = std::min(offset_ + line.size() + 1, lines_.size());
    }

    void takeTableLine(std::string_view line) {
        if (bars_.at(offset_) >= offset_ + line.size()) {
            context_.table.reset();
        } else if (MarkdownContext::isSeparator(line) && previous_.find('|') != npos) {
            const bool isShort = std::max(line.size(), previous_.size()) <= MarkdownContext::maximumLineBytes;
            context_.table.reset();
            if (isShort) context_.table = {std::string(previous_), std::string(line)};
        }
    }

    MarkdownContext& context_;
    std::string_view lines_;
    std::string_view previous_;
    std::size_t offset_ = 0;
    Finder bars_{lines_, '|'};
    Finder backticks_{lines_, '`'};
    Finder tildes_{lines_, '~'};
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
    LineWalk(*this, text).run();
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
