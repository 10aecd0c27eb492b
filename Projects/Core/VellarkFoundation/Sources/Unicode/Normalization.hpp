#pragma once

#include <string>
#include <string_view>

namespace vellark {

/// Unicode's normalisation forms.
namespace Normalization {

/// The text in NFC, where a letter and its marks, or the parts of a Korean syllable, are one scalar when there is one.
/// Ill-formed UTF-8 comes out as U+FFFD. ASCII text is only copied.
[[nodiscard]] std::string nfc(std::string_view text);

}  // namespace Normalization

}  // namespace vellark
