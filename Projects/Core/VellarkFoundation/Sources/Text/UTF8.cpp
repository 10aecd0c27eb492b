#include <VellarkFoundation/Text/UTF8.hpp>

#include <cstring>

// The second byte of a sequence decides whether it is overlong, a surrogate or too large; all later bytes are plain
// continuation bytes. So one table of permitted second bytes for each lead byte is the whole grammar.

namespace vellark::UTF8 {

namespace {

struct Lead {
    std::uint8_t byteCount;  // 0: never a lead byte
    std::uint8_t secondLowest;
    std::uint8_t secondHighest;
};

constexpr Lead leadOf(unsigned char byte) {
    if (byte >= 0xC2 && byte <= 0xDF) return {2, 0x80, 0xBF};
    if (byte == 0xE0) return {3, 0xA0, 0xBF};
    if (byte == 0xED) return {3, 0x80, 0x9F};
    if (byte >= 0xE1 && byte <= 0xEF) return {3, 0x80, 0xBF};
    if (byte == 0xF0) return {4, 0x90, 0xBF};
    if (byte == 0xF4) return {4, 0x80, 0x8F};
    if (byte >= 0xF1 && byte <= 0xF3) return {4, 0x80, 0xBF};
    return {0, 0, 0};
}

constexpr bool isContinuation(unsigned char byte) {
    return (byte & 0xC0) == 0x80;
}

// Bytes from `offset` on that are ASCII, found eight at a time.
std::size_t asciiRun(std::string_view text, std::size_t offset) {
    const std::size_t start = offset;
    constexpr std::uint64_t highBits = 0x8080808080808080;
    while (offset + 8 <= text.size()) {
        std::uint64_t word;
        std::memcpy(&word, text.data() + offset, 8);
        if ((word & highBits) != 0) break;
        offset += 8;
    }
    while (offset < text.size() && static_cast<unsigned char>(text[offset]) < 0x80) {
        ++offset;
    }
    return offset - start;
}

}  // namespace

Decoded decodeMultibyte(std::string_view text, std::size_t offset) {
    const auto byteAt = [&](std::size_t index) { return static_cast<unsigned char>(text[offset + index]); };
    const Lead lead = leadOf(byteAt(0));
    const std::size_t available = text.size() - offset;
    if (lead.byteCount == 0 || available < 2 || byteAt(1) < lead.secondLowest || byteAt(1) > lead.secondHighest) {
        return {replacementScalar, 1, false};
    }
    char32_t scalar = byteAt(0) & (0x7FU >> lead.byteCount);
    scalar = (scalar << 6) | (byteAt(1) & 0x3FU);
    for (std::uint32_t index = 2; index < lead.byteCount; ++index) {
        if (index >= available || !isContinuation(byteAt(index))) return {replacementScalar, index, false};
        scalar = (scalar << 6) | (byteAt(index) & 0x3FU);
    }
    return {scalar, lead.byteCount, true};
}

void append(std::string& text, char32_t scalar) {
    if (scalar > 0x10FFFF || (scalar >= 0xD800 && scalar <= 0xDFFF)) scalar = replacementScalar;
    const auto add = [&](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (scalar < 0x80) {
        add(scalar);
    } else if (scalar < 0x800) {
        add(0xC0 | (scalar >> 6));
        add(0x80 | (scalar & 0x3F));
    } else if (scalar < 0x10000) {
        add(0xE0 | (scalar >> 12));
        add(0x80 | ((scalar >> 6) & 0x3F));
        add(0x80 | (scalar & 0x3F));
    } else {
        add(0xF0 | (scalar >> 18));
        add(0x80 | ((scalar >> 12) & 0x3F));
        add(0x80 | ((scalar >> 6) & 0x3F));
        add(0x80 | (scalar & 0x3F));
    }
}

std::string replacingInvalid(std::string_view text) {
    if (isValid(text)) return std::string(text);
    std::string result;
    result.reserve(text.size());
    for (const char32_t scalar : Scalars(text)) {
        append(result, scalar);
    }
    return result;
}

std::size_t scalarCount(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t offset = 0; offset < text.size();) {
        const std::size_t run = asciiRun(text, offset);
        count += run;
        offset += run;
        if (offset < text.size()) {
            offset += decodeMultibyte(text, offset).byteCount;
            ++count;
        }
    }
    return count;
}

bool isASCII(std::string_view text) {
    return asciiRun(text, 0) == text.size();
}

std::size_t previousOffset(std::string_view text, std::size_t end) {
    // A sequence of n bytes is accepted only when it ends exactly at `end`; otherwise the last byte stands alone or
    // belongs to a shorter ill-formed subpart.
    for (std::size_t length = 2; length <= 4 && length <= end; ++length) {
        const std::size_t start = end - length;
        if (isContinuation(static_cast<unsigned char>(text[start]))) continue;
        return decode(text.substr(0, end), start).byteCount == length ? start : end - 1;
    }
    return end - 1;
}

}  // namespace vellark::UTF8
