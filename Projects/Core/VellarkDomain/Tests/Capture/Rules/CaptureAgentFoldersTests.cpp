#include <VellarkDomain/Capture/CaptureVisibilityPolicy.hpp>
#include <VellarkDomain/Capture/PythonPath.hpp>
#include <VellarkDomain/Capture/Rules/CaptureAgentFolders.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

bool isCodexMemory(std::string_view path) {
    return CaptureRules::codexMemoryArtifact(PythonPath(path).parts());
}

bool isRuntime(std::string_view path) {
    return CaptureVisibilityPolicy::isHermesRuntimeRelativePath(PythonPath(path).parts());
}

TEST(CaptureAgentFolders, tellsCodexMemories) {
    for (const auto* const path : {"/h/.codex/memories/a.md", ".codex/memories", "/h/.codex/memories_v2/a.md",
                                   "/h/.codex/memories_v10", "/.codex/.codex/./memories", "/.codex/x/.codex/memories"})
        EXPECT_TRUE(isCodexMemory(path)) << path;
    for (const auto* const path :
         {"/h/.codex/x/memories", "/h/.Codex/memories", "/h/.codex/Memories", "/h/.codex/memories_v", "/h/.codex",
          "/h/.codex/memories_v2x", "/h/.codex/memories_v٢", "/h/.codex/memories2", "/h/codex/memories", "memories", "",
          "/h/.codex/memories_v-1"})
        EXPECT_FALSE(isCodexMemory(path)) << path;
}

TEST(CaptureAgentFolders, tellsHermesRuntimePaths) {
    for (const auto* const folder :
         {"cache", "web_cache", "image_cache", "logs", "sessions", "runtime", "state", "state-snapshots", "telemetry",
          "browser-profile", "pending_messages", "locks", "mcp-tokens", ".curator_backups", "skills/.archive",
          "skills/.curator_backups", "skills/.curator_state.json", "skills/.locks", "skills/.hub.json"}) {
        EXPECT_TRUE(isRuntime(folder)) << folder;
        EXPECT_TRUE(isRuntime(std::string("profiles/work/") + folder + "/a")) << folder;
        EXPECT_FALSE(isRuntime(std::string("x/") + folder)) << folder;
        EXPECT_FALSE(isRuntime(std::string(folder) + "x")) << folder;
    }
    for (const auto* const path : {"", "skills", "skills/a", "skills/x/.archive", "profiles/cache", "profiles", "Cache",
                                   "profiles/a/skills", "profiles/a/profiles/b/cache", ".archive"})
        EXPECT_FALSE(isRuntime(path)) << path;
}

TEST(CaptureAgentFolders, tellsHermesArtifacts) {
    struct Row {
        const char* name;
        std::string_view path;
        std::optional<std::string_view> home;
        bool expected;
    };
    const Row rows[] = {
        {"below a home of the usual name", "/h/.hermes/cache/a", std::nullopt, true},
        {"relative", ".hermes/logs", std::nullopt, true},
        {"work below it", "/h/.hermes/notes/a.md", std::nullopt, false},
        {"the second of two", "/.hermes/x/.hermes/profiles/p/state/a", std::nullopt, true},
        {"capitals", "/h/.Hermes/cache/a", std::nullopt, false},
        {"a longer name", "/h/.hermes2/cache/a", std::nullopt, false},
        {"another home", "/srv/hermes/cache/a", "/srv/hermes/", true},
        {"another home, not given", "/srv/hermes/cache/a", std::nullopt, false},
        {"work in another home", "/srv/hermes/notes/cache", "/srv/hermes", false},
        {"outside of the home", "/srv/hermes2/cache/a", "/srv/hermes", false},
        {"the home itself", "/srv/hermes", "/srv/hermes", false},
        {"usual name, other home given", "/h/.hermes/cache", "/srv/hermes", true},
        {"nothing", "", std::nullopt, false},
    };
    for (const Row& row : rows)
        EXPECT_EQ(CaptureRules::hermesRuntimeArtifact(row.path, row.home), row.expected) << row.name;
}

TEST(CaptureAgentFolders, allowsSomeHiddenFolders) {
    enum Verdict { refused, prefixOnly, allowed };
    const std::pair<const char*, Verdict> rows[] = {
        {"", allowed},
        {"/p/a.md", allowed},
        {"/p/.claude/plans/a.md", allowed},
        {".claude/handoff", allowed},
        {".codex/plans", allowed},
        {".omc/plans/x", allowed},
        {".github", allowed},
        {".github/workflows/a.yml", allowed},
        {".github/.claude/plans/.codex/plans", allowed},
        {"/p/.claude", prefixOnly},
        {".omc", prefixOnly},
        {".claude/plans/x/.codex", prefixOnly},
        {".claude/skills", refused},
        {".codex/handoff", refused},
        {".Claude/plans", refused},
        {".claude/plans2", refused},
        {".claude/x/plans", refused},
        {".claude/plans/.x", refused},
        {"..", refused},
        {"a/.git", refused},
        {".github/.git", refused},
    };
    for (const auto& [path, verdict] : rows) {
        const PythonPath whole(path);
        EXPECT_EQ(CaptureRules::hiddenFoldersAllowed(whole.parts(), false), verdict == allowed) << path;
        EXPECT_EQ(CaptureRules::hiddenFoldersAllowed(whole.parts(), true), verdict != refused) << path;
    }
}

TEST(CaptureVisibilityPolicy, knowsCodexMemoriesByHome) {
    using Policy = CaptureVisibilityPolicy;
    const Policy policy = Policy::ofCodexHomes("/home/ann", "~/work/./codex/");
    EXPECT_EQ(policy.codexHomes, (std::vector<std::string>{"/home/ann/.codex", "/home/ann/work/codex"}));
    for (const auto* const path : {"/home/ann/.codex/memories", "/home/ann/.codex/memories_v2/a/b",
                                   "/home/ann/work/codex/x/../memories/a", "/home/ann/work/codex/memories/"})
        EXPECT_TRUE(policy.isCodexMemoryPath(path)) << path;
    for (const auto* const path :
         {"/home/ann/.codex", "/home/ann/.codex/memories_v3", "/home/ann/.codex/memories2", "/home/bob/.codex/memories",
          "/home/ann/.codexmemories", "memories", "", "/home/ann/.codex/memories/../a"})
        EXPECT_FALSE(policy.isCodexMemoryPath(path)) << path;

    EXPECT_EQ(Policy::ofCodexHomes("/home/ann", "~/.codex").codexHomes.size(), 1U);
    EXPECT_EQ(Policy::ofCodexHomes("/home/ann", "codex").codexHomes.size(), 1U);
    EXPECT_EQ(Policy::ofCodexHomes("", std::nullopt).codexHomes.size(), 0U);
    const Policy root = Policy::ofCodexHomes("/home/ann", "/");
    EXPECT_TRUE(root.isCodexMemoryPath("/memories/a"));
    EXPECT_FALSE(root.isCodexMemoryPath("/a/memories"));
}

}  // namespace
}  // namespace vellark
