#pragma once

#include <string_view>

namespace vellark {

/// The names under which code colouring knows the languages of source files.
namespace DocumentLanguages {

/// The language of a file extension, which is given in lower case and without its point: "py" gives "python". An
/// extension that has no other name is its own: "swift" gives "swift".
[[nodiscard]] std::string_view language(std::string_view extension);

}  // namespace DocumentLanguages

}  // namespace vellark
