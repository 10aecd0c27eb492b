#include <VellarkFoundation/Files/BoundedFile.hpp>
#include <VellarkFoundation/Files/FileDescriptor.hpp>
#include <VellarkFoundation/Files/FileTransfer.hpp>

#include <fcntl.h>
#include <sys/stat.h>

namespace vellark::BoundedFile {

std::optional<std::string> read(const std::string& path, std::size_t maximumBytes) {
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.isOpen()) return std::nullopt;
    struct stat status {};
    if (::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    if (static_cast<std::size_t>(status.st_size) > maximumBytes) return std::nullopt;

    // One byte more than the file's size, so that the buffer need not grow for a file that keeps its size.
    std::string content(static_cast<std::size_t>(status.st_size) + 1, '\0');
    std::size_t length = 0;
    while (true) {
        if (length == content.size()) content.resize(2 * content.size());
        const auto count = FileTransfer::read(file.get(), content.data() + length, content.size() - length);
        if (!count) return std::nullopt;
        if (*count == 0) break;
        length += *count;
        if (length > maximumBytes) return std::nullopt;
    }
    content.resize(length);
    return content;
}

}  // namespace vellark::BoundedFile
