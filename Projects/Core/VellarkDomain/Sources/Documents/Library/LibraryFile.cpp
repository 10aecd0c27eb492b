#include <VellarkDomain/Documents/Library/LibraryFile.hpp>
#include <VellarkFoundation/Files/AtomicFile.hpp>
#include <VellarkFoundation/Files/FileTransfer.hpp>
#include <VellarkFoundation/Identifiers/UUID.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <memory>

namespace vellark {

namespace {

using Reason = LibraryFileError::Reason;
using LibraryFile::Contents;
using LibraryFile::Stamp;

constexpr mode_t ownerOnly = 0600;
constexpr mode_t permissionBits = 0777;

Stamp stampOf(const struct stat& status) {
    const timespec modified = FileTransfer::modificationTime(status);
    return {.device = static_cast<std::uint64_t>(status.st_dev),
            .inode = static_cast<std::uint64_t>(status.st_ino),
            .byteCount = static_cast<std::int64_t>(status.st_size),
            .modifiedNanoseconds = static_cast<std::int64_t>(modified.tv_sec) * 1'000'000'000 + modified.tv_nsec};
}

tl::unexpected<LibraryFileError> systemFailure(Reason reason, int code) {
    const bool isMissing = reason == Reason::unreadable && code == ENOENT;
    return failure(LibraryFileError{
        .reason = isMissing ? Reason::notFound : reason, .systemError = isMissing ? 0 : code, .damage = {}});
}

tl::unexpected<LibraryFileError> damaged(const DecodingError& damage) {
    return failure(LibraryFileError{.reason = Reason::damaged, .systemError = 0, .damage = damage});
}

struct FileText {
    std::unique_ptr<char[]> bytes;  // not filled beforehand, as a string would be
    std::size_t length = 0;
    Stamp stamp;

    [[nodiscard]] std::string_view text() const { return {bytes.get(), length}; }
};

Result<FileText, LibraryFileError> readText(const std::string& path) {
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.isOpen()) return systemFailure(Reason::unreadable, errno);
    struct stat status {};
    if (::fstat(file.get(), &status) != 0) return systemFailure(Reason::unreadable, errno);
    if (!S_ISREG(status.st_mode)) return systemFailure(Reason::unreadable, EINVAL);
    const auto size = static_cast<std::size_t>(status.st_size);
    FileText result{.bytes = std::make_unique_for_overwrite<char[]>(size), .stamp = stampOf(status)};
    while (result.length < size) {
        const auto count = FileTransfer::read(file.get(), result.bytes.get() + result.length, size - result.length);
        if (!count) return systemFailure(Reason::unreadable, errno);
        if (*count == 0) break;
        result.length += *count;
    }
    // Where another program cut it meanwhile it is shorter: then it is damaged, and said to be.
    return result;
}

/// Where the bytes go: the path itself, or behind the links there.
std::string destination(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
    return real ? std::string(real.get()) : path;
}

/// The permissions for the new file, unless the old one must not be overwritten.
Result<mode_t, LibraryFileError> permissionsToReplace(const std::string& path, const std::optional<Stamp>& known) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        if (errno == ENOENT) return ownerOnly;
        return systemFailure(Reason::unwritable, errno);
    }
    if (!known || stampOf(status) != *known) {
        const auto old = LibraryFile::read(path);
        if (!old) return failure(old.error());
    }
    return status.st_mode & permissionBits;
}

Result<Stamp, SystemError> writeWhole(const CaptureLibrary& library, const std::string& path, mode_t permissions) {
    const auto suffix = UUID::random();
    if (!suffix) return failure(SystemError{EIO});
    const std::string temporary = path + "." + *suffix + ".new";
    auto file = AtomicFile::create(temporary, permissions);
    if (!file) return failure(file.error());

    Result<void, SystemError> written;
    const auto encoded = writeRecord(library, [&](std::string_view piece) {
        if (written) written = file->write(piece);
    });
    if (!encoded) return failure(SystemError{EINVAL});
    if (written) written = file->flush();
    struct stat status {};
    // Again by themselves, as the process's mask took some away when the file was made.
    if (written && ::chmod(temporary.c_str(), permissions) != 0) written = failure(SystemError{errno});
    if (written && ::stat(temporary.c_str(), &status) != 0) written = failure(SystemError{errno});
    if (written) written = file->moveTo(path);
    if (!written) return failure(written.error());
    return stampOf(status);
}

/// Makes the rename itself last. The new file is in its place already, so nothing here can fail the writing.
void flushFolder(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
    const FileDescriptor directory(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (directory.isOpen()) ::fsync(directory.get());
}

}  // namespace

Result<Contents, LibraryFileError> LibraryFile::read(const std::string& path) {
    const auto file = readText(path);
    if (!file) return failure(file.error());
    auto library = readRecord<CaptureLibrary>(file->text());
    if (!library) return damaged(library.error());
    return Contents{.library = *std::move(library), .stamp = file->stamp};
}

Result<Stamp, LibraryFileError> LibraryFile::write(const CaptureLibrary& library, const std::string& path,
                                                   const std::optional<Stamp>& known) {
    const std::string target = destination(path);
    const auto permissions = permissionsToReplace(target, known);
    if (!permissions) return failure(permissions.error());
    const auto stamp = writeWhole(library, target, *permissions);
    if (!stamp) return systemFailure(Reason::unwritable, stamp.error().code);
    flushFolder(target);
    return *stamp;
}

}  // namespace vellark
