#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// Universally unique identifiers as text (RFC 9562).
namespace UUID {

/// A new random identifier (version 4) in lower case, 36 characters. Nothing when the system has no randomness to give.
[[nodiscard]] std::optional<std::string> random();

/// True for 36 ASCII characters, hexadecimal in groups of 8-4-4-4-12, in either case, of any version; no braces.
[[nodiscard]] bool isValid(std::string_view text);

}  // namespace UUID

}  // namespace vellark
