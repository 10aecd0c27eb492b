#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// What is visible of the places in which agents keep their data.
struct CaptureVisibilityPolicy {
    /// A directory of an agent, relative to the user's home.
    struct AgentHome {
        std::string_view source;
        std::string_view directory;
    };

    /// Older directories, which count where the present one does not exist.
    static constexpr std::array<AgentHome, 1> agentHomeFallbacks{{{"deepseek", ".deepseek"}}};

    /// The directories of Codex, absolute and normal; nothing in them beyond its memories is judged here.
    std::vector<std::string> codexHomes;

    /// The policy of a user with this home directory: ".codex" in it, and the directory that the settings name for
    /// Codex. That may begin with "~" or "~/", which stands for the home; a relative one is left out.
    [[nodiscard]] static CaptureVisibilityPolicy ofCodexHomes(std::string_view userHome,
                                                              std::optional<std::string_view> chosen);

    /// Whether the path is a folder of Codex's memories or lies below one.
    [[nodiscard]] bool isCodexMemoryPath(std::string_view path) const;

    /// The form in which paths are compared: PythonText::normpath.
    [[nodiscard]] static std::string normalizedPath(std::string_view path);

    /// Whether a path in Hermes's home, given by its components, is one of the files that Hermes keeps while it runs:
    /// caches, logs, sessions, locks and the like, also those of a single profile ("profiles", its name, ...).
    [[nodiscard]] static bool isHermesRuntimeRelativePath(std::span<const std::string_view> parts);

    bool operator==(const CaptureVisibilityPolicy&) const = default;
};

}  // namespace vellark
