#pragma once

#include <VellarkDomain/Capture/Preferences/ArtifactCategory.hpp>
#include <VellarkDomain/Capture/Rules/CaptureTemporaryScope.hpp>

#include <string_view>

namespace vellark {

// What a file is, and whether it may be captured at all, by its path alone.
namespace CaptureRules {

struct ArtifactType {
    ArtifactCategory category = ArtifactCategory::other;
    std::string_view kind = "file";  ///< "markdown", "html", "image", "video", "pdf", "text" or "file"

    bool operator==(const ArtifactType&) const = default;
};

/// The type of a file by its suffix, and of a few files without a telling one by their name ("Makefile", "LICENSE").
/// Case does not count. A document is a plan when the caller says so; no path makes one.
[[nodiscard]] ArtifactType artifactType(std::string_view path, bool isPlan);

/// Whether the file is never captured, whatever the user chose: what agents keep for themselves, files in temporary
/// folders, keys, passwords and other secrets, binaries of the system.
///
/// With `temporaryDocuments` a document in a temporary folder (see temporaryDocument) is judged like any other.
/// Documents, pictures and PDFs are never taken for secrets because of what their names speak of: "api_key.md" is a
/// document, "api_key.json" is excluded.
[[nodiscard]] bool excludedArtifact(std::string_view path, const CaptureTemporaryScope& scope, bool temporaryDocuments);

}  // namespace CaptureRules

}  // namespace vellark
