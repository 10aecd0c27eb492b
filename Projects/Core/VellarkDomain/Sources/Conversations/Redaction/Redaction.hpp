#pragma once

#include <string>
#include <string_view>

namespace vellark {

/// Blanks secrets, so that none reaches a record: tokens of known services, private keys, headers, passwords in
/// addresses, and what a key's name declares secret. Linear in the text, without limits of length. Redacting twice
/// gives what redacting once gave.
namespace Redaction {

/// What stands where a secret stood.
inline constexpr std::string_view mark = "••••";

///     redact("export API_KEY=abc123")       "export API_KEY=••••"
///     redact("ghp_16C7e42F292c6912E7710")   "ghp_••••"
///     redact("no secrets here")             as it is
[[nodiscard]] std::string redact(std::string_view text);

}  // namespace Redaction

}  // namespace vellark
