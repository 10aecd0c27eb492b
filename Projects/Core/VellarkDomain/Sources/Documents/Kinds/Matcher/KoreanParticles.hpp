#pragma once

#include <span>
#include <string_view>

namespace vellark {

/// The particles that Korean writes directly behind a noun.
namespace KoreanParticles {

[[nodiscard]] std::span<const std::u32string_view> words();

/// Whether the whole text is a particle.
[[nodiscard]] bool contains(std::u32string_view text);

/// Whether the Korean syllables from `position` on, up to the first scalar that is none, are a particle.
[[nodiscard]] bool standsAt(std::u32string_view text, std::size_t position);

}  // namespace KoreanParticles

}  // namespace vellark
