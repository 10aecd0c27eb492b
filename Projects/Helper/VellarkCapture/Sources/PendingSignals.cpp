#include <VellarkCapture/PendingSignals.hpp>
#include <VellarkFoundation/Files/FileDescriptor.hpp>

#include <dirent.h>
#include <fcntl.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <memory>
#include <string_view>

#ifdef __linux__
#include <sys/syscall.h>
#endif

namespace vellark::PendingSignals {

namespace {

bool isSignal(const char* name) {
    return std::string_view(name).ends_with(".json");
}

}  // namespace

#ifdef __linux__

// The listing of a full spool is the largest single cost of a run. Asking the kernel itself, into a few pages of the
// stack, saves the C library's buffer of 32 KiB on the heap.
std::optional<std::size_t> count(const std::string& directory) {
    const FileDescriptor listing(::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!listing.isOpen()) return std::nullopt;
    // The kernel's entries: inode and offset of 8 bytes each, the length of the entry in 2, a type in 1, then the name.
    constexpr std::size_t lengthOffset = 16;
    constexpr std::size_t nameOffset = 19;
    alignas(std::uint64_t) std::array<char, 4096> entries;
    std::size_t pending = 0;
    while (true) {
        const long filled = ::syscall(SYS_getdents64, listing.get(), entries.data(), entries.size());
        if (filled < 0) return std::nullopt;
        if (filled == 0) return pending;
        for (std::size_t offset = 0; offset < static_cast<std::size_t>(filled);) {
            std::uint16_t length = 0;
            std::memcpy(&length, entries.data() + offset + lengthOffset, sizeof length);
            if (isSignal(entries.data() + offset + nameOffset)) ++pending;
            offset += length;
        }
    }
}

#else

namespace {

struct CloseDirectory {
    void operator()(DIR* listing) const { ::closedir(listing); }
};

}  // namespace

std::optional<std::size_t> count(const std::string& directory) {
    const std::unique_ptr<DIR, CloseDirectory> listing(::opendir(directory.c_str()));
    if (!listing) return std::nullopt;
    std::size_t pending = 0;
    errno = 0;
    while (const dirent* entry = ::readdir(listing.get())) {
        if (isSignal(entry->d_name)) ++pending;
    }
    if (errno != 0) return std::nullopt;
    return pending;
}

#endif

}  // namespace vellark::PendingSignals
