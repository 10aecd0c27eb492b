#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>

namespace vellark::Whitespace {

namespace {

template <class Predicate>
std::string_view trimmedOf(std::string_view text, Predicate isTrimmed) {
    while (!text.empty()) {
        const auto first = UTF8::decode(text, 0);
        if (!isTrimmed(first.scalar)) break;
        text.remove_prefix(first.byteCount);
    }
    while (!text.empty()) {
        const std::size_t last = UTF8::previousOffset(text, text.size());
        if (!isTrimmed(UTF8::decode(text, last).scalar)) break;
        text = text.substr(0, last);
    }
    return text;
}

}  // namespace

std::string_view trimmed(std::string_view text) {
    return trimmedOf(text, isWhitespace);
}

std::string_view trimmedWithNewlines(std::string_view text) {
    return trimmedOf(text, isWhitespaceOrNewline);
}

}  // namespace vellark::Whitespace
