#pragma once

#include <VellarkDomain/Documents/Library/DocumentRevisionProvenance.hpp>
#include <VellarkFoundation/Records/Enumeration.hpp>
#include <VellarkFoundation/Records/OptionalBox.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// How the content of a revision is held: as a copy, as a pointer to the user's own file, or no longer.
enum class DocumentStorageKind { snapshot, sourceReference, released };

template <>
inline constexpr auto caseTable<DocumentStorageKind> = std::to_array<CaseName<DocumentStorageKind>>({
    {DocumentStorageKind::snapshot, "snapshot"},
    {DocumentStorageKind::sourceReference, "sourceReference"},
    {DocumentStorageKind::released, "released"},
});

/// One captured state of a document. `id` is its identity. Timestamps are the text that the capturing side wrote.
struct DocumentRevision {
    /// `originEvent` of a revision that was written as a plan begins so.
    static constexpr std::string_view planEventPrefix = "plan-file:";

    std::string id;
    std::string contentHash;
    std::string snapshotPath;  ///< of the stored copy
    std::string capturedAt;
    std::string originEvent;  ///< what caused the capture: "plan-file:…", "output:…", "chat-save" or another event
    std::optional<std::string> source;
    std::optional<std::string> model;
    std::optional<std::string> sourceSession;
    bool reviewEligible = true;                   ///< may enter review
    std::optional<std::string> artifactCategory;  ///< raw text of an ArtifactCategory, or any other
    std::optional<std::int64_t> byteSize;         ///< of the content

    // As AgentSourceProfile has them.
    std::optional<std::string> sourceProfileID;
    std::optional<std::string> sourceProfileLabel;
    std::optional<std::string> sourceKind;
    std::optional<std::string> profileIdentityOrigin;
    std::optional<bool> profileIdentityVerified;

    std::optional<bool> isSubagentResponse;
    std::optional<std::string> parentSessionID;  ///< the session that started the subagent
    std::optional<std::string> mainProjectRoot;  ///< of the main checkout, when a worktree was worked in
    std::optional<bool> isSubagent;

    // Verdicts of the capture rules, each with the version of the rules that gave it.
    std::optional<bool> isPreviewHelper;
    std::optional<std::int64_t> previewHelperPolicyVersion;
    std::optional<bool> isInternalArtifact;
    std::optional<std::int64_t> internalArtifactPolicyVersion;
    std::optional<bool> isIgnoredMachineData;

    // The source file.
    std::optional<std::string> sourceCreatedAt;
    std::optional<std::string> sourceModifiedAt;
    std::vector<std::string> sourceMetadataChanges;
    std::optional<bool> isPreexistingFile;  ///< the file was there before the agent touched it
    std::optional<bool> isIgnoredPreexistingFile;

    std::optional<DocumentStorageKind> storageKind;
    std::optional<std::int64_t> storagePolicyVersion;
    OptionalBox<DocumentRevisionProvenance> provenance;

    bool operator==(const DocumentRevision&) const = default;
};

template <class Fields>
void describe(Fields& fields, DocumentRevision& revision) {
    fields.required("id", revision.id);
    fields.required("contentHash", revision.contentHash);
    fields.required("snapshotPath", revision.snapshotPath);
    fields.required("capturedAt", revision.capturedAt);
    fields.required("originEvent", revision.originEvent);
    fields.optional("source", revision.source);
    fields.optional("model", revision.model);
    fields.optional("sourceSession", revision.sourceSession);
    fields.withDefault("reviewEligible", revision.reviewEligible, true);
    fields.optional("artifactCategory", revision.artifactCategory);
    fields.optional("byteSize", revision.byteSize);
    fields.optional("sourceProfileID", revision.sourceProfileID);
    fields.optional("sourceProfileLabel", revision.sourceProfileLabel);
    fields.optional("sourceKind", revision.sourceKind);
    fields.optional("profileIdentityOrigin", revision.profileIdentityOrigin);
    fields.optional("profileIdentityVerified", revision.profileIdentityVerified);
    fields.optional("isSubagentResponse", revision.isSubagentResponse);
    fields.optional("parentSessionID", revision.parentSessionID);
    fields.optional("mainProjectRoot", revision.mainProjectRoot);
    fields.optional("isSubagent", revision.isSubagent);
    fields.optional("isPreviewHelper", revision.isPreviewHelper);
    fields.optional("previewHelperPolicyVersion", revision.previewHelperPolicyVersion);
    fields.optional("isInternalArtifact", revision.isInternalArtifact);
    fields.optional("internalArtifactPolicyVersion", revision.internalArtifactPolicyVersion);
    fields.optional("isIgnoredMachineData", revision.isIgnoredMachineData);
    fields.optional("sourceCreatedAt", revision.sourceCreatedAt);
    fields.optional("sourceModifiedAt", revision.sourceModifiedAt);
    fields.withDefault("sourceMetadataChanges", revision.sourceMetadataChanges, std::vector<std::string>());
    fields.optional("isPreexistingFile", revision.isPreexistingFile);
    fields.optional("isIgnoredPreexistingFile", revision.isIgnoredPreexistingFile);
    fields.optional("storageKind", revision.storageKind);
    fields.optional("storagePolicyVersion", revision.storagePolicyVersion);
    fields.tolerant("provenance", revision.provenance);  // an older shape of it must not cost the library
}

}  // namespace vellark
