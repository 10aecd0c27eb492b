#include "FuzzTarget.hpp"
#include <VellarkDomain/Documents/Pagination/DocumentTextPagination.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <algorithm>

using namespace vellark;

// Any bytes, read in blocks of any size: pages exactly for a text, and the pages' own texts joined are the source.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::size_t blockBytes = size == 0 ? 1 : data[0] + std::size_t{1};
    const std::string_view source = fuzz::text(data, size);
    const auto read = [rest = source, blockBytes]() mutable -> Result<std::string_view, std::error_code> {
        const std::string_view block = rest.substr(0, blockBytes);
        rest.remove_prefix(block.size());
        return block;
    };
    const auto pagination = DocumentTextPagination::make(DocumentContentFormat::markdown(), read);
    const bool isText = UTF8::isValid(source) && source.find('\0') == std::string_view::npos;
    fuzz::require(pagination.has_value() == isText, "exactly a text has pages");
    if (!pagination) return 0;

    std::string joined;
    for (std::size_t index = 0; index < pagination->pages.size(); ++index) {
        const auto page = pagination->page(static_cast<std::ptrdiff_t>(index), source);
        fuzz::require(page.has_value() && !page->sourceText.empty(), "every page can be read");
        const std::string_view text = page->sourceText;
        fuzz::require(text.size() <= DocumentTextPagination::maximumPageBytes + text.ends_with("\r\n"),
                      "bytes of a page");
        fuzz::require(std::ranges::count(text, '\n') <= 512, "lines of a page");
        joined += text;
    }
    fuzz::require(joined == source, "the pages are the source");
    const auto whole = DocumentTextPagination::make(source, DocumentContentFormat::markdown());
    fuzz::require(whole == *pagination, "blocks change nothing");
    return 0;
}
