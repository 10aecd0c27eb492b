#pragma once

#include <string>
#include <string_view>

namespace vellark {

/// Unicode's full default case folding, scalar by scalar, without normalisation and without a locale.
namespace CaseFolding {

/// The folded text: "Straße" gives "strasse", U+212A (the Kelvin sign) "k", U+017F (long s) "s". ASCII is lowered.
/// Ill-formed UTF-8 comes out as U+FFFD.
[[nodiscard]] std::string fold(std::string_view text);

}  // namespace CaseFolding

}  // namespace vellark
