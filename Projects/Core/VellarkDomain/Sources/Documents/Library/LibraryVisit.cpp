#include <VellarkDomain/Documents/Library/LibraryFile.hpp>
#include <VellarkFoundation/Files/FileDescriptor.hpp>
#include <VellarkFoundation/Files/FileTransfer.hpp>
#include <VellarkFoundation/JSON/JSONWindow.hpp>
#include <VellarkFoundation/Records/DirectRecordReader.hpp>

#include <fcntl.h>
#include <sys/stat.h>

namespace vellark {

bool LibraryFile::visit(const std::string& path, const std::function<void(const DocumentRecord&)>& visitor) {
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    if (!file.isOpen() || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) return false;
    JSONWindow window([&file](char* place, std::size_t room) { return FileTransfer::read(file.get(), place, room); });
    bool hasMore = false;
    const auto head = [&hasMore](JSONCursor& cursor) {
        std::int64_t version = 0;
        const bool isHead = cursor.open('{') && cursor.takeKey("version") && cursor.integer(version) &&
                            cursor.endMember() && cursor.takeKey("documents") && cursor.open('[');
        hasMore = !cursor.isAt(']');
        return isHead;
    };
    DocumentRecord document;  // one for all, so that its memory is used again
    const auto next = [&](JSONCursor& cursor) {
        if (!readDirectly(cursor, document) || !cursor.endElement()) return false;
        hasMore = !cursor.isAt(']');
        return true;
    };
    const auto foot = [](JSONCursor& cursor) {
        return cursor.close(']') && cursor.endMember() && cursor.close('}') && cursor.isAtEnd();
    };
    if (!window.take(head)) return false;
    while (hasMore) {
        if (!window.take(next)) return false;
        visitor(document);
    }
    return window.take(foot);
}

}  // namespace vellark
