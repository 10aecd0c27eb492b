#pragma once

#include <VellarkDomain/Capture/Preferences/ArtifactCategory.hpp>
#include <VellarkFoundation/JSON/JSONDocument.hpp>
#include <VellarkFoundation/Records/DecodingError.hpp>

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

class DecodingContext;

/// What the user has chosen to capture. Moments from which a choice applies are ISO 8601 texts of one form, so that the
/// later of two is the greater as text.
///
/// A default-made value is what an empty stored record reads as.
struct CapturePreferences {
    using Switches = std::map<std::string, bool>;
    using Moments = std::map<std::string, std::string>;

    CapturePreferences();

    bool enabled = true;
    Switches types;                       ///< by category id, all seven
    std::vector<std::string> extensions;  ///< normalised, each once, ascending
    bool includeExtensionless = false;
    bool includeUnlistedExtensions = false;
    bool includeAssistantResponses = false;
    std::optional<std::string> assistantResponsesResumeSince;
    bool includeSubagentResponses = false;
    bool includeSubagentArtifacts = false;
    std::optional<std::string> subagentArtifactsResumeSince;
    std::optional<std::string> documentChangesReviewSince;
    bool captureTitleChanges = false;
    bool captureLocationChanges = false;
    bool showsAgentHomeFiles = false;
    bool includesUserFiles = false;
    bool includeTemporaryFolderDocuments = false;
    std::vector<std::string> excludedDocumentIDs;  ///< each once, ascending
    std::optional<std::string> resumeSince;
    Moments typeResumeSince;       ///< by category id
    Moments extensionResumeSince;  ///< by normalised extension
    std::optional<std::string> extensionlessResumeSince;
    std::optional<std::string> unlistedResumeSince;
    std::optional<bool> readsSessionRecords;
    Switches agentStores;       ///< by source
    Switches outputs;           ///< by output kind
    Moments outputResumeSince;  ///< by output kind
    std::optional<std::int64_t> collectionDefaultsVersion;

    /// The extensions that were captured before the user could choose, and with which every record begins.
    static constexpr std::array<std::string_view, 11> firstExtensions = {
        "md", "markdown", "html", "htm", "png", "jpg", "jpeg", "gif", "webp", "heic", "heif"};

    /// The version that `applyCollectionDefaults` leaves behind.
    static constexpr std::int64_t currentCollectionDefaults = 1;

    /// The extension as it is stored: trimmed of white space, lower-case, without one leading point, 1 to 20 characters
    /// of a to z, 0 to 9, "_" and "-", the first a letter or digit. Nothing for any other text.
    [[nodiscard]] static std::optional<std::string> normalizedExtension(std::string_view text);

    /// Each normalised, each once, in ascending order, without those that cannot be normalised.
    [[nodiscard]] static std::vector<std::string> normalizedExtensions(const std::vector<std::string>& list);

    [[nodiscard]] bool isEnabled(ArtifactCategory category) const;
    [[nodiscard]] bool isExtensionEnabled(std::string_view text) const;

    /// Switches one extension; switching it on switches its category on too. No change for a text that is no extension.
    void setExtension(std::string_view text, bool isOn);

    /// Switches a category. One that is switched on without any of its extensions gets a starter set of them.
    void setCategory(ArtifactCategory category, bool isOn);

    /// Applies, once in a record's life, what every collection starts with: files of subagents from the moment `since`
    /// on, and office documents.
    void applyCollectionDefaults(std::string_view since);

    bool operator==(const CapturePreferences&) const = default;
};

/// Reads a stored record of any age, migrated to the present shape. A value of another type under a known key fails.
bool decodeValue(JSONNode node, CapturePreferences& preferences, DecodingContext& context);

/// Writing and hashing: the fields under their own names, in their order. Reading goes through `decodeValue` above.
template <class Fields>
void describe(Fields& fields, CapturePreferences& preferences) {
    fields.required("enabled", preferences.enabled);
    fields.required("types", preferences.types);
    fields.required("extensions", preferences.extensions);
    fields.required("includeExtensionless", preferences.includeExtensionless);
    fields.required("includeUnlistedExtensions", preferences.includeUnlistedExtensions);
    fields.required("includeAssistantResponses", preferences.includeAssistantResponses);
    fields.optional("assistantResponsesResumeSince", preferences.assistantResponsesResumeSince);
    fields.required("includeSubagentResponses", preferences.includeSubagentResponses);
    fields.required("includeSubagentArtifacts", preferences.includeSubagentArtifacts);
    fields.optional("subagentArtifactsResumeSince", preferences.subagentArtifactsResumeSince);
    fields.optional("documentChangesReviewSince", preferences.documentChangesReviewSince);
    fields.required("captureTitleChanges", preferences.captureTitleChanges);
    fields.required("captureLocationChanges", preferences.captureLocationChanges);
    fields.required("showsAgentHomeFiles", preferences.showsAgentHomeFiles);
    fields.required("includesUserFiles", preferences.includesUserFiles);
    fields.required("includeTemporaryFolderDocuments", preferences.includeTemporaryFolderDocuments);
    fields.required("excludedDocumentIDs", preferences.excludedDocumentIDs);
    fields.optional("resumeSince", preferences.resumeSince);
    fields.required("typeResumeSince", preferences.typeResumeSince);
    fields.required("extensionResumeSince", preferences.extensionResumeSince);
    fields.optional("extensionlessResumeSince", preferences.extensionlessResumeSince);
    fields.optional("unlistedResumeSince", preferences.unlistedResumeSince);
    fields.optional("readsSessionRecords", preferences.readsSessionRecords);
    fields.required("agentStores", preferences.agentStores);
    fields.required("outputs", preferences.outputs);
    fields.required("outputResumeSince", preferences.outputResumeSince);
    fields.optional("collectionDefaultsVersion", preferences.collectionDefaultsVersion);
}

}  // namespace vellark
