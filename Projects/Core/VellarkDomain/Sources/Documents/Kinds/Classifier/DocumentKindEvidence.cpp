#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindEvidence.hpp>
#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindOutline.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

namespace vellark {

namespace {

// The longest beginning of at most so many bytes that ends between two scalars of a well-formed text.
std::string_view prefix(std::string_view text, std::size_t byteLimit) {
    if (text.size() <= byteLimit) return text;
    std::size_t end = byteLimit;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) {
        --end;
    }
    return text.substr(0, end);
}

}  // namespace

void DocumentKindEvidence::read(std::string_view text, Format format) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    constexpr std::size_t longestSequence = 4;
    // Repair may only lengthen a text, and a sequence that is cut here lies behind the limit.
    std::string_view opening = text.substr(0, 2 * bodyLimit + longestSequence);
    std::string repaired;
    if (!UTF8::isValid(opening)) opening = repaired = UTF8::replacingInvalid(opening);
    opening = prefix(opening, 2 * bodyLimit);
    if (opening.starts_with(byteOrderMark)) opening.remove_prefix(byteOrderMark.size());

    if (format.html) {
        opening = prefix(opening, bodyLimit);
        headings = DocumentKindOutline::htmlHeadings(opening);
        body = DocumentKindOutline::htmlText(opening);
        return;
    }
    opening = prefix(DocumentKindOutline::readFrontMatter(opening, *this), bodyLimit);
    headings.clear();
    checkboxes = 0;
    DocumentKindOutline::readMarkdown(opening, *this);
    body = opening;
}

}  // namespace vellark
