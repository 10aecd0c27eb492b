#include <VellarkDomain/Documents/Library/LibraryFile.hpp>
#include <VellarkFoundation/Files/FileDescriptor.hpp>
#include <VellarkFoundation/JSON/JSONCursor.hpp>
#include <VellarkFoundation/Records/DirectRecordReader.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>

namespace vellark {

namespace {

/// The text of a file in a window that moves along. It grows where one step of the reader needs more of the text.
class TextWindow {
public:
    explicit TextWindow(const std::string& path) : file_(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)) {
        struct stat status {};
        isSound_ = file_.isOpen() && ::fstat(file_.get(), &status) == 0 && S_ISREG(status.st_mode);
        if (isSound_) (void)advance(0);
    }

    /// What stands in the window, up to the last whole scalar.
    [[nodiscard]] std::string_view text() const { return {bytes_.get() + start_, valid_ - start_}; }

    [[nodiscard]] bool holdsTheEnd() const { return isAtEnd_; }

    /// Moves the start forward over `used` bytes and reads on. False when there is nothing more to read, the system
    /// refuses, or the text is not UTF-8.
    bool advance(std::size_t used) {
        if (!isSound_ || isAtEnd_) return false;
        start_ += used;
        makeRoom();
        isSound_ = fill() && validate();
        return isSound_;
    }

private:
    static constexpr std::size_t firstSize = std::size_t{1} << 20;
    static constexpr std::size_t longestScalar = 4;

    // The rest moves to the front; where it takes half of the window, the window becomes twice as large.
    void makeRoom() {
        const std::size_t rest = end_ - start_;
        if (rest >= size_ / 2) {
            const std::size_t size = std::max(firstSize, 2 * size_);
            auto bytes = std::make_unique_for_overwrite<char[]>(size);
            if (rest > 0) std::memcpy(bytes.get(), bytes_.get() + start_, rest);
            bytes_ = std::move(bytes);
            size_ = size;
        } else {
            std::memmove(bytes_.get(), bytes_.get() + start_, rest);
        }
        valid_ -= start_;
        end_ = rest;
        start_ = 0;
    }

    bool fill() {
        while (end_ < size_ && !isAtEnd_) {
            const ssize_t count = ::read(file_.get(), bytes_.get() + end_, size_ - end_);
            if (count < 0 && errno == EINTR) continue;
            if (count < 0) return false;
            isAtEnd_ = count == 0;
            end_ += static_cast<std::size_t>(count);
        }
        return true;
    }

    // A scalar that the window cuts is judged with the bytes that follow.
    bool validate() {
        std::size_t whole = end_;
        const auto continues = [this](std::size_t place) { return (bytes_[place] & 0xC0) == 0x80; };
        while (!isAtEnd_ && whole > valid_ && end_ - whole < longestScalar && continues(whole - 1)) {
            --whole;
        }
        if (!isAtEnd_ && whole > valid_ && (bytes_[whole - 1] & 0x80) != 0) --whole;
        const std::string_view added(bytes_.get() + valid_, whole - valid_);
        valid_ = whole;
        return UTF8::isValid(added);
    }

    FileDescriptor file_;
    std::unique_ptr<char[]> bytes_;  // not filled beforehand, as a string would be
    std::size_t size_ = 0;
    std::size_t start_ = 0;
    std::size_t valid_ = 0;  // behind the last scalar that is known to be well-formed
    std::size_t end_ = 0;
    bool isAtEnd_ = false;
    bool isSound_ = false;
};

/// Takes one step after the other through the text of a window. A step that fails is tried again with more text: none
/// succeeds before all that it reads is there.
class WindowReader {
public:
    explicit WindowReader(const std::string& path) : window_(path), cursor_(window_.text()) {}

    template <class Step>
    bool take(Step step) {
        for (;;) {
            const std::size_t offset = cursor_.offset();
            const std::size_t depth = cursor_.depth();
            // At the edge of the window it is not known what follows.
            if (step(cursor_) && (!cursor_.isAtEnd() || window_.holdsTheEnd())) return true;
            if (!window_.advance(offset)) return false;
            cursor_ = JSONCursor(window_.text());
            cursor_.returnTo(0, depth);
        }
    }

private:
    TextWindow window_;
    JSONCursor cursor_;
};

}  // namespace

bool LibraryFile::visit(const std::string& path, const std::function<void(const DocumentRecord&)>& visitor) {
    WindowReader reader(path);
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
    if (!reader.take(head)) return false;
    while (hasMore) {
        if (!reader.take(next)) return false;
        visitor(document);
    }
    return reader.take(foot);
}

}  // namespace vellark
