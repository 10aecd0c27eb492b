#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// The project that a file belongs to, told by the version control around it.
struct ProjectRoot {
    std::string root;
    std::optional<std::string> mainRoot;  ///< of the main checkout, when `root` is a linked worktree

    /// The nearest folder around the file with a ".git" in it, but not the home or anything above it; without one, the
    /// event's directory when the file lies in it, or else the file's own folder. Paths are absolute and normal.
    [[nodiscard]] static ProjectRoot ofFile(std::string_view file, std::string_view directory, std::string_view home);

    bool operator==(const ProjectRoot&) const = default;
};

}  // namespace vellark
