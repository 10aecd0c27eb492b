#include <VellarkDomain/Conversations/Grouping/ConversationVisibility.hpp>

#include <algorithm>

namespace vellark {

namespace {

bool isAtOrBelow(std::string_view path, std::string_view root) {
    return path.starts_with(root) && (path.size() == root.size() || path[root.size()] == '/');
}

std::string expandingHome(std::string_view path, std::string_view home) {
    const bool isBelowHome = path == "~" || path.starts_with("~/");
    return isBelowHome ? std::string(home).append(path.substr(1)) : std::string(path);
}

void appendRoots(std::vector<std::string>& roots, const std::vector<std::string>& folders, std::string_view home) {
    for (const std::string& folder : folders) {
        std::string root = expandingHome(folder, home);
        if (!root.starts_with('/')) continue;
        if (root.ends_with('/')) root.pop_back();  // "/" becomes "", which every absolute path is below
        roots.push_back(std::move(root));
    }
}

}  // namespace

ConversationVisibility::ConversationVisibility(const AppSettings& settings, std::string_view home)
    : showsSubagents(settings.advanced.showsSubagents) {
    appendRoots(roots, settings.advanced.hiddenSessionRoots, home);
    appendRoots(roots, settings.excludedProjectRoots, home);
    const auto& homes = settings.advanced.agentHomes;
    const auto codex = homes.find("codex");
    policy = CaptureVisibilityPolicy::ofCodexHomes(
        home, codex == homes.end() ? std::nullopt : std::optional<std::string_view>(codex->second));
    for (const auto& [store, isOn] : settings.capture.agentStores) {
        if (isOn) acceptedStores.insert(store);
    }
}

bool ConversationVisibility::allows(std::optional<std::string_view> cwd) const {
    if (!cwd || !cwd->starts_with('/')) return true;
    const std::string folder = CaptureVisibilityPolicy::normalizedPath(*cwd);
    if (policy && policy->isCodexMemoryPath(folder)) return false;
    return std::ranges::none_of(roots, [&folder](const std::string& root) { return isAtOrBelow(folder, root); });
}

}  // namespace vellark
