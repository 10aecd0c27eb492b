#include <VellarkDomain/Documents/Summary/SummaryBytes.hpp>
#include <VellarkDomain/Documents/Summary/SummaryText.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>
#include <VellarkFoundation/Unicode/ScalarData.hpp>

#include <algorithm>
#include <array>
#include <optional>

namespace vellark::SummaryText {

namespace {

using ScalarData::Break;

bool isControl(Break value) {
    return value == Break::control || value == Break::carriageReturn || value == Break::lineFeed;
}

bool isJoining(Break value) {
    return value == Break::extend || value == Break::linkingExtend || value == Break::virama ||
           value == Break::zeroWidthJoiner || value == Break::spacingMark;
}

// Whether two neighbours are cut apart; nothing when it depends on what stands before them.
std::optional<bool> isCut(Break before, Break after) {
    if (before == Break::carriageReturn && after == Break::lineFeed) return false;
    if (isControl(before) || isControl(after)) return true;
    if (isJoining(after) || before == Break::prepend) return false;
    if (before == Break::other || after == Break::other) return true;
    const bool isSyllable = before == Break::syllable || before == Break::closedSyllable;
    if (isSyllable && (after == Break::syllable || after == Break::closedSyllable)) return true;
    return std::nullopt;
}

// Bytes that may begin white space.
constexpr auto mayBeginWhitespace = [] {
    std::array<bool, 256> table{};
    for (const unsigned byte : {0x09U, 0x0AU, 0x0BU, 0x0CU, 0x0DU, 0x20U, 0xC2U, 0xE1U, 0xE2U, 0xE3U})
        table[byte] = true;
    return table;
}();

// The end of the white space character at the offset; the offset itself when there is none.
std::size_t whitespaceEnd(std::string_view text, std::size_t offset) {
    if (!mayBeginWhitespace[static_cast<unsigned char>(text[offset])]) return offset;
    if (text.substr(offset, 2) == "\r\n") return offset + 2;
    const bool isAlone = offset + 1 < text.size() && static_cast<unsigned char>(text[offset + 1]) < 0x80;
    if (text[offset] == ' ' && isAlone && offset > 0 && static_cast<unsigned char>(text[offset - 1]) < 0x80) {
        return offset + 1;
    }
    if (!CharacterClass::isWhitespace(UTF8::decode(text, offset).scalar)) return offset;
    const bool followsASCII = offset == 0 || static_cast<unsigned char>(text[offset - 1]) < 0x80;
    if (!followsASCII && !isBoundary(text, offset)) return offset;
    return GraphemeBreak::next(text, offset);
}

// Whether a character that begins with this byte stands apart from a blank on either side: printable ASCII, Chinese
// characters, and Hangul syllables but for the first of their lead bytes, which marks have too.
bool standsApart(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    return (value > ' ' && value < 0x7F) || (value >= 0xE4 && value <= 0xE9) || (value >= 0xEB && value <= 0xED);
}

// Whether the words are plainly joined with single blanks already, as those of most lines are.
bool isCollapsed(std::string_view text) {
    bool isApart = false;  // the last character
    for (std::size_t offset = 0; offset < text.size(); ++offset) {
        const char byte = text[offset];
        if (byte == ' ') {
            if (!isApart || offset + 1 == text.size() || !standsApart(text[offset + 1])) return false;
            isApart = false;
        } else if (mayBeginWhitespace[static_cast<unsigned char>(byte)]) {
            return false;
        } else if ((static_cast<unsigned char>(byte) & 0xC0U) != 0x80) {
            isApart = standsApart(byte);
        }
    }
    return true;
}

std::string joinedWords(std::string_view text, std::string_view separator) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t behind = whitespaceEnd(text, start);
        if (behind > start) {
            start = behind;
            continue;
        }
        std::size_t end = start + 1;
        while (end < text.size() && whitespaceEnd(text, end) == end)
            ++end;
        if (!result.empty()) result += separator;
        result += text.substr(start, end - start);
        start = end;
    }
    return result;
}

}  // namespace

bool isBoundary(std::string_view text, std::size_t offset) {
    if (offset == 0 || offset >= text.size()) return true;
    constexpr std::size_t syllableSize = 3;
    const bool isBeforeASCII = static_cast<unsigned char>(text[offset]) < 0x80;
    const bool isBehindWide = offset >= syllableSize && static_cast<unsigned char>(text[offset - 1]) >= 0x80;
    if (isBehindWide && isBeforeASCII && SummaryBytes::isSyllable(text, offset - syllableSize)) return true;
    const char32_t before = UTF8::decode(text, UTF8::previousOffset(text, offset)).scalar;
    const char32_t after = UTF8::decode(text, offset).scalar;
    if (before < 0x80 && after < 0x80) return !(before == '\r' && after == '\n');
    const auto cut = isCut(ScalarData::breakOf(before), ScalarData::breakOf(after));
    if (cut) return *cut;
    const Graphemes characters(text);
    return characters.byteOffset(characters.characterAt(offset)) == offset;
}

std::size_t find(std::string_view text, std::string_view needle, std::size_t from) {
    std::size_t found = text.find(needle, from);
    while (found != text.npos && !(isBoundary(text, found) && isBoundary(text, found + needle.size())))
        found = text.find(needle, found + 1);
    return found;
}

std::size_t findLast(std::string_view text, std::string_view needle) {
    std::size_t found = text.rfind(needle);
    while (found != text.npos && !(isBoundary(text, found) && isBoundary(text, found + needle.size()))) {
        if (found == 0) return text.npos;
        found = text.rfind(needle, found - 1);
    }
    return found;
}

Colon findColon(std::string_view text) {
    constexpr std::string_view wide = "：";
    const std::size_t narrow = find(text, ":");
    const std::size_t other = find(text.substr(0, narrow), wide);
    return other == text.npos ? Colon{narrow, 1} : Colon{other, wide.size()};
}

std::string collapsed(std::string_view text) {
    return isCollapsed(text) ? std::string(text) : joinedWords(text, " ");
}

std::string withoutWhitespace(std::string_view text) {
    const auto mayBegin = [](char byte) { return mayBeginWhitespace[static_cast<unsigned char>(byte)]; };
    return std::none_of(text.begin(), text.end(), mayBegin) ? std::string(text) : joinedWords(text, "");
}

std::vector<std::string_view> split(std::string_view text, std::string_view separator) {
    std::vector<std::string_view> pieces;
    std::size_t start = 0;
    for (std::size_t end = find(text, separator); end != text.npos; end = find(text, separator, start)) {
        pieces.push_back(text.substr(start, end - start));
        start = end + separator.size();
    }
    pieces.push_back(text.substr(start));
    return pieces;
}

std::vector<std::string_view> lines(std::string_view text) {
    std::vector<std::string_view> result;
    std::size_t start = 0;
    for (std::size_t end = text.find('\n'); end != text.npos; end = text.find('\n', end + 1)) {
        if (end > 0 && text[end - 1] == '\r') continue;
        result.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    result.push_back(text.substr(start));
    return result;
}

std::string_view trimmed(std::string_view text, std::string_view bytes) {
    const std::size_t first = text.find_first_not_of(bytes);
    if (first == text.npos) return {};
    return text.substr(first, text.find_last_not_of(bytes) - first + 1);
}

std::string_view trimmed(std::string_view text, std::u32string_view scalars) {
    const auto isTrimmed = [&](char32_t scalar) { return scalars.find(scalar) != scalars.npos; };
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

std::string joined(const std::vector<std::string>& parts, std::string_view separator) {
    std::string result;
    for (const std::string& part : parts) {
        if (&part != &parts.front()) result += separator;
        result += part;
    }
    return result;
}

std::string replacing(std::string_view text, std::string_view needle, std::string_view replacement) {
    std::string result;
    result.reserve(text.size());
    std::size_t start = 0;
    for (std::size_t end = text.find(needle); end != text.npos; end = text.find(needle, start)) {
        result += text.substr(start, end - start);
        result += replacement;
        start = end + needle.size();
    }
    result += text.substr(start);
    return result;
}

}  // namespace vellark::SummaryText
