#include <VellarkFoundation/Files/AtomicFile.hpp>
#include <VellarkFoundation/Files/FileDescriptor.hpp>
#include <VellarkFoundation/Identifiers/UUID.hpp>
#include <VellarkShelf/Data/SnapshotStore.hpp>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace vellark {

namespace {

constexpr mode_t ownerOnlyFolder = 0700;
constexpr mode_t ownerOnlyFile = 0600;

bool makeFolder(const std::string& path) {
    return ::mkdir(path.c_str(), ownerOnlyFolder) == 0 || errno == EEXIST;
}

// A copy that an earlier run began to write has another name, so what stands at the path is whole. Its size is looked
// at all the same: a disk that ran full before a power cut can leave an empty file behind.
bool isThere(const std::string& path, std::size_t size) {
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
           static_cast<std::size_t>(status.st_size) == size;
}

}  // namespace

std::optional<std::string> SnapshotStore::put(std::string_view content, std::string_view digest,
                                              std::string_view extension) {
    const std::string folder = folder_ + "/" + std::string(digest.substr(0, 2));
    std::string path = folder + "/" + std::string(digest);
    if (!extension.empty()) path += "." + std::string(extension);
    if (isThere(path, content.size())) return path;
    if (!makeFolder(folder_) || !makeFolder(folder)) return std::nullopt;
    const auto suffix = UUID::random();
    if (!suffix) return std::nullopt;
    auto file = AtomicFile::create(folder + "/" + *suffix + ".new", ownerOnlyFile);
    if (!file || !file->write(content)) return std::nullopt;
#ifndef __linux__
    if (!file->flush()) return std::nullopt;
#endif
    if (!file->moveTo(path)) return std::nullopt;
    isDirty_ = true;
    return path;
}

bool SnapshotStore::flush() {
    if (!isDirty_) return true;
    const FileDescriptor folder(::open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isOpen()) return false;
#ifdef __linux__
    // One wait for the whole file system is far quicker than one for each of a thousand copies.
    if (::syncfs(folder.get()) != 0) return false;
#else
    if (::fsync(folder.get()) != 0) return false;
#endif
    isDirty_ = false;
    return true;
}

}  // namespace vellark
