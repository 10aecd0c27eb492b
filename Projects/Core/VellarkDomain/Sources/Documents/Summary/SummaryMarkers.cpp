#include <VellarkDomain/Documents/Summary/SummaryBytes.hpp>
#include <VellarkDomain/Documents/Summary/SummaryMarkers.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>

#include <algorithm>

namespace vellark::SummaryMarkers {

namespace {

constexpr std::size_t npos = std::string_view::npos;

bool stands(std::string_view text, std::size_t offset, std::string_view bytes) {
    return offset < text.size() && bytes.find(text[offset]) != npos;
}

std::size_t skip(std::string_view text, std::size_t offset, bool (*isPassed)(char32_t)) {
    while (offset < text.size()) {
        const auto decoded = UTF8::decode(text, offset);
        if (!isPassed(decoded.scalar)) break;
        offset += decoded.byteCount;
    }
    return offset;
}

std::size_t skipBlanks(std::string_view text, std::size_t offset) {
    return skip(text, offset, CharacterClass::isWhitespace);
}

std::size_t skipDigits(std::string_view text, std::size_t offset) {
    return skip(text, offset, CharacterClass::isDecimalDigit);
}

// Behind the white space that must stand at the offset; 0 when none does.
std::size_t behindBlanks(std::string_view text, std::size_t offset) {
    const std::size_t end = skipBlanks(text, offset);
    return end > offset ? end : 0;
}

bool endsLine(char32_t scalar) {
    return (scalar >= 0x0A && scalar <= 0x0D) || scalar == 0x85 || scalar == 0x2028 || scalar == 0x2029;
}

// Behind the box of a task and the white space after it; the offset itself without a box.
std::size_t behindBox(std::string_view text, std::size_t offset) {
    if (!stands(text, offset, "[") || offset + 1 == text.size()) return offset;
    const auto content = UTF8::decode(text, offset + 1);
    const std::size_t close = offset + 1 + content.byteCount;
    if (endsLine(content.scalar) || !stands(text, close, "]")) return offset;
    return skipBlanks(text, close + 1);
}

std::size_t behindItem(std::string_view text, std::size_t start) {
    std::size_t end = start + 1;
    if (!stands(text, start, "-*+")) {
        end = skipDigits(text, start);
        if (end == start || !stands(text, end, ".)")) return 0;
        ++end;
    }
    const std::size_t content = behindBlanks(text, end);
    return content == 0 ? 0 : behindBox(text, content);
}

std::size_t behindRun(std::string_view text, std::size_t offset, char byte) {
    return std::min(text.find_first_not_of(byte, offset), text.size());
}

std::size_t behindArabicNumber(std::string_view text) {
    constexpr std::string_view ordinal = "제";
    std::size_t offset = text.starts_with(ordinal) ? ordinal.size() : 0;
    offset = skipBlanks(text, offset);
    const std::size_t digits = skipDigits(text, offset);
    if (digits == offset) return 0;
    offset = skipBlanks(text, digits);
    if (stands(text, offset, ".)")) {
        ++offset;
    } else {
        const std::string_view rest = text.substr(offset);
        if (!rest.starts_with("장") && !rest.starts_with("절")) return 0;
        offset += std::string_view("장").size();
    }
    return stands(text, offset, ".") ? offset + 1 : offset;
}

bool isRomanLetter(char32_t scalar) {
    return scalar < 0x80 && std::string_view("IVXivx").find(static_cast<char>(scalar)) != npos;
}

bool isRomanNumeral(char32_t scalar) {
    return scalar >= U'\u2160' && scalar <= U'\u2169';
}

std::size_t behindRomanNumber(std::string_view text) {
    const std::size_t letters = skip(text, 0, isRomanLetter);
    if (letters > 0) return stands(text, letters, ".") ? letters + 1 : 0;
    const std::size_t numerals = skip(text, 0, isRomanNumeral);
    return numerals > 0 && stands(text, numerals, ".") ? numerals + 1 : numerals;
}

// Whether the text begins with a letter of ASCII, a Chinese character or Hangul, which open no mark.
bool startsPlainly(std::string_view text) {
    if (text.empty()) return true;
    const char first = text.front();
    const bool isLetter = (first >= 'a' && first <= 'z') || (first >= 'A' && first <= 'Z');
    return isLetter || SummaryBytes::isSyllable(text, 0);
}

// Whether a section number may begin here.
bool mayOpenNumber(std::string_view text) {
    if (text.empty()) return false;
    const bool isASCII = static_cast<unsigned char>(text.front()) < 0x80;
    if (isASCII) return std::string_view("IVXivx0123456789 \t\n\v\f\r").find(text.front()) != npos;
    return !SummaryBytes::isSyllable(text, 0) || text.starts_with("제");
}

}  // namespace

std::size_t listItem(std::string_view text) {
    return startsPlainly(text) ? 0 : behindItem(text, 0);
}

std::size_t line(std::string_view text) {
    constexpr std::size_t deepestHeading = 6;
    if (startsPlainly(text)) return 0;
    const std::size_t start = skipBlanks(text, 0);
    if (stands(text, start, ">")) return skipBlanks(text, behindRun(text, start, '>'));
    if (!stands(text, start, "#")) return behindItem(text, start);
    const std::size_t end = behindRun(text, start, '#');
    return end - start <= deepestHeading ? behindBlanks(text, end) : 0;
}

std::size_t sectionNumber(std::string_view text) {
    if (!mayOpenNumber(text)) return 0;
    std::size_t end = behindArabicNumber(text);
    if (end == 0) end = behindRomanNumber(text);
    return end == 0 ? 0 : skipBlanks(text, end);
}

}  // namespace vellark::SummaryMarkers
