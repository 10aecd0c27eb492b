#pragma once

#include <VellarkDomain/Documents/Kinds/DocumentIconPreset.hpp>
#include <VellarkDomain/Documents/Library/DocumentRecord.hpp>
#include <VellarkDomain/Settings/DocumentFileType.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// What a document looks like by its file. The path is the record's own: nothing is read from disk. A revision that is
/// not given is the record's last one.
namespace DocumentIconDescriptor {

/// Whether it was written as a plan: the revision decides, or without any the record's category.
[[nodiscard]] bool isPlan(const DocumentRecord& record, const DocumentRevision* revision = nullptr);

/// The path of the file: the record's source path without white space at its ends, or else the revision's copy. A
/// candidate has none but the former.
[[nodiscard]] std::optional<std::string> filePath(const DocumentRecord& record,
                                                  const DocumentRevision* revision = nullptr);

/// The extension of that path as preferences store extensions.
[[nodiscard]] std::optional<std::string> fileExtension(const DocumentRecord& record,
                                                       const DocumentRevision* revision = nullptr);

/// The icon of an extension: `file` for one that nobody knows, nothing for a text that is no extension.
[[nodiscard]] std::optional<DocumentIconPreset> defaultPreset(std::string_view forExtension);

/// The icon of a document: a plan's, its extension's, or that of code for build files without one.
[[nodiscard]] std::optional<DocumentIconPreset> defaultPreset(const DocumentRecord& record,
                                                              const DocumentRevision* revision = nullptr);

/// The file's type; nothing for a plan and for a document without a file.
[[nodiscard]] std::optional<DocumentFileType> fileType(const DocumentRecord& record,
                                                       const DocumentRevision* revision = nullptr);

}  // namespace DocumentIconDescriptor

}  // namespace vellark
