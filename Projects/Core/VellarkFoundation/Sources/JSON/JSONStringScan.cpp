#include <VellarkFoundation/JSON/JSONStringScan.hpp>

#include <cstdint>
#include <cstring>

// Eight bytes at a time are passed over while none of them is a quote, a backslash or a control character. The tests
// are the usual ones on whole words: a byte of `word - 0x01…` borrows into its high bit only when the byte was zero.

namespace vellark::JSONStringScan {

namespace {

constexpr std::uint64_t repeated(unsigned char byte) {
    return 0x0101010101010101ULL * byte;
}

// May also report a byte behind one that is zero, never misses one: enough for "none of them".
constexpr std::uint64_t zeroBytes(std::uint64_t word) {
    return (word - repeated(1)) & ~word & repeated(0x80);
}

constexpr bool isPlain(std::uint64_t word) {
    const std::uint64_t controls = (word - repeated(0x20)) & ~word & repeated(0x80);
    return (controls | zeroBytes(word ^ repeated('"')) | zeroBytes(word ^ repeated('\\'))) == 0;
}

std::size_t skipPlain(std::string_view text, std::size_t offset) {
    while (offset + 8 <= text.size()) {
        std::uint64_t word;
        std::memcpy(&word, text.data() + offset, 8);
        if (!isPlain(word)) break;
        offset += 8;
    }
    const auto stops = [](char character) {
        return character == '"' || character == '\\' || static_cast<unsigned char>(character) < 0x20;
    };
    while (offset < text.size() && !stops(text[offset])) {
        ++offset;
    }
    return offset;
}

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

}  // namespace

std::optional<std::size_t> closingQuote(std::string_view text, std::size_t offset) {
    while (true) {
        offset = skipPlain(text, offset);
        if (offset == text.size()) return std::nullopt;
        if (text[offset] == '"') return offset;
        if (text[offset] != '\\') return std::nullopt;
        const auto end = endOfEscape(text, offset);
        if (!end) return std::nullopt;
        offset = *end;
    }
}

}  // namespace vellark::JSONStringScan
