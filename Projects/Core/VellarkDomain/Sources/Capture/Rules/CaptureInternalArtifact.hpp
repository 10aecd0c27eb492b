#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace vellark {

namespace CaptureRules {

/// Largest text that is looked at, in bytes of UTF-8; a larger one is no working note, whatever it says.
inline constexpr std::size_t maximumInternalArtifactBytes = 524'288;

/// What is known of a document: its text, the file that holds it, the agent it comes from and the kind of its event.
struct InternalArtifactCandidate {
    std::optional<std::string_view> content;
    std::optional<std::string_view> sourcePath;
    std::optional<std::string_view> source;
    std::optional<std::string_view> kind;
};

/// True for a note that an agent wrote for itself or for its successor: one with the marker "<!-- vellark:internal -->"
/// ahead of all else, a session's handoff in a Codex answer, a repository's capture contract or its generated code map.
/// Whatever is unclear answers false, as does a text with a zero scalar.
[[nodiscard]] bool internalArtifact(const InternalArtifactCandidate& candidate);

}  // namespace CaptureRules

}  // namespace vellark
