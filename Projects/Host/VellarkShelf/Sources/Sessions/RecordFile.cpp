#include <VellarkFoundation/Files/FileTransfer.hpp>
#include <VellarkShelf/Sessions/RecordFile.hpp>

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstring>

namespace vellark {

namespace {

constexpr std::size_t pieceSize = 256 * 1024;

std::vector<std::int64_t> fingerprintFrom(const struct stat& status) {
    const timespec modified = FileTransfer::modificationTime(status);
    return {static_cast<std::int64_t>(status.st_size),
            static_cast<std::int64_t>(modified.tv_sec) * 1'000'000'000 + modified.tv_nsec,
            static_cast<std::int64_t>(status.st_ino), static_cast<std::int64_t>(status.st_dev)};
}

}  // namespace

std::optional<RecordFile> RecordFile::open(const std::string& path) {
    FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_NOCTTY | O_CLOEXEC));
    struct stat status {};
    if (!file.isOpen() || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    return RecordFile(std::move(file), fingerprintFrom(status));
}

std::optional<std::vector<std::int64_t>> RecordFile::fingerprintOf(const std::string& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    return fingerprintFrom(status);
}

std::size_t RecordFile::read(std::int64_t offset, char* place, std::size_t room) const {
    const auto left = static_cast<std::size_t>(std::max<std::int64_t>(fingerprint_.front() - offset, 0));
    return FileTransfer::readAt(file_.get(), static_cast<std::uint64_t>(offset), place, std::min(room, left))
        .value_or(0);
}

// The buffer holds the bytes from `start` of the file on. A line that outgrows it makes it grow, up to the longest
// line; of what is longer still, pieces are dropped until its end comes.
void RecordFile::walk(std::int64_t from, const Visitor& visit) const {
    const std::int64_t fileEnd = fingerprint_.front();
    std::string buffer(pieceSize, '\0');
    std::size_t filled = 0;
    std::size_t searched = 0;
    bool skipping = false;
    for (std::int64_t start = from; start + static_cast<std::int64_t>(filled) < fileEnd || filled > 0;) {
        const std::int64_t next = start + static_cast<std::int64_t>(filled);
        if (filled == buffer.size()) buffer.resize(2 * buffer.size());
        const std::size_t count = read(next, buffer.data() + filled, buffer.size() - filled);
        filled += count;

        std::size_t lineStart = 0;
        while (const void* found = std::memchr(buffer.data() + searched, '\n', filled - searched)) {
            const auto lineEnd = static_cast<std::size_t>(static_cast<const char*>(found) - buffer.data());
            const Line line{std::string_view(buffer).substr(lineStart, lineEnd - lineStart),
                            start + static_cast<std::int64_t>(lineStart)};
            const bool isWhole = !skipping && line.text.size() <= longestLine;
            if (isWhole && !line.text.empty() && !visit(line)) return;
            skipping = false;
            lineStart = searched = lineEnd + 1;
        }
        if (count == 0) {
            const Line rest{std::string_view(buffer).substr(lineStart, filled - lineStart),
                            start + static_cast<std::int64_t>(lineStart)};
            if (!skipping && rest.text.size() <= longestLine && !rest.text.empty()) visit(rest);
            return;
        }
        filled -= lineStart;
        std::memmove(buffer.data(), buffer.data() + lineStart, filled);
        start += static_cast<std::int64_t>(lineStart);
        if (filled > longestLine) {
            start += static_cast<std::int64_t>(filled);
            filled = 0;
            skipping = true;
        }
        searched = filled;
    }
}

}  // namespace vellark
