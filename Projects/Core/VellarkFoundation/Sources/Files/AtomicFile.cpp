#include <VellarkFoundation/Files/AtomicFile.hpp>
#include <VellarkFoundation/Files/FileTransfer.hpp>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

namespace vellark {

namespace {

tl::unexpected<SystemError> lastError() {
    return failure(SystemError{errno});
}

}  // namespace

Result<AtomicFile, SystemError> AtomicFile::create(std::string temporaryPath, mode_t permissions) {
    FileDescriptor file(
        ::open(temporaryPath.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, permissions));
    if (!file.isOpen()) return lastError();
    return AtomicFile(std::move(temporaryPath), std::move(file));
}

AtomicFile::AtomicFile(AtomicFile&& other) noexcept
    : path_(std::exchange(other.path_, {})), file_(std::move(other.file_)) {}

AtomicFile::~AtomicFile() {
    if (!path_.empty()) ::unlink(path_.c_str());
}

Result<void, SystemError> AtomicFile::write(std::string_view bytes) {
    if (!FileTransfer::write(file_.get(), bytes)) return lastError();
    return {};
}

Result<void, SystemError> AtomicFile::flush() {
    if (::fsync(file_.get()) != 0) return lastError();
    return {};
}

Result<void, SystemError> AtomicFile::moveTo(const std::string& path) {
    if (std::rename(path_.c_str(), path.c_str()) != 0) return lastError();
    path_.clear();
    return {};
}

}  // namespace vellark
