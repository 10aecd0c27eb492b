#include <VellarkFoundation/JSON/JSONStringScan.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

namespace vellark::JSONStringScan {

namespace {

std::optional<unsigned> hexadecimal(std::string_view text, std::size_t offset) {
    if (offset + 4 > text.size()) return std::nullopt;
    unsigned value = 0;
    for (const char character : text.substr(offset, 4)) {
        const char lowered = static_cast<char>(character | 0x20);
        if (character >= '0' && character <= '9') {
            value = value * 16 + static_cast<unsigned>(character - '0');
        } else if (lowered >= 'a' && lowered <= 'f') {
            value = value * 16 + static_cast<unsigned>(lowered - 'a' + 10);
        } else {
            return std::nullopt;
        }
    }
    return value;
}

// The end of the escape that begins at `offset` with its backslash.
std::optional<std::size_t> endOfEscape(std::string_view text, std::size_t offset) {
    if (offset + 1 >= text.size()) return std::nullopt;
    if (text[offset + 1] != 'u') {
        const bool isKnown = std::string_view("\"\\/bfnrt").find(text[offset + 1]) != std::string_view::npos;
        return isKnown ? std::optional(offset + 2) : std::nullopt;
    }
    const auto first = hexadecimal(text, offset + 2);
    if (!first || (*first >= 0xDC00 && *first <= 0xDFFF)) return std::nullopt;
    if (*first < 0xD800 || *first > 0xDBFF) return offset + 6;
    if (text.substr(offset + 6, 2) != "\\u") return std::nullopt;
    const auto second = hexadecimal(text, offset + 8);
    if (!second || *second < 0xDC00 || *second > 0xDFFF) return std::nullopt;
    return offset + 12;
}

char simpleEscape(char letter) {
    switch (letter) {
        case 'b':
            return '\b';
        case 'f':
            return '\f';
        case 'n':
            return '\n';
        case 'r':
            return '\r';
        case 't':
            return '\t';
        default:
            return letter;
    }
}

}  // namespace

std::optional<std::size_t> closingQuote(std::string_view text, std::size_t offset) {
    while (true) {
        offset = endOfPlain(text, offset);
        if (offset == text.size()) return std::nullopt;
        if (text[offset] == '"') return offset;
        if (text[offset] != '\\') return std::nullopt;
        const auto end = endOfEscape(text, offset);
        if (!end) return std::nullopt;
        offset = *end;
    }
}

std::string decoded(std::string_view content) {
    std::string text;
    text.reserve(content.size());
    for (std::size_t offset = 0; offset < content.size();) {
        const std::size_t end = endOfPlain(content, offset);
        text += content.substr(offset, end - offset);
        if (end == content.size()) break;
        offset = end + 2;
        if (content[end + 1] != 'u') {
            text += simpleEscape(content[end + 1]);
            continue;
        }
        char32_t scalar = *hexadecimal(content, end + 2);
        offset = end + 6;
        if (scalar >= 0xD800 && scalar <= 0xDBFF) {
            scalar = 0x10000 + ((scalar - 0xD800) << 10) + (*hexadecimal(content, end + 8) - 0xDC00);
            offset = end + 12;
        }
        UTF8::append(text, scalar);
    }
    return text;
}

}  // namespace vellark::JSONStringScan
