#include <VellarkShelf/Sessions/SessionReaders.hpp>

#include <algorithm>
#include <array>

namespace vellark::SessionReaders {

namespace {

std::string_view nameOf(std::string_view path) {
    return path.substr(path.rfind('/') + 1);
}

bool isClaudeRecord(std::string_view path) {
    return path.ends_with(".jsonl");
}

bool isCodexRecord(std::string_view path) {
    return nameOf(path).starts_with("rollout-") && path.ends_with(".jsonl");
}

bool isGeminiRecord(std::string_view path) {
    return nameOf(path).starts_with("session-") && path.ends_with(".json") && path.find("/chats/") != path.npos;
}

constexpr std::array agents = {
    SessionAgent{"claude", "CLAUDE_CONFIG_DIR", "", ".claude", "projects", 3, isClaudeRecord, readClaude},
    SessionAgent{"codex", "CODEX_HOME", "", ".codex", "sessions", 3, isCodexRecord, readCodex},
    SessionAgent{"gemini", "GEMINI_CLI_HOME", "/.gemini", ".gemini", "tmp", 2, isGeminiRecord, readGemini},
};

}  // namespace

std::span<const SessionAgent> all() {
    return agents;
}

const SessionAgent* of(std::string_view key) {
    const auto agent = std::find_if(agents.begin(), agents.end(), [key](const auto& one) { return one.key == key; });
    return agent == agents.end() ? nullptr : &*agent;
}

}  // namespace vellark::SessionReaders
