#pragma once

#include <VellarkDomain/Documents/Library/CaptureLibrary.hpp>

#include <string>
#include <string_view>
#include <vector>

/// Library files for tests, put together key by key.
namespace vellark::testing {

enum class FieldType { text, truth, integer, texts, storageKind, revisions };

struct FieldRow {
    std::string key;
    FieldType type;
    bool isRequired = false;
    std::string sample;  ///< JSON
};

inline const std::vector<FieldRow>& revisionRows() {
    using enum FieldType;
    static const std::vector<FieldRow> rows = {
        {"id", text, true, "\"r1\""},
        {"contentHash", text, true, "\"ab12\""},
        {"snapshotPath", text, true, "\"/s/a.md\""},
        {"capturedAt", text, true, "\"2026-01-02T03:04:05Z\""},
        {"originEvent", text, true, "\"plan-file:x\""},
        {"source", text, false, "\"claude\""},
        {"model", text, false, "\"m\""},
        {"sourceSession", text, false, "\"s\""},
        {"reviewEligible", truth, false, "false"},
        {"artifactCategory", text, false, "\"plans\""},
        {"byteSize", integer, false, "9223372036854775807"},
        {"sourceProfileID", text, false, "\"p\""},
        {"sourceProfileLabel", text, false, "\"가\""},
        {"sourceKind", text, false, "\"cli\""},
        {"profileIdentityOrigin", text, false, "\"o\""},
        {"profileIdentityVerified", truth, false, "true"},
        {"isSubagentResponse", truth, false, "false"},
        {"parentSessionID", text, false, "\"\""},
        {"mainProjectRoot", text, false, "\"/m\""},
        {"isSubagent", truth, false, "true"},
        {"isPreviewHelper", truth, false, "true"},
        {"previewHelperPolicyVersion", integer, false, "1"},
        {"isInternalArtifact", truth, false, "false"},
        {"internalArtifactPolicyVersion", integer, false, "-3"},
        {"isIgnoredMachineData", truth, false, "false"},
        {"sourceCreatedAt", text, false, "\"c\""},
        {"sourceModifiedAt", text, false, "\"d\""},
        {"sourceMetadataChanges", texts, false, "[\"title\",\"place\"]"},
        {"isPreexistingFile", truth, false, "true"},
        {"isIgnoredPreexistingFile", truth, false, "true"},
        {"storageKind", storageKind, false, "\"sourceReference\""},
        {"storagePolicyVersion", integer, false, "2"},
    };
    return rows;
}

inline const std::vector<FieldRow>& recordRows() {
    using enum FieldType;
    static const std::vector<FieldRow> rows = {
        {"id", text, true, "\"d1\""},
        {"title", text, true, "\"제목 \\\"1\\\"\\n\""},
        {"project", text, true, "\"p\""},
        {"source", text, true, "\"claude\""},
        {"sourcePath", text, false, "\"/a/b.md\""},
        {"sourcePathIsCurrent", truth, false, "true"},
        {"sourceSession", text, false, "\"s\""},
        {"kind", text, true, "\"markdown\""},
        {"createdAt", text, true, "\"\""},
        {"updatedAt", text, true, "\"u\""},
        {"revisions", revisions, true, "[]"},
        {"projectRoot", text, false, "\"/a\""},
        {"model", text, false, "\"m\""},
        {"lastCapturedHash", text, false, "\"h\""},
        {"artifactCategory", text, false, "\"whatever\""},
        {"byteSize", integer, false, "-9223372036854775808"},
        {"sourceProfileID", text, false, "\"p\""},
        {"sourceProfileLabel", text, false, "\"l\""},
        {"sourceKind", text, false, "\"k\""},
        {"profileIdentityOrigin", text, false, "\"o\""},
        {"profileIdentityVerified", truth, false, "false"},
        {"isSubagentResponse", truth, false, "true"},
        {"parentSessionID", text, false, "\"x\""},
        {"mainProjectRoot", text, false, "\"y\""},
        {"isSubagent", truth, false, "false"},
    };
    return rows;
}

/// An object of all the rows; the one at `changed` with another value, or left out when that is "".
inline std::string objectText(const std::vector<FieldRow>& rows, std::size_t changed = static_cast<std::size_t>(-1),
                              std::string_view value = {}) {
    std::string text;
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const std::string_view shown = index == changed ? value : std::string_view(rows[index].sample);
        if (shown.empty()) continue;
        text += (text.empty() ? "" : ",") + ("\"" + rows[index].key + "\":") + std::string(shown);
    }
    return "{" + text + "}";
}

inline std::string libraryText(std::string_view record) {
    return R"({"version":1,"documents":[)" + std::string(record) + "]}";
}

inline std::string recordText(std::string_view revision) {
    return objectText(recordRows(), 10, "[" + std::string(revision) + "]");
}

}  // namespace vellark::testing
