#include <VellarkDomain/Capture/Rules/CaptureCredentialNames.hpp>

#include <algorithm>
#include <array>

namespace vellark::CaptureRules {

namespace {

constexpr std::string_view separators = "-_.";

constexpr std::array<std::string_view, 4> keyTypes = {"rsa", "ed25519", "ecdsa", "dsa"};

constexpr auto secretWords =
    std::to_array<std::string_view>({"secret", "secrets", "credential", "credentials", "token", "tokens", "auth",
                                     "apikey", "api-key", "api_key", "service-account", "service_account"});

constexpr auto stages = std::to_array<std::string_view>({"dev", "development", "prod", "production", "staging", "stage",
                                                         "test", "testing", "local", "qa", "ci", "preview", "sandbox"});

bool isSeparator(char byte) {
    return separators.find(byte) != std::string_view::npos;
}

bool hasLineFeed(std::string_view text) {
    return text.find('\n') != std::string_view::npos;
}

// No secret word ends in a separator and a stage, so that a stage at the end is never part of one.
std::string_view withoutStage(std::string_view stem) {
    const std::size_t separator = stem.find_last_of(separators);
    if (separator == std::string_view::npos) return stem;
    const bool isStage = std::ranges::find(stages, stem.substr(separator + 1)) != stages.end();
    return isStage ? stem.substr(0, separator) : stem;
}

bool endsInWord(std::string_view text, std::string_view word) {
    if (!text.ends_with(word)) return false;
    return text.size() == word.size() || isSeparator(text[text.size() - word.size() - 1]);
}

}  // namespace

bool sshKeyName(std::string_view name) {
    constexpr std::string_view prefix = "id_";
    if (!name.starts_with(prefix)) return false;
    name.remove_prefix(prefix.size());
    const auto type = std::ranges::find_if(keyTypes, [&](auto one) { return name.starts_with(one); });
    if (type == keyTypes.end()) return false;
    const std::string_view rest = name.substr(type->size());
    return rest.empty() || (isSeparator(rest.front()) && !hasLineFeed(rest));
}

bool credentialName(std::string_view stem) {
    const std::string_view text = withoutStage(stem);
    const auto ends = [&](std::string_view word) { return endsInWord(text, word); };
    return std::ranges::any_of(secretWords, ends) && !hasLineFeed(text);
}

}  // namespace vellark::CaptureRules
