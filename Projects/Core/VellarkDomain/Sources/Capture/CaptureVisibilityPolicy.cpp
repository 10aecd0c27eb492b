#include <VellarkDomain/Capture/CaptureVisibilityPolicy.hpp>
#include <VellarkDomain/Capture/PythonText.hpp>

#include <algorithm>

namespace vellark {

namespace {

constexpr std::array<std::string_view, 2> memoryFolders = {"memories", "memories_v2"};

constexpr auto hermesRuntimeFolders = std::to_array<std::string_view>(
    {"cache", "web_cache", "image_cache", "logs", "sessions", "runtime", "state", "state-snapshots", "telemetry",
     "browser-profile", "pending_messages", "locks", "mcp-tokens", ".curator_backups"});

// What Hermes keeps among the skills, which are the user's.
constexpr auto hermesSkillFiles =
    std::to_array<std::string_view>({".archive", ".curator_backups", ".curator_state.json", ".locks", ".hub.json"});

bool isIn(std::span<const std::string_view> table, std::string_view text) {
    return std::ranges::find(table, text) != table.end();
}

// Whether the rest of a path begins with the component.
bool beginsWithPart(std::string_view rest, std::string_view part) {
    return rest.starts_with(part) && (rest.size() == part.size() || rest[part.size()] == '/');
}

std::string expandingHome(std::string_view path, std::string_view userHome) {
    const bool isBelowHome = path == "~" || path.starts_with("~/");
    if (!isBelowHome || userHome.empty()) return std::string(path);
    return std::string(userHome).append(path.substr(1));
}

}  // namespace

CaptureVisibilityPolicy CaptureVisibilityPolicy::ofCodexHomes(std::string_view userHome,
                                                              std::optional<std::string_view> chosen) {
    CaptureVisibilityPolicy policy;
    const auto add = [&](std::string_view directory) {
        std::string home = normalizedPath(expandingHome(directory, userHome));
        const bool isNew = std::ranges::find(policy.codexHomes, home) == policy.codexHomes.end();
        if (home.starts_with('/') && isNew) policy.codexHomes.push_back(std::move(home));
    };
    add("~/.codex");
    if (chosen) add(*chosen);
    return policy;
}

bool CaptureVisibilityPolicy::isCodexMemoryPath(std::string_view path) const {
    const std::string normal = normalizedPath(path);
    return std::ranges::any_of(codexHomes, [&](std::string_view home) {
        if (!normal.starts_with(home)) return false;
        std::string_view rest = std::string_view(normal).substr(home.size());
        // A root, "/" or "//", ends in the slash that stands behind every other home.
        if (!home.ends_with('/')) {
            if (!rest.starts_with('/')) return false;
            rest.remove_prefix(1);
        }
        return std::ranges::any_of(memoryFolders, [&](auto folder) { return beginsWithPart(rest, folder); });
    });
}

std::string CaptureVisibilityPolicy::normalizedPath(std::string_view path) {
    return PythonText::normpath(path);
}

bool CaptureVisibilityPolicy::isHermesRuntimeRelativePath(std::span<const std::string_view> parts) {
    if (parts.size() >= 3 && parts[0] == "profiles") parts = parts.subspan(2);
    if (parts.empty()) return false;
    if (isIn(hermesRuntimeFolders, parts[0])) return true;
    return parts[0] == "skills" && parts.size() > 1 && isIn(hermesSkillFiles, parts[1]);
}

}  // namespace vellark
