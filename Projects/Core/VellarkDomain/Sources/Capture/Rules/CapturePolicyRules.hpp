#pragma once

#include <VellarkDomain/Capture/Preferences/ArtifactCategory.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace vellark {

struct CapturePreferences;
struct ResolvedCapturePolicy;

// Whether the user's choices let a file or an event in. Moments are seconds since 1970; one that equals the moment from
// which a choice applies is let in.
namespace CaptureRules {

/// The extension as policies hold it: trimmed of Python's white space, lower-case, without one leading point, 1 to 20
/// characters of a to z, 0 to 9, "_" and "-", the first a letter or digit. Nothing for any other text.
///
///     normalizedExtension(" .MD")    "md"
///     normalizedExtension("-x")      nothing
[[nodiscard]] std::optional<std::string> normalizedExtension(std::string_view text);

struct ArtifactFacts {
    std::optional<double> modifiedAt;           ///< unknown: no moment holds the file back
    std::optional<std::string_view> extension;  ///< "" for a file without one; absent: not judged by it
};

/// Whether a file of the category counts. An extension that the policy does not list counts only in the category
/// `other`, and only where unlisted ones do.
[[nodiscard]] bool artifactAllowed(ArtifactCategory category, const ArtifactFacts& facts,
                                   const ResolvedCapturePolicy& policy);

struct AssistantResponseFacts {
    std::optional<std::string_view> kind;
    bool hasSourcePath = false;
    std::optional<ArtifactCategory> artifactCategory;
    std::optional<std::string_view> originEvent;
    std::optional<double> observedAt;
};

/// Whether the document counts where it may be an assistant's response: a candidate without a file that is no plan.
/// Any other document counts.
[[nodiscard]] bool assistantResponseAllowed(const AssistantResponseFacts& facts, const ResolvedCapturePolicy& policy);

struct SubagentFacts {
    std::optional<bool> isSubagent;          ///< absent in older records
    std::optional<bool> isSubagentResponse;  ///< absent counts as false
    bool response = false;                   ///< the document is a response and no file
    std::optional<double> observedAt;
};

/// Whether the document counts where a subagent may have made it. Any other document counts.
[[nodiscard]] bool subagentArtifactAllowed(const SubagentFacts& facts, const CapturePreferences& preferences);

}  // namespace CaptureRules

}  // namespace vellark
