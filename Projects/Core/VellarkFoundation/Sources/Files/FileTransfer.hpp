#pragma once

#include <sys/stat.h>

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <optional>
#include <string_view>

namespace vellark {

/// The system's calls for reading and writing, made again where a signal interrupts them. Failures leave the reason in
/// `errno`.
namespace FileTransfer {

/// Bytes from where the file stands, at most `room`. Gives how many there were, 0 at the end; nothing on failure.
[[nodiscard]] std::optional<std::size_t> read(int descriptor, char* place, std::size_t room);

/// Bytes from an offset on; the file stays where it stands.
[[nodiscard]] std::optional<std::size_t> readAt(int descriptor, std::uint64_t offset, char* place, std::size_t room);

/// Writes all bytes. False on failure, when some may have been written.
[[nodiscard]] bool write(int descriptor, std::string_view bytes);

/// The time of the last change to the content.
[[nodiscard]] timespec modificationTime(const struct stat& status);

}  // namespace FileTransfer

}  // namespace vellark
