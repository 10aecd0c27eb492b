#pragma once

#include <VellarkFoundation/Unicode/Regex.hpp>

#include <cstddef>
#include <string_view>
#include <vector>

namespace vellark {

/// Values that are secret because of their key's name: `password=…`, `"api_key": "…"`.
namespace SecretKeys {

/// Whether a key names a secret, by its last word: `clientSecret` and `API_KEY` do, `secretName` does not.
[[nodiscard]] bool isSecretKey(std::string_view key);

/// Whether a key that names a secret stands before the sign of assignment, ":" or "=", at the byte.
[[nodiscard]] bool endsSecretKey(std::string_view text, std::size_t sign);

/// The values to blank in the text, in ascending order. A bare value behind "=" has at least 3 characters, one behind
/// ":" at least 8 and one that is no letter; a quoted one has 1 to 256 on its line. Linear in the text.
[[nodiscard]] std::vector<ByteRange> values(std::string_view text, std::string_view mark);

}  // namespace SecretKeys

}  // namespace vellark
