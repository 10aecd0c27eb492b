#pragma once

#include <string_view>

namespace vellark::TotalLabel {

/// A cheap test for the total label that may end a text: false only when the expression FactPattern::totalLabel cannot
/// match there. Looks at no more than the last few words.
[[nodiscard]] bool mayEnd(std::string_view text);

}  // namespace vellark::TotalLabel
