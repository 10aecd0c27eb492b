#include <VellarkFoundation/Files/AtomicFile.hpp>

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
    while (!bytes.empty()) {
        const ssize_t count = ::write(file_.get(), bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return lastError();
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
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
