#pragma once

#include <string_view>

namespace vellark {

/// The parts of a file's path, by its text alone. "?", "#", "%", "~" and "\" are ordinary characters.
namespace FilePath {

/// The text behind the last "/", trailing slashes not counting: "/a/b//" gives "b". Only slashes give "/", the empty
/// text gives "".
[[nodiscard]] std::string_view lastComponent(std::string_view path);

/// The text behind the last "." of the last component, as it stands there:
///
///     pathExtension("a.tar.GZ")                    "GZ"
///     pathExtension(".bashrc"), ("a."), ("..a.b")  ""
///     pathExtension("v1. Notes")                   "": a blank or a bidirectional control makes no extension
[[nodiscard]] std::string_view pathExtension(std::string_view path);

}  // namespace FilePath

}  // namespace vellark
