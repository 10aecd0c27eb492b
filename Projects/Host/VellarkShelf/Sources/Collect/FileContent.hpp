#pragma once

#include <VellarkFoundation/Files/FileDescriptor.hpp>
#include <VellarkFoundation/Result.hpp>

#include <cstdint>
#include <optional>
#include <string>

namespace vellark {

/// A file of the user's, opened without trust in what stands at its place: nothing blocks, no device is touched, and
/// the path that was really opened is known, whatever links led there.
class OpenedFile {
public:
    enum class Failure {
        missing,     ///< nothing is there
        notAFile,    ///< a folder, a pipe, a device or a socket
        unreadable,  ///< the system refuses
    };

    [[nodiscard]] static Result<OpenedFile, Failure> open(const std::string& path);

    [[nodiscard]] const std::string& actualPath() const { return actualPath_; }  ///< without links
    [[nodiscard]] std::uint64_t byteCount() const { return byteCount_; }
    [[nodiscard]] double modifiedAt() const { return modifiedAt_; }  ///< seconds since 1970

    /// The whole content. Nothing when it is longer than `maximumBytes` bytes, now or while it is read, or when reading
    /// fails. A file that changes meanwhile is read anew, up to three times; what was read last then counts.
    [[nodiscard]] std::optional<std::string> content(std::size_t maximumBytes);

    /// The digest of the content, as SHA256::hexadecimal has it, in constant memory. Nothing when reading fails.
    [[nodiscard]] std::optional<std::string> digest();

private:
    explicit OpenedFile(FileDescriptor file) : file_(std::move(file)) {}

    bool inspect();

    FileDescriptor file_;
    std::string actualPath_;
    std::uint64_t byteCount_ = 0;
    double modifiedAt_ = 0;
};

}  // namespace vellark
