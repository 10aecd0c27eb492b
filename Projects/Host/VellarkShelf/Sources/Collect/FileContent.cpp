#include <VellarkFoundation/Digest/SHA256Stream.hpp>
#include <VellarkFoundation/Files/FileTransfer.hpp>
#include <VellarkShelf/Collect/FileContent.hpp>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>

namespace vellark {

namespace {

constexpr std::size_t blockSize = 1 << 18;
constexpr int readingAttempts = 3;

// The path behind an open file. "" when the system does not tell.
std::string pathOf(int descriptor) {
    std::array<char, PATH_MAX> buffer{};
#ifdef __APPLE__
    return ::fcntl(descriptor, F_GETPATH, buffer.data()) == 0 ? std::string(buffer.data()) : std::string();
#else
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const ssize_t length = ::readlink(link.c_str(), buffer.data(), buffer.size());
    return length > 0 ? std::string(buffer.data(), static_cast<std::size_t>(length)) : std::string();
#endif
}

double secondsOf(const struct stat& status) {
    const timespec modified = FileTransfer::modificationTime(status);
    return static_cast<double>(modified.tv_sec) + static_cast<double>(modified.tv_nsec) / 1e9;
}

// Bytes read into the buffer from the offset on, less than asked for at the end only; nothing on failure.
std::optional<std::size_t> readFully(int descriptor, char* buffer, std::size_t size, std::size_t offset) {
    std::size_t done = 0;
    while (done < size) {
        const auto count = FileTransfer::readAt(descriptor, offset + done, buffer + done, size - done);
        if (!count) return std::nullopt;
        if (*count == 0) break;
        done += *count;
    }
    return done;
}

}  // namespace

Result<OpenedFile, OpenedFile::Failure> OpenedFile::open(const std::string& path) {
    OpenedFile opened(FileDescriptor(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)));
    if (!opened.file_.isOpen()) {
        const bool isMissing = errno == ENOENT || errno == ENOTDIR;
        return failure(isMissing ? Failure::missing : errno == ENXIO ? Failure::notAFile : Failure::unreadable);
    }
    if (!opened.inspect()) return failure(Failure::notAFile);
    opened.actualPath_ = pathOf(opened.file_.get());
    if (!opened.actualPath_.starts_with('/')) return failure(Failure::unreadable);
    return opened;
}

bool OpenedFile::inspect() {
    struct stat status {};
    if (::fstat(file_.get(), &status) != 0 || !S_ISREG(status.st_mode)) return false;
    byteCount_ = static_cast<std::uint64_t>(status.st_size);
    modifiedAt_ = secondsOf(status);
    return true;
}

std::optional<std::string> OpenedFile::content(std::size_t maximumBytes) {
    std::string text;
    for (int attempt = 0; attempt < readingAttempts; ++attempt) {
        if (byteCount_ > maximumBytes) return std::nullopt;
        const std::uint64_t expectedSize = byteCount_;
        const double expectedTime = modifiedAt_;
        text.resize(byteCount_ + 1);  // one more shows that the file has grown
        const auto count = readFully(file_.get(), text.data(), text.size(), 0);
        if (!count || !inspect()) return std::nullopt;
        text.resize(*count);
        const bool isSteady = text.size() == expectedSize && byteCount_ == expectedSize && modifiedAt_ == expectedTime;
        if (isSteady) break;
    }
    if (text.size() > maximumBytes) return std::nullopt;
    return text;
}

std::optional<std::string> OpenedFile::digest() {
    SHA256Stream stream;
    std::string block(blockSize, '\0');
    for (std::size_t offset = 0;;) {
        const auto count = readFully(file_.get(), block.data(), block.size(), offset);
        if (!count) return std::nullopt;
        if (*count == 0) return stream.hexadecimal();
        stream.add(std::string_view(block).substr(0, *count));
        offset += *count;
    }
}

}  // namespace vellark
