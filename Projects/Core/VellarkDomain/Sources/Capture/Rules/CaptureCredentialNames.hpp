#pragma once

#include <string_view>

namespace vellark {

namespace CaptureRules {

// Names under which keys and passwords lie. Both take case-folded text, need one pass over it, and accept no line feed,
// with which such names are not written.

/// Whether a file's name is that of an SSH key, as its tools and its users write it: "id_" and rsa, ed25519, ecdsa or
/// dsa, alone or with anything behind "-", "_" or ".".
///
///     sshKeyName("id_ed25519")        true
///     sshKeyName("id_rsa-work.txt")   true
///     sshKeyName("id_rsa2")           false
[[nodiscard]] bool sshKeyName(std::string_view name);

/// Whether a file's name without its suffix speaks of a secret: secret, credential, token, auth, API key or service
/// account as its last word, or as the last but one in front of the name of a stage of deployment. Words end at "-",
/// "_" and ".".
///
///     credentialName("prod-secrets")      true
///     credentialName("token.staging")     true
///     credentialName("tokenizer")         false
///     credentialName("token-dev-test")    false
[[nodiscard]] bool credentialName(std::string_view stem);

}  // namespace CaptureRules

}  // namespace vellark
