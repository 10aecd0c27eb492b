#pragma once

#include <VellarkDomain/Agents/AgentSourceProfile.hpp>
#include <VellarkDomain/Capture/Preferences/ArtifactCategory.hpp>
#include <VellarkDomain/Documents/Library/DocumentRevision.hpp>

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// One document of the library with all that was captured of it. `id` is its identity everywhere. Its own copies of
/// profile and subagent fields are for lists; what is derived below prefers the latest revision's.
struct DocumentRecord {
    std::string id;
    std::string title;
    std::string project;
    std::string source;                     ///< "agent-conversation" marks a kept conversation
    std::optional<std::string> sourcePath;  ///< of the file; absent for content without one
    std::optional<bool> sourcePathIsCurrent;
    std::optional<std::string> sourceSession;
    std::string kind;  ///< "markdown", "html", "candidate", "text", "file", "image", "video", "pdf" or another
    std::string createdAt;
    std::string updatedAt;
    std::vector<DocumentRevision> revisions;  ///< in the order of capture
    std::optional<std::string> projectRoot;
    std::optional<std::string> model;
    std::optional<std::string> lastCapturedHash;
    std::optional<std::string> artifactCategory;  ///< raw text of an ArtifactCategory, or any other
    std::optional<std::int64_t> byteSize;
    std::optional<std::string> sourceProfileID;
    std::optional<std::string> sourceProfileLabel;
    std::optional<std::string> sourceKind;
    std::optional<std::string> profileIdentityOrigin;
    std::optional<bool> profileIdentityVerified;
    std::optional<bool> isSubagentResponse;
    std::optional<std::string> parentSessionID;
    std::optional<std::string> mainProjectRoot;
    std::optional<bool> isSubagent;

    std::map<std::string, std::string> sessionTitles;  ///< found while the host runs; never stored

    /// The last revision; a null pointer when there is none.
    [[nodiscard]] const DocumentRevision* latestRevision() const;

    /// More than one state was captured.
    [[nodiscard]] bool isUpdated() const { return revisions.size() > 1; }

    /// Captured at most once, and not from a file that was there before the agent.
    [[nodiscard]] bool isNewDocument() const;

    /// Whether the content may be read as text.
    [[nodiscard]] bool supportsTextContent() const;

    /// The category of a text file in a record of the older form, whose kind says only "file".
    [[nodiscard]] std::optional<ArtifactCategory> legacyTextCategory() const;

    /// What the document is shown as and filtered by.
    [[nodiscard]] ArtifactCategory category() const;

    /// The name of the office application behind the file, or else the category's, in the user's language.
    [[nodiscard]] std::string categoryTitle() const;

    /// Name of the picture that stands for the document.
    [[nodiscard]] std::string_view symbol() const;

    /// The profile of the latest revision alone, "unknown" when that names no source; the record's own only when there
    /// is no revision.
    [[nodiscard]] AgentSourceProfile sourceProfile() const;
    [[nodiscard]] std::string sourceProfileDisplayName() const { return sourceProfile().displayName(); }
    [[nodiscard]] std::string sourceProfileGroupingKey() const { return sourceProfile().id(); }

    bool operator==(const DocumentRecord&) const = default;
};

template <class Fields>
void describe(Fields& fields, DocumentRecord& record) {
    fields.required("id", record.id);
    fields.required("title", record.title);
    fields.required("project", record.project);
    fields.required("source", record.source);
    fields.optional("sourcePath", record.sourcePath);
    fields.optional("sourcePathIsCurrent", record.sourcePathIsCurrent);
    fields.optional("sourceSession", record.sourceSession);
    fields.required("kind", record.kind);
    fields.required("createdAt", record.createdAt);
    fields.required("updatedAt", record.updatedAt);
    fields.required("revisions", record.revisions);
    fields.optional("projectRoot", record.projectRoot);
    fields.optional("model", record.model);
    fields.optional("lastCapturedHash", record.lastCapturedHash);
    fields.optional("artifactCategory", record.artifactCategory);
    fields.optional("byteSize", record.byteSize);
    fields.optional("sourceProfileID", record.sourceProfileID);
    fields.optional("sourceProfileLabel", record.sourceProfileLabel);
    fields.optional("sourceKind", record.sourceKind);
    fields.optional("profileIdentityOrigin", record.profileIdentityOrigin);
    fields.optional("profileIdentityVerified", record.profileIdentityVerified);
    fields.optional("isSubagentResponse", record.isSubagentResponse);
    fields.optional("parentSessionID", record.parentSessionID);
    fields.optional("mainProjectRoot", record.mainProjectRoot);
    fields.optional("isSubagent", record.isSubagent);
    fields.unstored(record.sessionTitles);
}

}  // namespace vellark
