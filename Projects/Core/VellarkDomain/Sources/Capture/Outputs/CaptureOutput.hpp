#pragma once

#include <VellarkDomain/Capture/Preferences/ArtifactCategory.hpp>
#include <VellarkFoundation/Records/Enumeration.hpp>

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace vellark {

struct CapturePreferences;
struct ResolvedCapturePolicy;

/// A place that is watched because finished work is dropped there without a hook's report: the output folders of
/// desktop agents, and the user's downloads. `downloadsInbox` is the watched place of all downloads; the other
/// downloads cases are the kinds of files that the user takes from it.
enum class CaptureOutput {
    claudeCowork,
    codexImages,
    codexVisualizations,
    manus,
    downloadsInbox,
    downloadsDocuments,
    downloadsPDFs,
    downloadsOffice,
    downloadsImages,
};

template <>
inline constexpr auto caseTable<CaptureOutput> = std::to_array<CaseName<CaptureOutput>>({
    {CaptureOutput::claudeCowork, "claudeCowork"},
    {CaptureOutput::codexImages, "codexImages"},
    {CaptureOutput::codexVisualizations, "codexVisualizations"},
    {CaptureOutput::manus, "manus"},
    {CaptureOutput::downloadsInbox, "downloadsInbox"},
    {CaptureOutput::downloadsDocuments, "downloadsDocuments"},
    {CaptureOutput::downloadsPDFs, "downloadsPDFs"},
    {CaptureOutput::downloadsOffice, "downloadsOffice"},
    {CaptureOutput::downloadsImages, "downloadsImages"},
});

/// Which outputs and which of their files the user takes. Extensions are lower-case, without the point; look-ups take
/// the text as given.
namespace CaptureOutputs {

/// The kinds of files that are taken from the downloads.
inline constexpr std::array<CaptureOutput, 4> inboxKinds = {
    CaptureOutput::downloadsDocuments,
    CaptureOutput::downloadsPDFs,
    CaptureOutput::downloadsOffice,
    CaptureOutput::downloadsImages,
};

/// What agents hand over as finished work, in ascending order. Sources and logs beside it are no outputs.
inline constexpr auto agentFileExtensions =
    std::to_array<std::string_view>({"csv", "docx", "gif", "htm", "html", "jpeg", "jpg", "markdown", "md", "mov", "mp4",
                                     "pdf", "png", "pptx", "svg", "webm", "webp", "xlsx"});

/// The event under which a document of the output is recorded, such as "output:manus".
[[nodiscard]] std::string originEvent(CaptureOutput output);

/// Whether the output counts in a record that does not mention it: all but the downloads as a whole.
[[nodiscard]] bool isEnabledByDefault(CaptureOutput output);

/// What the user's record says of the output, or its default.
[[nodiscard]] bool isEnabled(CaptureOutput output, const CapturePreferences& preferences);
void setEnabled(CaptureOutput output, bool enabled, CapturePreferences& preferences);

/// The kind of download that an extension makes; nothing for one that is not taken.
[[nodiscard]] std::optional<CaptureOutput> inboxKind(std::string_view forExtension);

struct FileFacts {
    std::string_view extension;
    ArtifactCategory category = ArtifactCategory::other;
    std::optional<double> modifiedAt;  ///< seconds since 1970; unknown: no moment holds the file back
};

/// Whether the policy takes the output's file. A download is judged by its kind, any other file by its category. A file
/// that was changed at the very moment from which a choice applies is taken. What the policy does not mention is off.
[[nodiscard]] bool allows(CaptureOutput output, const FileFacts& file, const ResolvedCapturePolicy& policy);

}  // namespace CaptureOutputs

}  // namespace vellark
