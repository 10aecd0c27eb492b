#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// A JSON text set anew, one member or element on a line.
struct PrintedJSON {
    std::string text;
    std::size_t count = 0;  ///< entries of the outermost object or array
    bool isObject = false;
};

/// Sets a JSON text anew: two blanks for each of the first 16 levels, one blank behind ":", an empty container closed
/// at once; order, strings and numbers stay byte for byte. Nothing when the text is not strictly JSON in UTF-8 with an
/// object or array outermost, or is nested more than 64 deep. Linear, without recursion.
[[nodiscard]] std::optional<PrintedJSON> printJSON(std::string_view text);

}  // namespace vellark
