#include <VellarkDomain/Documents/Pagination/DocumentTextPagination.hpp>
#include <VellarkDomain/Documents/Pagination/MarkdownContext.hpp>
#include <VellarkFoundation/Text/ByteScan.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <algorithm>
#include <cstring>
#include <memory>
#include <optional>
#include <utility>

// The document passes through a window that holds more than a page, or all that is left. A page is found, checked and
// given its context while its bytes are in the processor's cache, so that a long text costs one walk through memory.

namespace vellark {

namespace {

using Pagination = DocumentTextPagination;
constexpr auto npos = std::string_view::npos;

// Where a page ends that no line end closes in time: behind a whole scalar, and behind the LF of a CR LF. Nothing when
// there is no place.
std::optional<std::size_t> cutInsideLine(std::string_view window) {
    std::size_t cut = Pagination::maximumPageBytes;
    if (window[cut - 1] == '\r' && window[cut] == '\n') return cut + 1;
    while (cut > 0 && (static_cast<unsigned char>(window[cut]) & 0xC0) == 0x80)
        --cut;
    return cut > 0 ? std::optional(cut) : std::nullopt;
}

// The length of the page that the window begins with, in bytes.
std::optional<std::size_t> boundary(std::string_view window) {
    const std::string_view page = window.substr(0, Pagination::maximumPageBytes);
    const std::size_t endOfLines = ByteScan::endOfNth(page, '\n', Pagination::maximumPageLines);
    if (endOfLines != npos) return endOfLines;
    if (page.size() == window.size()) return page.size();
    const std::size_t lastLineFeed = page.rfind('\n');
    if (lastLineFeed != npos) return lastLineFeed + 1;
    return cutInsideLine(window);
}

// Puts pages one behind another.
class Paginator {
public:
    explicit Paginator(const DocumentContentFormat& format) : format_(format), isMarkdown_(format.isMarkdown()) {}

    // Adds the page that the window begins with and gives its length. The window holds more bytes than a page may have,
    // or all that are left, and at least one.
    Result<std::size_t, DocumentTextError> addPage(std::string_view window) {
        const auto length = boundary(window);
        const std::string_view text = window.substr(0, length.value_or(0));
        if (!length || text.find('\0') != npos || !UTF8::isValid(text)) {
            return failure(DocumentTextError::fileReadInapplicableStringEncoding);
        }
        const bool splitsLine = text.size() < window.size() && text.back() != '\n';
        Pagination::Page page{.bytes = {offset_, offset_ + text.size()}, .format = format_};
        if (isMarkdown_) addContext(page, text, splitsLine);
        pagination_.pages.push_back(std::move(page));
        offset_ += text.size();
        continuesLine_ = splitsLine;
        return text.size();
    }

    Pagination finish() && { return std::move(pagination_); }

private:
    void addContext(Pagination::Page& page, std::string_view text, bool splitsLine) {
        page.prefix = context_.prefix(text, continuesLine_);
        context_.consume(text, continuesLine_, splitsLine);
        page.suffix = context_.suffix();
        // A torn line of prose must not turn into a heading or a list.
        const bool isTorn = continuesLine_ || splitsLine;
        if (isTorn && page.prefix.empty() && page.suffix.empty())
            page.format = DocumentContentFormat::code("plaintext");
    }

    const DocumentContentFormat& format_;
    const bool isMarkdown_;
    Pagination pagination_;
    MarkdownContext context_;
    std::size_t offset_ = 0;
    bool continuesLine_ = false;
};

// Bytes on their way from a reader to the pages. They are moved to the front only when there is no room behind them,
// that is for every third page or so.
class Window {
public:
    explicit Window(const Pagination::Read& read)
        : read_(read), bytes_(std::make_unique_for_overwrite<char[]>(capacity)) {}

    // Reads until there is more than a page, or nothing left.
    std::optional<Pagination::ReadError> fill() {
        while (!isAtEnd_ && view().size() <= Pagination::maximumPageBytes) {
            const auto block = read_();
            if (!block) return block.error();
            if (block->size() > Pagination::maximumPageBytes) return DocumentTextError::fileReadTooLarge;
            append(*block);
        }
        return std::nullopt;
    }

    std::string_view view() const { return {bytes_.get() + begin_, end_ - begin_}; }

    void drop(std::size_t byteCount) { begin_ += byteCount; }

private:
    static constexpr std::size_t capacity = 4 * Pagination::maximumPageBytes;

    void append(std::string_view block) {
        isAtEnd_ = block.empty();
        if (isAtEnd_) return;
        if (capacity - end_ < block.size()) {
            std::memmove(bytes_.get(), bytes_.get() + begin_, end_ - begin_);
            end_ -= std::exchange(begin_, 0);
        }
        std::memcpy(bytes_.get() + end_, block.data(), block.size());
        end_ += block.size();
    }

    const Pagination::Read& read_;
    std::unique_ptr<char[]> bytes_;
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
    bool isAtEnd_ = false;
};

}  // namespace

Result<DocumentTextPagination, DocumentTextError> DocumentTextPagination::make(std::string_view text,
                                                                               const DocumentContentFormat& format,
                                                                               const std::stop_token& stop) {
    Paginator paginator(format);
    while (true) {
        if (stop.stop_requested()) return failure(DocumentTextError::cancelled);
        if (text.empty()) return std::move(paginator).finish();
        const auto length = paginator.addPage(text);
        if (!length) return failure(length.error());
        text.remove_prefix(*length);
    }
}

Result<DocumentTextPagination, DocumentTextPagination::ReadError> DocumentTextPagination::make(
    const DocumentContentFormat& format, const Read& read, const std::stop_token& stop) {
    Paginator paginator(format);
    Window window(read);
    while (true) {
        if (stop.stop_requested()) return failure(ReadError(DocumentTextError::cancelled));
        if (auto error = window.fill()) return failure(*std::move(error));
        if (window.view().empty()) return std::move(paginator).finish();
        const auto length = paginator.addPage(window.view());
        if (!length) return failure(ReadError(length.error()));
        window.drop(*length);
    }
}

Result<DocumentTextPage, DocumentTextPagination::PageError> DocumentTextPagination::page(
    std::ptrdiff_t index, std::string_view source) const {
    if (index < 0 || static_cast<std::size_t>(index) >= pages.size()) {
        return failure(PageError(LibraryMutationError::notFound));
    }
    const auto place = static_cast<std::size_t>(index);
    const Page& page = pages[place];
    const bool isInside = page.bytes.begin <= page.bytes.end && page.bytes.end <= source.size();
    const std::string_view text = isInside ? source.substr(page.bytes.begin, page.bytes.size()) : std::string_view();
    if (!isInside || !UTF8::isValid(text)) {
        return failure(PageError(DocumentTextError::fileReadInapplicableStringEncoding));
    }
    DocumentTextPage result{
        .index = place, .count = pages.size(), .sourceText = std::string(text), .format = page.format};
    result.text.reserve(page.prefix.size() + text.size() + page.suffix.size());
    result.text.append(page.prefix).append(text).append(page.suffix);
    return result;
}

Result<DocumentTextPage, DocumentTextPagination::PageError> DocumentTextPagination::page(
    std::ptrdiff_t index, std::span<const std::byte> bytes) const {
    return page(index, std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
}

}  // namespace vellark
