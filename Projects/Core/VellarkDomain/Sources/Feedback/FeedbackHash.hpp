#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vellark {

/// FNV-1a with 64 bits, as notes are anchored by it. Constants from the definition by Fowler, Noll and Vo.
namespace FeedbackHash {

inline constexpr std::uint64_t offsetBasis = 0xCBF29CE484222325U;
inline constexpr std::uint64_t prime = 0x100000001B3U;

/// The state behind one more byte.
[[nodiscard]] constexpr std::uint64_t step(std::uint64_t state, unsigned char byte) {
    return (state ^ byte) * prime;
}

/// The state behind one more line's hash, taken in as eight bytes, the lowest first.
[[nodiscard]] constexpr std::uint64_t combined(std::uint64_t state, std::uint64_t lineHash) {
    for (int byte = 0; byte < 8; ++byte)
        state = step(state, static_cast<unsigned char>(lineHash >> (8 * byte)));
    return state;
}

/// The hash of a line without the spaces and tabs at its end. An ill-formed subpart counts as U+FFFD.
[[nodiscard]] std::uint64_t ofLine(std::string_view line);

/// The same for a line that is known to be well-formed.
[[nodiscard]] std::uint64_t ofWellFormedLine(std::string_view line);

/// 16 lower-case hexadecimal digits.
[[nodiscard]] std::string text(std::uint64_t hash);

}  // namespace FeedbackHash

}  // namespace vellark
