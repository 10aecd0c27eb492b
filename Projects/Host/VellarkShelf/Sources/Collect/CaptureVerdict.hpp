#pragma once

#include <VellarkFoundation/Records/Enumeration.hpp>

#include <array>
#include <string_view>

namespace vellark {

/// Whether a document goes onto the shelf, and if not, the rule that kept it away.
enum class CaptureVerdict {
    captured,
    missing,
    notAFile,
    unreadable,
    tooLarge,
    excludedPath,
    linkOutside,
    hiddenFolder,
    projectNotSelected,
    projectExcluded,
    typeNotChosen,
    subagent,
    responsesNotChosen,
    previewHelper,
    internalNote,
    removedByUser,
    notStored,
};

template <>
inline constexpr auto caseTable<CaptureVerdict> = std::to_array<CaseName<CaptureVerdict>>({
    {CaptureVerdict::captured, "captured"},
    {CaptureVerdict::missing, "missing"},
    {CaptureVerdict::notAFile, "not-a-file"},
    {CaptureVerdict::unreadable, "unreadable"},
    {CaptureVerdict::tooLarge, "too-large"},
    {CaptureVerdict::excludedPath, "excluded-path"},
    {CaptureVerdict::linkOutside, "link-outside"},
    {CaptureVerdict::hiddenFolder, "hidden-folder"},
    {CaptureVerdict::projectNotSelected, "project-not-selected"},
    {CaptureVerdict::projectExcluded, "project-excluded"},
    {CaptureVerdict::typeNotChosen, "type-not-chosen"},
    {CaptureVerdict::subagent, "subagent"},
    {CaptureVerdict::responsesNotChosen, "responses-not-chosen"},
    {CaptureVerdict::previewHelper, "preview-helper"},
    {CaptureVerdict::internalNote, "internal-note"},
    {CaptureVerdict::removedByUser, "removed-by-user"},
    {CaptureVerdict::notStored, "not-stored"},
});

/// The rule in a few words.
[[nodiscard]] std::string_view explanation(CaptureVerdict verdict);

}  // namespace vellark
