#pragma once

#include <VellarkFoundation/Files/FileDescriptor.hpp>
#include <VellarkFoundation/Result.hpp>

#include <sys/types.h>

#include <string>
#include <string_view>

namespace vellark {

/// The system call that failed gave this `errno`.
struct SystemError {
    int code = 0;

    bool operator==(const SystemError&) const = default;
};

/// A file that comes to its place whole or not at all: its bytes go into a temporary file of the same folder, which
/// takes the place in one step. Until then, and whatever fails, what stood there stands.
///
///     auto file = AtomicFile::create(path + ".new", 0600);
///     if (file && file->write(bytes) && file->flush() && file->moveTo(path)) ...
///
/// A temporary file that did not get to its place is removed with the object.
class AtomicFile {
public:
    /// Makes the temporary file, which must not exist; a link in its place is not followed.
    [[nodiscard]] static Result<AtomicFile, SystemError> create(std::string temporaryPath, mode_t permissions);

    AtomicFile(AtomicFile&& other) noexcept;
    AtomicFile& operator=(AtomicFile&&) = delete;
    ~AtomicFile();

    [[nodiscard]] Result<void, SystemError> write(std::string_view bytes);

    /// Waits until the bytes are on the disk, so that a power cut behind `moveTo` does not find an empty file.
    [[nodiscard]] Result<void, SystemError> flush();

    /// Takes the place of whatever stands at the path, in the same folder.
    [[nodiscard]] Result<void, SystemError> moveTo(const std::string& path);

private:
    AtomicFile(std::string path, FileDescriptor file) : path_(std::move(path)), file_(std::move(file)) {}

    std::string path_;  // of the temporary file; "" once it is in its place
    FileDescriptor file_;
};

}  // namespace vellark
