#include <VellarkFoundation/Files/AtomicFile.hpp>
#include <VellarkFoundation/Files/HomeDirectory.hpp>
#include <VellarkFoundation/Identifiers/UUID.hpp>
#include <VellarkShelf/Data/DataDirectory.hpp>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace vellark {

namespace {

constexpr mode_t ownerOnlyFolder = 0700;
constexpr mode_t ownerOnlyFile = 0600;

}  // namespace

DataDirectory DataDirectory::chosen(const std::optional<std::string>& option, const Environment& environment) {
    std::string path;
    if (option) {
        path = *option;
    } else if (const auto variable = environment.value("VELLARK_DATA_DIR")) {
        path = *variable;
    } else {
        path = HomeDirectory::current(environment) + "/Library/Application Support/Vellark";
    }
    path = HomeDirectory::expandingTilde(path, environment);
    std::error_code error;
    const auto absolute = std::filesystem::absolute(path, error);
    return {error ? path : absolute.lexically_normal().string()};
}

bool DataDirectory::create() const {
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0) return S_ISDIR(status.st_mode);
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), error);
    return ::mkdir(path.c_str(), ownerOnlyFolder) == 0 || errno == EEXIST;
}

bool DataDirectory::replace(const std::string& path, std::string_view bytes) {
    const auto suffix = UUID::random();
    if (!suffix) return false;
    auto file = AtomicFile::create(path + "." + *suffix + ".new", ownerOnlyFile);
    return file && file->write(bytes) && file->flush() && file->moveTo(path);
}

Result<DataDirectoryLock, DataDirectoryLock::Failure> DataDirectoryLock::acquire(const DataDirectory& directory) {
    FileDescriptor file(
        ::open(directory.file("collector.lock").c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, ownerOnlyFile));
    if (!file.isOpen()) return failure(Failure::unusable);
    while (::flock(file.get(), LOCK_EX | LOCK_NB) != 0) {
        if (errno == EINTR) continue;
        return failure(errno == EWOULDBLOCK ? Failure::isHeld : Failure::unusable);
    }
    return DataDirectoryLock(std::move(file));
}

}  // namespace vellark
