#pragma once

#include <VellarkDomain/Capture/Preferences/ArtifactCategory.hpp>
#include <VellarkFoundation/JSON/JSONValue.hpp>
#include <VellarkFoundation/Records/DecodingError.hpp>
#include <VellarkFoundation/Result.hpp>

#include <map>
#include <optional>
#include <set>
#include <string>

namespace vellark {

struct CapturePreferences;

/// The user's choices in the form that decisions read: flat, with moments as seconds since 1970. Stored as
/// "capture-policy.json".
///
/// A default-made value captures nothing: a missing file is not a file of defaults.
struct ResolvedCapturePolicy {
    using Seconds = double;

    bool enabled = false;
    std::map<ArtifactCategory, bool> types;
    std::set<std::string> extensions;
    bool includeExtensionless = false;
    bool includeUnlistedExtensions = false;
    bool includeAssistantResponses = false;
    bool captureTitleChanges = false;
    bool captureLocationChanges = false;
    std::optional<Seconds> resumeSince;
    std::map<ArtifactCategory, Seconds> typeResumeSince;
    std::map<std::string, Seconds> extensionResumeSince;
    std::optional<Seconds> extensionlessResumeSince;
    std::optional<Seconds> unlistedResumeSince;
    std::optional<Seconds> assistantResponsesResumeSince;
    std::map<std::string, bool> outputs;
    std::map<std::string, Seconds> outputResumeSince;

    /// Reads the flat record with the greatest leniency: a value of another type counts for what it is worth, or as
    /// absent. Never fails; a value that is no object gives the default-made policy.
    [[nodiscard]] static ResolvedCapturePolicy fromJSON(const JSONValue& json);

    /// The policy of the user's choices. A moment that is no ISO 8601 text with an offset counts as absent.
    [[nodiscard]] static ResolvedCapturePolicy fromPreferences(const CapturePreferences& preferences);

    /// The content of "capture-policy.json".
    [[nodiscard]] Result<std::string, EncodingError> json() const;

    bool operator==(const ResolvedCapturePolicy&) const = default;
};

}  // namespace vellark
