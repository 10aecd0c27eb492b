#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace vellark {

namespace CaptureRules {

// Which files in the folders of agents are the agents' own. Names are compared exactly: agents make these folders
// themselves.

/// The components of a path, as PythonPath::parts or PythonPath::relativeParts gives them.
using PathParts = std::span<const std::string_view>;

/// Whether the path leads into the memories that Codex keeps: ".codex" and below it "memories" or one of its numbered
/// successors, "memories_v2" and so on.
[[nodiscard]] bool codexMemoryArtifact(PathParts parts);

/// Whether the file is one that Hermes keeps while it runs (see CaptureVisibilityPolicy::isHermesRuntimeRelativePath):
/// below any folder ".hermes", or below the home that it was given.
[[nodiscard]] bool hermesRuntimeArtifact(std::string_view path, std::optional<std::string_view> hermesHome);

/// Whether each hidden folder in the path is one in which agents leave work for people: ".claude/plans",
/// ".claude/handoff", ".codex/plans", ".omc/plans" or ".github". As a prefix, a path may also end on the way into one:
/// ".claude" alone.
[[nodiscard]] bool hiddenFoldersAllowed(PathParts parts, bool prefix);

}  // namespace CaptureRules

}  // namespace vellark
