#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindFileName.hpp>
#include <VellarkDomain/Documents/Kinds/Classifier/TextLines.hpp>
#include <VellarkDomain/Documents/Kinds/Matcher/DocumentKindMatcher.hpp>
#include <VellarkDomain/Documents/Kinds/Rules/DocumentKindRules.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <algorithm>

namespace vellark {

namespace {

struct SplitName {
    std::string_view stem;
    std::string_view extension;
};

// At the last point; one at the start parts nothing.
SplitName split(std::string_view name) {
    const std::size_t point = name.rfind('.');
    if (point == name.npos || point == 0) return {name, {}};
    return {name.substr(0, point), name.substr(point + 1)};
}

std::vector<std::string_view> components(std::string_view path) {
    std::vector<std::string_view> result;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find('/'), path.size());
        if (end > 0) result.push_back(path.substr(0, end));
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return result;
}

// Compares from the last component backwards, so that most paths are refused at their file name.
bool endsWith(const std::vector<std::string_view>& path, std::string_view pattern) {
    auto component = path.rbegin();
    while (true) {
        if (component == path.rend()) return false;
        const std::size_t slash = pattern.rfind('/');
        const std::string_view last = slash == pattern.npos ? pattern : pattern.substr(slash + 1);
        if (!matchesGlob(*component, last)) return false;
        if (slash == pattern.npos) return true;
        pattern = pattern.substr(0, slash);
        ++component;
    }
}

std::optional<DocumentKind> kindOfPath(std::string_view path) {
    const std::string lowered = UnicodeCase::lower(path);
    const std::vector<std::string_view> parts = components(lowered);
    for (const DocumentKindRules::PathPattern& row : DocumentKindRules::pathPatterns()) {
        if (endsWith(parts, row.pattern)) return row.kind;
    }
    return std::nullopt;
}

std::optional<DocumentKind> kindOf(std::string_view path, SplitName name) {
    if (const auto kind = DocumentKindRules::kindOfExtension(UnicodeCase::lower(name.extension))) return kind;
    const std::string_view inner = split(name.stem).extension;
    if (const auto kind = DocumentKindRules::kindOfInnerExtension(UnicodeCase::lower(inner))) return kind;
    if (const auto kind = DocumentKindRules::kindOfStem(DocumentKindMatcher::normalize(name.stem))) return kind;
    return kindOfPath(path);
}

}  // namespace

DocumentKindFileName::DocumentKindFileName(const std::optional<std::string>& path) {
    if (!path || path->empty()) return;
    std::string repaired;
    std::string_view text = *path;
    if (!UTF8::isValid(text)) text = repaired = UTF8::replacingInvalid(text);
    const std::size_t slash = text.rfind('/');
    if (slash != text.npos) directory = text.substr(0, slash);
    const SplitName name = split(slash == text.npos ? text : text.substr(slash + 1));
    stem = name.stem;
    kind = kindOf(text, name);
}

std::vector<std::string_view> DocumentKindFileName::folders(const std::optional<std::string>& root) const {
    constexpr std::size_t mostFolders = 3;
    std::string_view rest = directory;
    if (root) {
        const std::string_view project = trimmed(*root, "/");
        const std::string_view inside = rest.substr(std::min(project.size() + 1, rest.size()));
        const bool isBelow = !project.empty() && rest.starts_with('/') && rest.substr(1).starts_with(project) &&
                             (inside.empty() || inside.front() == '/');
        if (isBelow) rest = inside;
    }
    std::vector<std::string_view> result = components(rest);
    std::ranges::reverse(result);
    if (result.size() > mostFolders) result.resize(mostFolders);
    return result;
}

bool matchesGlob(std::string_view text, std::string_view pattern) {
    while (!pattern.empty() && pattern[0] != '*' && pattern[0] != '#') {
        if (text.empty() || text[0] != pattern[0]) return false;
        text.remove_prefix(1);
        pattern.remove_prefix(1);
    }
    if (pattern.empty()) return text.empty();
    const bool needsDigits = pattern[0] == '#';
    pattern.remove_prefix(1);
    while (!text.empty() && (!needsDigits || (text[0] >= '0' && text[0] <= '9'))) {
        text.remove_prefix(1);
        if (matchesGlob(text, pattern)) return true;
    }
    return false;
}

}  // namespace vellark
