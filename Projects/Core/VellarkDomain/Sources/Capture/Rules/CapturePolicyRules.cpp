#include <VellarkDomain/Capture/Preferences/CapturePreferences.hpp>
#include <VellarkDomain/Capture/Preferences/ResolvedCapturePolicy.hpp>
#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkDomain/Capture/Rules/CaptureEventTimes.hpp>
#include <VellarkDomain/Capture/Rules/CapturePolicyRules.hpp>
#include <VellarkDomain/Capture/Rules/CaptureThreshold.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <algorithm>
#include <cstddef>

namespace vellark::CaptureRules {

namespace {

constexpr std::size_t maximumExtensionLength = 20;

// With the point in front. Lowering never makes fewer scalars, so that a text with more of them is no extension.
constexpr std::size_t maximumExtensionBytes = 4 * (maximumExtensionLength + 1);

bool isLowerAlphanumeric(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= '0' && byte <= '9');
}

bool isExtensionByte(char byte) {
    return isLowerAlphanumeric(byte) || byte == '_' || byte == '-';
}

std::string lower(std::string_view text) {
    if (!UTF8::isASCII(text)) return UnicodeCase::lower(text);
    std::string result(text);
    for (char& byte : result) {
        if (byte >= 'A' && byte <= 'Z') byte = static_cast<char>(byte + ('a' - 'A'));
    }
    return result;
}

// False for an extension that does not count; otherwise its moment joins the threshold.
bool extensionAllowed(ArtifactCategory category, std::string_view extension, const ResolvedCapturePolicy& policy,
                      CaptureThreshold& threshold) {
    if (extension.empty()) {
        threshold.add(policy.extensionlessResumeSince);
        return policy.includeExtensionless;
    }
    const auto normalized = normalizedExtension(extension);
    if (!normalized) return false;
    if (policy.extensions.contains(*normalized)) {
        threshold.add(policy.extensionResumeSince, *normalized);
        return true;
    }
    threshold.add(policy.unlistedResumeSince);
    return category == ArtifactCategory::other && policy.includeUnlistedExtensions;
}

bool isMadeBySubagent(const SubagentFacts& facts) {
    return facts.isSubagent.value_or(facts.response && facts.isSubagentResponse.value_or(false));
}

}  // namespace

std::optional<std::string> normalizedExtension(std::string_view text) {
    std::string_view trimmed = PythonText::strip(text);
    if (trimmed.size() > maximumExtensionBytes) return std::nullopt;
    if (trimmed.starts_with('.')) trimmed.remove_prefix(1);
    std::string extension = lower(trimmed);
    if (extension.empty() || extension.size() > maximumExtensionLength) return std::nullopt;
    if (!isLowerAlphanumeric(extension.front())) return std::nullopt;
    if (!std::all_of(extension.begin(), extension.end(), isExtensionByte)) return std::nullopt;
    return extension;
}

bool artifactAllowed(ArtifactCategory category, const ArtifactFacts& facts, const ResolvedCapturePolicy& policy) {
    if (!policy.enabled || !isOn(policy.types, category)) return false;

    CaptureThreshold threshold;
    threshold.add(policy.resumeSince);
    threshold.add(policy.typeResumeSince, category);
    if (facts.extension && !extensionAllowed(category, *facts.extension, policy, threshold)) return false;
    return threshold.isReached(facts.modifiedAt);
}

bool assistantResponseAllowed(const AssistantResponseFacts& facts, const ResolvedCapturePolicy& policy) {
    if (facts.kind != "candidate") return true;
    if (facts.hasSourcePath || facts.artifactCategory == ArtifactCategory::plans) return true;
    const std::string_view event = facts.originEvent.value_or("");
    if (event == "codex-proposed-plan" || event.starts_with("plan-file:")) return true;

    if (!policy.includeAssistantResponses) return false;
    if (!policy.assistantResponsesResumeSince) return true;
    return facts.observedAt && *policy.assistantResponsesResumeSince <= *facts.observedAt;
}

bool subagentArtifactAllowed(const SubagentFacts& facts, const CapturePreferences& preferences) {
    if (!isMadeBySubagent(facts)) return true;
    if (facts.response && preferences.includeSubagentResponses) return true;
    if (!preferences.includeSubagentArtifacts) return false;
    if (!preferences.subagentArtifactsResumeSince) return true;
    const auto since = eventSeconds(*preferences.subagentArtifactsResumeSince);
    return since && facts.observedAt && *since <= *facts.observedAt;
}

}  // namespace vellark::CaptureRules
