#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace vellark {

/// Small files that other programs write, read without trust in what stands at their place.
namespace BoundedFile {

/// The whole content of a regular file of at most `maximumBytes` bytes. Nothing when it is longer (also when it grew
/// while it was read), is no regular file, or cannot be read. A FIFO does not block; symbolic links are followed.
[[nodiscard]] std::optional<std::string> read(const std::string& path, std::size_t maximumBytes);

}  // namespace BoundedFile

}  // namespace vellark
