#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace vellark {

/// The signals that wait in the spool.
namespace PendingSignals {

/// Number of entries whose name ends in ".json"; nothing when the directory cannot be listed.
[[nodiscard]] std::optional<std::size_t> count(const std::string& directory);

}  // namespace PendingSignals

}  // namespace vellark
