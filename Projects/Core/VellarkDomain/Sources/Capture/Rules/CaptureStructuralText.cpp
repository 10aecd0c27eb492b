#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkDomain/Capture/Rules/CaptureStructuralText.hpp>

#include <algorithm>
#include <cstddef>
#include <optional>

namespace vellark::CaptureRules {

namespace {

constexpr std::size_t deepestIndent = 3;
constexpr std::size_t shortestRun = 3;

struct Fence {
    char mark = '`';
    std::size_t length = 0;
    std::string_view rest;  // of the line, behind the run

    [[nodiscard]] bool closes(const Fence& open) const {
        return mark == open.mark && length >= open.length && PythonText::stripLeading(rest).empty();
    }
};

std::optional<Fence> fence(std::string_view line) {
    const std::size_t indent = line.find_first_not_of(" \t");
    if (indent == std::string_view::npos || indent > deepestIndent) return std::nullopt;
    const char mark = line[indent];
    if (mark != '`' && mark != '~') return std::nullopt;
    const std::size_t end = std::min(line.find_first_not_of(mark, indent), line.size());
    if (end - indent < shortestRun) return std::nullopt;
    return Fence{.mark = mark, .length = end - indent, .rest = line.substr(end)};
}

}  // namespace

std::string structuralText(std::string_view text) {
    std::string kept;
    kept.reserve(text.size());
    bool isFirst = true;
    std::optional<Fence> open;
    for (const std::string_view line : PythonText::splitlines(text)) {
        const std::optional<Fence> marker = fence(line);
        if (open) {
            if (marker && marker->closes(*open)) open.reset();
        } else if (marker) {
            open = marker;
        } else {
            if (!isFirst) kept += '\n';
            kept += line;
            isFirst = false;
        }
    }
    return kept;
}

}  // namespace vellark::CaptureRules
