#pragma once

#include <VellarkDomain/Capture/Outputs/CaptureOutput.hpp>

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vellark::CaptureOutputs {

/// The parts of a path below the root of a watched place.
using PathParts = std::span<const std::string_view>;

/// Least length of a folder's name that is taken for a session, in bytes of ASCII.
inline constexpr std::size_t leastSessionLength = 8;
inline constexpr std::size_t leastManusSessionLength = 6;

/// A file that counts as an output.
struct OutputFile {
    std::optional<std::string> session;  ///< the session that made it, where the path tells

    bool operator==(const OutputFile&) const = default;
};

/// Whether the watcher may descend into the folder. It stays out of hidden folders, out of a session's folders other
/// than the outputs, and at the top of the downloads. The root itself, without parts, is always watched.
[[nodiscard]] bool walks(CaptureOutput output, PathParts parents);

/// The file at the path, with the session to which its folders assign it; nothing when it is no output: a hidden file,
/// one that lies where `walks` does not lead or too high up, or a download under way.
[[nodiscard]] std::optional<OutputFile> session(CaptureOutput output, PathParts parts);

}  // namespace vellark::CaptureOutputs
