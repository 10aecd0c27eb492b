#pragma once

#include <VellarkDomain/Documents/Library/LibraryMutationError.hpp>
#include <VellarkDomain/Documents/Rendering/DocumentContentFormat.hpp>
#include <VellarkFoundation/Result.hpp>

#include <cstddef>
#include <functional>
#include <span>
#include <stop_token>
#include <string>
#include <string_view>
#include <system_error>
#include <variant>
#include <vector>

namespace vellark {

/// Why a text has no pages.
enum class DocumentTextError {
    fileReadTooLarge,                    ///< a block of more than a page's bytes came from the reader
    fileReadInapplicableStringEncoding,  ///< not UTF-8, or a U+0000 in it
    cancelled,
};

/// One page as it is handed out.
struct DocumentTextPage {
    std::size_t index = 0;   ///< from 0
    std::size_t count = 0;   ///< of all pages
    std::string sourceText;  ///< the page's own text
    std::string text;        ///< the same between its context: what is rendered
    DocumentContentFormat format;

    bool operator==(const DocumentTextPage&) const = default;
};

/// The pages of a long document: byte ranges that follow one another without a gap, and for Markdown the context that
/// lets each page be rendered by itself.
///
///     auto pagination = DocumentTextPagination::make(text, DocumentContentFormat::markdown());
///     auto page = pagination->page(7, text);    // costs the bytes of this page
///
/// A page ends behind its 512th line, or else behind the last line that ends within 32768 bytes. Only a line longer
/// than that is cut, and never inside a scalar or between CR and LF: a page whose LF would be byte 32769 takes it
/// along.
///
/// An empty text has no pages. Text that is not well-formed UTF-8 or holds U+0000 is refused as a whole.
struct DocumentTextPagination {
    static constexpr std::size_t maximumPageBytes = 32'768;
    static constexpr std::size_t maximumPageLines = 512;

    /// Bytes of the source, `end` not among them.
    struct ByteRange {
        std::size_t begin = 0;
        std::size_t end = 0;

        [[nodiscard]] std::size_t size() const { return end - begin; }

        bool operator==(const ByteRange&) const = default;
    };

    struct Page {
        ByteRange bytes;
        std::string prefix;            ///< stands before the page's text when it is rendered
        std::string suffix;            ///< stands behind it
        DocumentContentFormat format;  ///< of the document; "plaintext" for a torn piece of a Markdown line

        bool operator==(const Page&) const = default;
    };

    std::vector<Page> pages;

    /// Gives the next bytes of a document, at most `maximumPageBytes`, and none at its end, after which it is not
    /// called again. The bytes must stay until the next call. How the document is cut into blocks changes nothing.
    using Read = std::function<Result<std::string_view, std::error_code>()>;
    /// The error of a `Read` comes out as it was.
    using ReadError = std::variant<DocumentTextError, std::error_code>;
    using PageError = std::variant<DocumentTextError, LibraryMutationError>;

    /// The pages of a text that is at hand. The token is looked at before each page.
    [[nodiscard]] static Result<DocumentTextPagination, DocumentTextError> make(std::string_view text,
                                                                                const DocumentContentFormat& format,
                                                                                const std::stop_token& stop = {});

    /// The pages of a document that is read in one pass and never held whole: four pages' bytes at most. The token is
    /// looked at before each page; once it asks to stop, the error is `cancelled` and there are no pages.
    [[nodiscard]] static Result<DocumentTextPagination, ReadError> make(const DocumentContentFormat& format,
                                                                        const Read& read,
                                                                        const std::stop_token& stop = {});

    /// The page with this index, from the whole text that the pages were made of. An index outside the pages is
    /// `LibraryMutationError::notFound`; a source that ends before the page, or whose bytes there are not UTF-8, is
    /// `fileReadInapplicableStringEncoding`. No other byte of the source is looked at.
    [[nodiscard]] Result<DocumentTextPage, PageError> page(std::ptrdiff_t index, std::string_view source) const;
    [[nodiscard]] Result<DocumentTextPage, PageError> page(std::ptrdiff_t index,
                                                           std::span<const std::byte> bytes) const;

    bool operator==(const DocumentTextPagination&) const = default;
};

}  // namespace vellark
