#include <VellarkDomain/Capture/CaptureVisibilityPolicy.hpp>
#include <VellarkDomain/Capture/PythonPath.hpp>
#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkDomain/Capture/Rules/CaptureAgentFolders.hpp>

#include <algorithm>
#include <array>

namespace vellark::CaptureRules {

namespace {

// The allowed ways into hidden folders. None is the beginning of another, so that at most one fits.
struct HiddenPath {
    std::string_view folder;
    std::string_view below;  // "" when all below the folder is allowed
};
constexpr auto allowedHiddenPaths = std::to_array<HiddenPath>({
    {".claude", "plans"},
    {".claude", "handoff"},
    {".codex", "plans"},
    {".omc", "plans"},
    {".github", ""},
});

bool isMemories(std::string_view part) {
    constexpr std::string_view memories = "memories";
    constexpr std::string_view version = "_v";
    if (!part.starts_with(memories)) return false;
    part.remove_prefix(memories.size());
    if (part.empty()) return true;
    if (!part.starts_with(version) || part.size() == version.size()) return false;
    part.remove_prefix(version.size());
    return std::ranges::all_of(part, [](char byte) { return byte >= '0' && byte <= '9'; });
}

// How many of the parts, which begin with a hidden one, an allowed path takes up; 0 when none fits.
std::size_t allowedLength(PathParts parts, bool prefix) {
    for (const HiddenPath& path : allowedHiddenPaths) {
        if (parts[0] != path.folder) continue;
        if (path.below.empty() || (prefix && parts.size() == 1)) return 1;
        if (parts.size() > 1 && parts[1] == path.below) return 2;
    }
    return 0;
}

}  // namespace

bool codexMemoryArtifact(PathParts parts) {
    const auto leadsIn = [](std::string_view folder, std::string_view below) {
        return folder == ".codex" && isMemories(below);
    };
    return std::ranges::adjacent_find(parts, leadsIn) != parts.end();
}

bool hermesRuntimeArtifact(std::string_view path, std::optional<std::string_view> hermesHome) {
    constexpr std::string_view folder = ".hermes";
    const auto isRuntime = [](PathParts parts) { return CaptureVisibilityPolicy::isHermesRuntimeRelativePath(parts); };
    if (!hermesHome && !PythonText::contains(path, folder)) return false;

    const PythonPath whole(path);
    const auto parts = whole.tail();
    for (std::size_t index = 0; index < parts.size(); ++index) {
        if (parts[index] == folder && isRuntime(PathParts(parts).subspan(index + 1))) return true;
    }
    const auto below = hermesHome ? whole.relativeParts(PythonPath(*hermesHome)) : std::nullopt;
    return below && isRuntime(*below);
}

bool hiddenFoldersAllowed(PathParts parts, bool prefix) {
    while (!parts.empty()) {
        const std::size_t length = parts.front().starts_with('.') ? allowedLength(parts, prefix) : 1;
        if (length == 0) return false;
        parts = parts.subspan(length);
    }
    return true;
}

}  // namespace vellark::CaptureRules
