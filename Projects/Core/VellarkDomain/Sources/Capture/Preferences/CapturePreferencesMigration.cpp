#include <VellarkDomain/Capture/Preferences/CapturePreferences.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>

#include <algorithm>
#include <set>

// Older records lack what came later: videos had no category of their own and were captured as other or unlisted files;
// before that there were categories without a list of extensions. What such a record captured, its migrated form does
// too. One function for each field that needs more than its default.

namespace vellark {

namespace {

using Switches = CapturePreferences::Switches;
using Moments = CapturePreferences::Moments;

/// A record as it is stored, of any age: the fields that migration looks at, and all others in `rest`.
struct Stored {
    Switches types;
    std::optional<std::vector<std::string>> extensions;
    std::optional<bool> includeExtensionless;
    std::optional<bool> includeUnlistedExtensions;
    CapturePreferences rest;
};

template <class Fields>
void describe(Fields& fields, Stored& stored) {
    CapturePreferences& rest = stored.rest;
    fields.withDefault("enabled", rest.enabled, true);
    fields.withDefault("types", stored.types, Switches());
    fields.optional("extensions", stored.extensions);
    fields.optional("includeExtensionless", stored.includeExtensionless);
    fields.optional("includeUnlistedExtensions", stored.includeUnlistedExtensions);
    fields.withDefault("includeAssistantResponses", rest.includeAssistantResponses, false);
    fields.optional("assistantResponsesResumeSince", rest.assistantResponsesResumeSince);
    fields.withDefault("includeSubagentResponses", rest.includeSubagentResponses, false);
    fields.withDefault("includeSubagentArtifacts", rest.includeSubagentArtifacts, false);
    fields.optional("subagentArtifactsResumeSince", rest.subagentArtifactsResumeSince);
    fields.optional("documentChangesReviewSince", rest.documentChangesReviewSince);
    fields.withDefault("captureTitleChanges", rest.captureTitleChanges, false);
    fields.withDefault("captureLocationChanges", rest.captureLocationChanges, false);
    fields.withDefault("showsAgentHomeFiles", rest.showsAgentHomeFiles, false);
    fields.withDefault("includesUserFiles", rest.includesUserFiles, false);
    fields.withDefault("includeTemporaryFolderDocuments", rest.includeTemporaryFolderDocuments, false);
    fields.withDefault("excludedDocumentIDs", rest.excludedDocumentIDs, std::vector<std::string>());
    fields.optional("resumeSince", rest.resumeSince);
    fields.withDefault("typeResumeSince", rest.typeResumeSince, Moments());
    fields.withDefault("extensionResumeSince", rest.extensionResumeSince, Moments());
    fields.optional("extensionlessResumeSince", rest.extensionlessResumeSince);
    fields.optional("unlistedResumeSince", rest.unlistedResumeSince);
    fields.optional("readsSessionRecords", rest.readsSessionRecords);
    fields.withDefault("agentStores", rest.agentStores, Switches());
    fields.withDefault("outputs", rest.outputs, Switches());
    fields.withDefault("outputResumeSince", rest.outputResumeSince, Moments());
    fields.optional("collectionDefaultsVersion", rest.collectionDefaultsVersion);
}

std::optional<bool> entry(const Switches& types, ArtifactCategory category) {
    const auto found = types.find(std::string(rawValue(category)));
    if (found == types.end()) return std::nullopt;
    return found->second;
}

/// The facts about a stored record that several fields depend on.
struct Facts {
    std::vector<std::string> listed;  // the stored extensions, normalised
    bool lacksVideos = false;         // from before videos had a category
    bool includesOther = false;
    bool videosWereUnlisted = false;  // videos were captured as unlisted extensions

    explicit Facts(const Stored& stored)
        : listed(CapturePreferences::normalizedExtensions(stored.extensions.value_or(std::vector<std::string>()))),
          lacksVideos(!entry(stored.types, ArtifactCategory::videos)) {
        includesOther = entry(stored.types, ArtifactCategory::other).value_or(listsOther());
        videosWereUnlisted = lacksVideos && includesOther && includedUnlisted(stored);
    }

    [[nodiscard]] bool lists(ArtifactCategory category) const {
        const auto own = ArtifactCategories::fileExtensions(category);
        return std::ranges::any_of(
            listed, [&](const std::string& extension) { return std::ranges::find(own, extension) != own.end(); });
    }

private:
    [[nodiscard]] bool listsOther() const {
        return std::ranges::any_of(listed, [&](const std::string& extension) {
            const ArtifactCategory category = ArtifactCategories::category(extension);
            return category == ArtifactCategory::other || (lacksVideos && category == ArtifactCategory::videos);
        });
    }

    static bool includedUnlisted(const Stored& stored) {
        if (stored.includeUnlistedExtensions) return *stored.includeUnlistedExtensions;
        if (stored.extensions) return false;
        return entry(stored.types, ArtifactCategory::other).value_or(false);
    }
};

bool migratedType(ArtifactCategory category, const Stored& stored, const Facts& facts) {
    if (category == ArtifactCategory::other) return facts.includesOther;
    if (const auto given = entry(stored.types, category)) return *given;
    if (category == ArtifactCategory::videos) {
        return facts.includesOther && (facts.lists(category) || facts.videosWereUnlisted);
    }
    return ArtifactCategories::isEnabledByDefault(category) || facts.lists(category);
}

std::vector<std::string> migratedExtensions(const Stored& stored, const Facts& facts) {
    std::vector<std::string> extensions;
    const auto add = [&](std::span<const std::string_view> more) {
        extensions.insert(extensions.end(), more.begin(), more.end());
    };
    if (stored.extensions) {
        extensions = *stored.extensions;
    } else {
        add(CapturePreferences::firstExtensions);
        for (const ArtifactCategory category : allCases<ArtifactCategory>()) {
            if (entry(stored.types, category).value_or(false)) add(ArtifactCategories::fileExtensions(category));
        }
    }
    if (facts.videosWereUnlisted) add(ArtifactCategories::fileExtensions(ArtifactCategory::videos));
    return CapturePreferences::normalizedExtensions(extensions);
}

bool migratedExtensionless(const Stored& stored) {
    if (stored.includeExtensionless) return *stored.includeExtensionless;
    if (stored.extensions) return false;
    return entry(stored.types, ArtifactCategory::other).value_or(false) ||
           entry(stored.types, ArtifactCategory::code).value_or(false);
}

bool migratedUnlisted(const Stored& stored) {
    if (stored.includeUnlistedExtensions) return *stored.includeUnlistedExtensions;
    return !stored.extensions && entry(stored.types, ArtifactCategory::other).value_or(false);
}

void raise(Moments& moments, const std::string& key, const std::string& moment) {
    std::string& present = moments[key];
    present = std::max(present, moment);
}

Moments migratedTypeMoments(Moments moments, const Facts& facts) {
    const auto other = moments.find(std::string(rawValue(ArtifactCategory::other)));
    if (facts.lacksVideos && other != moments.end()) {
        raise(moments, std::string(rawValue(ArtifactCategory::videos)), std::string(other->second));
    }
    return moments;
}

Moments migratedExtensionMoments(const Stored& stored, const Facts& facts) {
    Moments moments;
    for (const auto& [key, moment] : stored.rest.extensionResumeSince) {
        if (const auto extension = CapturePreferences::normalizedExtension(key)) raise(moments, *extension, moment);
    }
    if (!facts.videosWereUnlisted || !stored.rest.unlistedResumeSince) return moments;
    for (const std::string_view video : ArtifactCategories::fileExtensions(ArtifactCategory::videos)) {
        if (std::ranges::find(facts.listed, video) != facts.listed.end()) continue;
        raise(moments, std::string(video), *stored.rest.unlistedResumeSince);
    }
    return moments;
}

CapturePreferences migrated(Stored stored) {
    const Facts facts(stored);
    CapturePreferences result = stored.rest;
    for (const ArtifactCategory category : allCases<ArtifactCategory>()) {
        result.types.insert_or_assign(std::string(rawValue(category)), migratedType(category, stored, facts));
    }
    result.extensions = migratedExtensions(stored, facts);
    result.includeExtensionless = migratedExtensionless(stored);
    result.includeUnlistedExtensions = migratedUnlisted(stored);
    const std::set<std::string> excluded(stored.rest.excludedDocumentIDs.begin(),
                                         stored.rest.excludedDocumentIDs.end());
    result.excludedDocumentIDs.assign(excluded.begin(), excluded.end());
    result.typeResumeSince = migratedTypeMoments(stored.rest.typeResumeSince, facts);
    result.extensionResumeSince = migratedExtensionMoments(stored, facts);
    return result;
}

}  // namespace

bool decodeValue(JSONNode node, CapturePreferences& preferences, DecodingContext& context) {
    Stored stored;
    if (!decodeValue(node, stored, context)) return false;
    preferences = migrated(std::move(stored));
    return true;
}

}  // namespace vellark
