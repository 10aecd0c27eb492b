#pragma once

#include <cstddef>
#include <string_view>

namespace vellark {

/// Searches for single bytes, at the speed of memory.
namespace ByteScan {

/// How often the byte stands in the text.
[[nodiscard]] std::size_t count(std::string_view text, char byte);

/// The offset right behind the `ordinal`-th place (counted from 1) at which the byte stands; `std::string_view::npos`
/// when the text holds it less often.
[[nodiscard]] std::size_t endOfNth(std::string_view text, char byte, std::size_t ordinal);

}  // namespace ByteScan

}  // namespace vellark
