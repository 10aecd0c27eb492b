#pragma once

#include <VellarkDomain/Documents/Kinds/DocumentKind.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// What a path says of the file's kind by itself.
///
///     DocumentKindFileName("docs/design.adr.md")      stem "design.adr", kind designDoc, directory "docs"
///     DocumentKindFileName("notes/.profile")          stem ".profile", no kind
struct DocumentKindFileName {
    std::optional<std::string> stem;  ///< the last component without its extension; nothing without a path
    std::optional<DocumentKind> kind;
    std::string directory;  ///< up to the last "/", without it

    /// An empty path says as little as none.
    explicit DocumentKindFileName(const std::optional<std::string>& path);

    /// The three nearest folders, the nearest first, without those of the project's root when it holds the file.
    [[nodiscard]] std::vector<std::string_view> folders(const std::optional<std::string>& root) const;
};

/// Whether a component of a path matches a pattern, in which "*" stands for one character or more and "#" for one ASCII
/// digit or more. All other characters stand for themselves.
[[nodiscard]] bool matchesGlob(std::string_view text, std::string_view pattern);

}  // namespace vellark
