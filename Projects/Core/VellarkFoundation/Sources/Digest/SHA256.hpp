#pragma once

#include <string>
#include <string_view>

namespace vellark {

/// SHA-256 (FIPS 180-4).
namespace SHA256 {

/// The digest of the bytes as 64 lower-case hexadecimal digits.
[[nodiscard]] std::string hexadecimal(std::string_view bytes);

}  // namespace SHA256

}  // namespace vellark
