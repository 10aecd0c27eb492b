#pragma once

#include <string>
#include <string_view>

namespace vellark {

/// Translations of a length of time, such as "%.2f sec". The catalogues mark the place of the number as the C library's
/// formats do, but no text of a catalogue is ever handed to such a format.
namespace DurationTemplate {

/// The template with its first "%.0f" or "%.2f" replaced by the number, with as many fraction digits, as the locale
/// writes it, and each "%%" by "%"; all else is copied.
[[nodiscard]] std::string filled(std::string_view text, double seconds, std::string_view locale);

}  // namespace DurationTemplate

}  // namespace vellark
