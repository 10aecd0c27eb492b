#pragma once

#include <string>
#include <string_view>

namespace vellark {

/// Case mapping by Unicode's data, scalar by scalar: without a locale and without a look at the neighbours, so that a
/// capital sigma is "σ" at the end of a word too.
namespace UnicodeCase {

/// The full lower-case mapping: U+212A (the Kelvin sign) gives "k", U+0130 gives "i" and U+0307. It is no case folding:
/// "ß" and U+017F stay. Ill-formed UTF-8 comes out as U+FFFD.
[[nodiscard]] std::string lower(std::string_view text);

/// The full upper-case mapping: "ß" gives "SS". Ill-formed UTF-8 comes out as U+FFFD.
[[nodiscard]] std::string upper(std::string_view text);

}  // namespace UnicodeCase

}  // namespace vellark
