#pragma once

#include <VellarkFoundation/Unicode/Regex.hpp>

#include <string_view>

namespace vellark {

namespace PythonText {

/// The expression of a pattern that is known to be right, compiled without options; ends the process when it does not
/// compile. It stands apart from the other text routines, which need no ICU.
[[nodiscard]] Regex expression(std::string_view pattern);

}  // namespace PythonText

}  // namespace vellark
