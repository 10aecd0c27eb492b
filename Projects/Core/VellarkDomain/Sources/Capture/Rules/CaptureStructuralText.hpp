#pragma once

#include <string>
#include <string_view>

namespace vellark {

namespace CaptureRules {

/// The text's lines outside of fenced code, joined by line feeds; lines end as in PythonText::splitlines.
///
/// A fence opens at a line of at most three blanks or tabs and three or more "`" or "~", whatever follows. It closes at
/// a line with such an indent and at least as many of the same mark, and nothing but white space behind them; without
/// one it runs to the end. Its marker lines go with it.
[[nodiscard]] std::string structuralText(std::string_view text);

}  // namespace CaptureRules

}  // namespace vellark
