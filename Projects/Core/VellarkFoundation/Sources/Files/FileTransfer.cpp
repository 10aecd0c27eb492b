#include <VellarkFoundation/Files/FileTransfer.hpp>

#include <unistd.h>

#include <cerrno>

namespace vellark {

namespace {

// The result of a call that gives a count of bytes or -1.
template <class Call>
std::optional<std::size_t> uninterrupted(Call call) {
    for (;;) {
        const ssize_t count = call();
        if (count >= 0) return static_cast<std::size_t>(count);
        if (errno != EINTR) return std::nullopt;
    }
}

}  // namespace

std::optional<std::size_t> FileTransfer::read(int descriptor, char* place, std::size_t room) {
    return uninterrupted([=] { return ::read(descriptor, place, room); });
}

std::optional<std::size_t> FileTransfer::readAt(int descriptor, std::uint64_t offset, char* place, std::size_t room) {
    return uninterrupted([=] { return ::pread(descriptor, place, room, static_cast<off_t>(offset)); });
}

bool FileTransfer::write(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto count = uninterrupted([&] { return ::write(descriptor, bytes.data(), bytes.size()); });
        if (!count || *count == 0) return false;
        bytes.remove_prefix(*count);
    }
    return true;
}

timespec FileTransfer::modificationTime(const struct stat& status) {
#ifdef __APPLE__
    return status.st_mtimespec;
#else
    return status.st_mtim;
#endif
}

}  // namespace vellark
