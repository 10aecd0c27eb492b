#include <VellarkDomain/Capture/Outputs/CaptureOutput.hpp>
#include <VellarkDomain/Capture/Preferences/CapturePreferences.hpp>
#include <VellarkDomain/Capture/Preferences/ResolvedCapturePolicy.hpp>
#include <VellarkDomain/Capture/Rules/CaptureThreshold.hpp>

#include <algorithm>

namespace vellark::CaptureOutputs {

namespace {

constexpr auto officeExtensions = std::to_array<std::string_view>({"csv", "docx", "pptx", "xlsx"});

static_assert(agentFileExtensions.size() == 18 && std::ranges::is_sorted(agentFileExtensions));

}  // namespace

std::string originEvent(CaptureOutput output) {
    return std::string("output:").append(rawValue(output));
}

bool isEnabledByDefault(CaptureOutput output) {
    return output != CaptureOutput::downloadsInbox;
}

bool isEnabled(CaptureOutput output, const CapturePreferences& preferences) {
    const auto entry = preferences.outputs.find(std::string(rawValue(output)));
    return entry == preferences.outputs.end() ? isEnabledByDefault(output) : entry->second;
}

void setEnabled(CaptureOutput output, bool enabled, CapturePreferences& preferences) {
    preferences.outputs.insert_or_assign(std::string(rawValue(output)), enabled);
}

std::optional<CaptureOutput> inboxKind(std::string_view forExtension) {
    using namespace ArtifactCategories;
    if (isMarkdownExtension(forExtension) || isHTMLExtension(forExtension) || forExtension == "txt") {
        return CaptureOutput::downloadsDocuments;
    }
    if (forExtension == "pdf") return CaptureOutput::downloadsPDFs;
    if (std::ranges::binary_search(officeExtensions, forExtension)) return CaptureOutput::downloadsOffice;
    if (std::ranges::binary_search(fileExtensions(ArtifactCategory::images), forExtension)) {
        return CaptureOutput::downloadsImages;
    }
    return std::nullopt;
}

bool allows(CaptureOutput output, const FileFacts& file, const ResolvedCapturePolicy& policy) {
    const std::string key(rawValue(output));
    if (!policy.enabled || !isOn(policy.outputs, key)) return false;

    CaptureThreshold threshold;
    threshold.add(policy.resumeSince);
    threshold.add(policy.outputResumeSince, key);
    if (output == CaptureOutput::downloadsInbox) {
        const auto kind = inboxKind(file.extension);
        if (!kind) return false;
        const std::string kindKey(rawValue(*kind));
        if (!isOn(policy.outputs, kindKey)) return false;
        threshold.add(policy.outputResumeSince, kindKey);
    } else {
        if (!std::ranges::binary_search(agentFileExtensions, file.extension)) return false;
        if (!isOn(policy.types, file.category)) return false;
        threshold.add(policy.typeResumeSince, file.category);
    }
    return threshold.isReached(file.modifiedAt);
}

}  // namespace vellark::CaptureOutputs
