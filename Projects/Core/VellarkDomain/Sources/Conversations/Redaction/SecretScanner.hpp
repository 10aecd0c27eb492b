#pragma once

#include <VellarkFoundation/Unicode/Regex.hpp>

#include <bitset>
#include <cstddef>
#include <string_view>
#include <vector>

namespace vellark {

/// Finds the secrets of `secretPatterns` without the expressions' engine: each form is a fixed prefix and runs of one
/// class, so that a scanner needs no stack, whatever the length of a run.
namespace SecretScanner {

/// Which patterns may match anywhere in a text. A pattern that is not named cannot, also after others have been
/// blanked.
using Candidates = std::bitset<32>;

/// Bit of `Candidates` for a key with a sign of assignment behind it, which may name a secret.
inline constexpr std::size_t keyCandidate = 31;

/// One pass over the text, at a load and a test for each byte.
[[nodiscard]] Candidates candidates(std::string_view text);

/// What the pattern of that index would blank in the text, in ascending order: all matches, of each its group when it
/// has one. Linear in the text.
[[nodiscard]] std::vector<ByteRange> targets(std::string_view text, std::size_t pattern);

}  // namespace SecretScanner

}  // namespace vellark
