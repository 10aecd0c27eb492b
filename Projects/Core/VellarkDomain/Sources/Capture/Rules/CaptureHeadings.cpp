#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkDomain/Capture/Rules/CaptureHeadings.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <algorithm>
#include <array>

// Documents come from outside, so nothing here backtracks: white space is skipped once and the scan goes on behind it.

namespace vellark::CaptureRules {

namespace {

constexpr std::size_t mostMarks = 6;
constexpr std::array<std::string_view, 4> codeMapRooms = {"Projects/", "Sources/", "Scripts/", "Tests/"};

// End of the line that holds the offset: its line feed, or the text's end.
std::size_t lineEnd(std::string_view text, std::size_t offset) {
    return std::min(text.find('\n', offset), text.size());
}

std::size_t behindSpace(std::string_view text, std::size_t offset) {
    return text.size() - PythonText::stripLeading(text.substr(offset)).size();
}

std::string_view withoutTrailingSpace(std::string_view text) {
    while (!text.empty()) {
        const std::size_t last = UTF8::previousOffset(text, text.size());
        if (!PythonText::isSpace(UTF8::decode(text, last).scalar)) break;
        text = text.substr(0, last);
    }
    return text;
}

// A heading of nothing but "#" keeps its first one.
std::string_view withoutClosingMarks(std::string_view text) {
    const std::string_view marked = withoutTrailingSpace(text);
    const std::size_t last = marked.find_last_not_of('#');
    if (last == std::string_view::npos) return text.substr(0, 1);
    return withoutTrailingSpace(marked.substr(0, last + 1));
}

}  // namespace

std::optional<std::string_view> HeadingScanner::next() {
    while (line_ < text_.size()) {
        const std::size_t marksEnd = std::min(text_.find_first_not_of('#', line_), text_.size());
        const std::size_t marks = marksEnd - line_;
        const std::size_t start = marks >= 1 && marks <= mostMarks ? behindSpace(text_, marksEnd) : marksEnd;
        const std::size_t end = lineEnd(text_, start);
        line_ = end + 1;
        if (start > marksEnd && start < text_.size()) return withoutClosingMarks(text_.substr(start, end - start));
    }
    return std::nullopt;
}

std::size_t codeMapEntryCount(std::string_view text) {
    constexpr std::string_view opening = "- `";
    std::size_t count = 0;
    for (std::size_t line = 0; line < text.size();) {
        std::size_t offset = behindSpace(text, line);
        line = lineEnd(text, offset) + 1;
        if (!text.substr(offset).starts_with(opening)) continue;
        offset += opening.size();
        const auto* const room = std::ranges::find_if(
            codeMapRooms, [&](std::string_view name) { return text.substr(offset).starts_with(name); });
        if (room == codeMapRooms.end()) continue;
        offset += room->size();
        const std::size_t closing = text.find('`', offset);
        if (closing == std::string_view::npos) break;  // then no later entry closes either
        if (closing == offset) continue;
        ++count;
        line = lineEnd(text, closing) + 1;
    }
    return count;
}

}  // namespace vellark::CaptureRules
