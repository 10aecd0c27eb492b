#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace vellark {

/// Lines as people see them: U+000A to U+000D, U+0085, U+2028 and U+2029 end one, CR LF together.
namespace LineBreaks {

/// Bytes of the line end that begins at the position, which lies inside the text; 0 when none begins there.
[[nodiscard]] std::size_t length(std::string_view text, std::size_t position);

/// The lines of a text, without their ends. Empty lines are lines; a text without a line end is one.
[[nodiscard]] std::vector<std::string_view> split(std::string_view text);

}  // namespace LineBreaks

}  // namespace vellark
