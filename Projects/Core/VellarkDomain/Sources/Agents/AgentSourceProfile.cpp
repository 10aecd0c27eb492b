#include <VellarkDomain/Agents/AgentSourceProfile.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkLocalization/L10n.hpp>

#include <algorithm>
#include <array>

namespace vellark {

namespace {

/// A name that is shown: a proper one, the same in all languages, or a key of the catalogues.
struct Title {
    std::string_view name;
    std::string_view title;
    bool isLocalized = false;
};

// Agents first, then what the library itself takes documents from. "deepseek" and "dsh" are two products of one maker;
// the identifiers are older than their names.
constexpr auto providers = std::to_array<Title>({
    {"claude", "Claude"},
    {"codex", "Codex"},
    {"gemini", "Gemini"},
    {"hermes", "Hermes"},
    {"copilot", "Copilot"},
    {"cursor", "Cursor"},
    {"windsurf", "Windsurf"},
    {"opencode", "OpenCode"},
    {"zcode", "ZCode"},
    {"antigravity", "Antigravity"},
    {"trae", "Trae"},
    {"mimocode", "MiMoCode"},
    {"droid", "Droid"},
    {"devin", "Devin"},
    {"qoder", "Qoder"},
    {"qoderwork", "QoderWork"},
    {"qwen", "Qwen Code"},
    {"qwenwork", "QwenWork"},
    {"grok-build", "Grok Build"},
    {"kimi-code", "Kimi Code"},
    {"kimi", "Kimi CLI"},
    {"deepseek", "CodeWhale"},
    {"dsh", "DeepSeek Harness"},
    {"mistral-vibe", "Mistral Vibe"},
    {"codebuddy", "CodeBuddy"},
    {"workbuddy", "WorkBuddy"},
    {"kiro", "Kiro"},
    {"amp", "Amp"},
    {"pi", "Pi Agent"},
    {"oh-my-pi", "Oh My Pi"},
    {"gajae-code", "Gajae Code"},
    {"manus", "Manus"},
    {"claude-desktop-chat", "Claude 채팅", true},
    {"chatgpt-chat", "ChatGPT 채팅", true},
    {"gemini-chat", "Gemini 채팅", true},
    {"perplexity-chat", "Perplexity 채팅", true},
    {"web", "웹", true},
    {"services", "서비스 메뉴", true},
    {"agent-conversation", "에이전트 대화", true},
});

constexpr auto kinds = std::to_array<Title>({
    {"cli", "CLI"},
    {"cowork", "Cowork"},
    {"desktop", "데스크톱", true},
    {"manual", "직접 가져오기", true},
});
constexpr std::string_view unknownKind = "출처 미확인";

constexpr std::string_view unknownSource = "unknown";
constexpr std::string_view unknownProvider = "미확인";
constexpr std::string_view unknownAccount = "계정 미확인";

std::string shown(const Title& title) {
    return title.isLocalized ? L10n::text(title.title) : std::string(title.title);
}

}  // namespace

std::string AgentSourceProfile::key(std::string_view source, std::optional<std::string_view> profileID) {
    std::string key = std::to_string(source.size()) + ":" + std::string(source) + ":";
    if (!profileID) return key + "legacy";
    return key + "profile:" + std::to_string(profileID->size()) + ":" + std::string(*profileID);
}

std::string AgentSourceProfile::providerTitle(std::string_view source) {
    const auto provider = std::ranges::find(providers, source, &Title::name);
    return provider == providers.end() ? std::string(source) : shown(*provider);
}

bool AgentSourceProfile::hasVerifiedAccountName() const {
    return profileIdentityVerified.value_or(false) && sourceProfileLabel &&
           !Whitespace::trimmedWithNewlines(*sourceProfileLabel).empty();
}

std::string AgentSourceProfile::kindTitle() const {
    const auto kind = std::ranges::find(kinds, sourceKind.value_or(""), &Title::name);
    return kind == kinds.end() ? L10n::text(unknownKind) : shown(*kind);
}

std::string AgentSourceProfile::accountTitle() const {
    return hasVerifiedAccountName() ? *sourceProfileLabel : L10n::text(unknownAccount);
}

std::string AgentSourceProfile::displayName() const {
    const std::string provider = source == unknownSource ? L10n::text(unknownProvider) : providerTitle(source);
    return provider + " · " + kindTitle() + " · " + accountTitle();
}

}  // namespace vellark
