#pragma once

#include <cstddef>
#include <string_view>

/// The marks that may open a line. Each answer is the bytes that the mark takes up, with the white space behind it; 0
/// when the text does not begin with one.
namespace vellark::SummaryMarkers {

/// "- ", "* ", "+ ", "1. " or "1) ", and the box of a task, "[x] ".
[[nodiscard]] std::size_t listItem(std::string_view text);

/// White space and then the mark of a heading, a quote or a list item.
[[nodiscard]] std::size_t line(std::string_view text);

/// The number of a section: "1.", "제2장", "IV." and the like.
[[nodiscard]] std::size_t sectionNumber(std::string_view text);

}  // namespace vellark::SummaryMarkers
