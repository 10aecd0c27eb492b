#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// The folders whose files the system may delete at any time, on this machine.
struct CaptureTemporaryScope {
    std::optional<std::string> temporaryDirectory;          ///< of the process, such as TMPDIR; a relative one is none
    std::optional<std::string> resolvedTemporaryDirectory;  ///< the same with its symbolic links resolved
    std::string dataFolderParent;                           ///< the folder in which the data folder lies

    /// The folders that are temporary everywhere, then this machine's own.
    [[nodiscard]] std::vector<std::string> roots() const;

    /// True for one of the roots and for what lies below. The path must be normal (see PythonText::normpath).
    [[nodiscard]] bool holds(std::string_view path) const;

    bool operator==(const CaptureTemporaryScope&) const = default;
};

namespace CaptureRules {

/// Whether the file may vanish at any time. Where the data folder itself was put below a temporary root, as tests and
/// trials do, what lies beside it is not temporary.
[[nodiscard]] bool temporaryLocation(std::string_view path, const CaptureTemporaryScope& scope);

/// Whether the path leads through no hidden folder into one of the folders in which agents leave their drafts, "/tmp"
/// and the like; the file's own name must not be hidden either.
[[nodiscard]] bool temporaryDocumentFolder(std::string_view path);

/// Whether a ".txt" file is written for a machine, as its name or its folder tells: build files, lists of requirements,
/// licences, logs.
[[nodiscard]] bool nonDocumentText(std::string_view path);

/// Whether a file in such a folder is a document in its own right: Markdown, HTML, PDF or text.
[[nodiscard]] bool temporaryDocument(std::string_view path);

}  // namespace CaptureRules

}  // namespace vellark
