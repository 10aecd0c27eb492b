#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>
#include <VellarkFoundation/Unicode/ScalarData.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

namespace vellark::CharacterClass {

namespace {

bool has(char32_t scalar, ScalarData::Word bit) {
    return (ScalarData::of(scalar) & bit) != 0;
}

char32_t firstScalar(std::string_view character) {
    return UTF8::decode(character, 0).scalar;
}

bool isSingleScalar(std::string_view character) {
    return UTF8::decode(character, 0).byteCount == character.size();
}

}  // namespace

bool isWhitespace(char32_t scalar) {
    return has(scalar, ScalarData::whitespace);
}

bool isNewline(char32_t scalar) {
    return (scalar >= 0x0A && scalar <= 0x0D) || scalar == 0x85 || scalar == 0x2028 || scalar == 0x2029;
}

bool isLetter(char32_t scalar) {
    return has(scalar, ScalarData::letter);
}

bool isNumber(char32_t scalar) {
    return has(scalar, ScalarData::number);
}

bool isDecimalDigit(char32_t scalar) {
    return has(scalar, ScalarData::decimalDigit);
}

bool isPunctuation(char32_t scalar) {
    return has(scalar, ScalarData::punctuation);
}

bool isSymbol(char32_t scalar) {
    return has(scalar, ScalarData::symbol);
}

bool isControl(char32_t scalar) {
    return has(scalar, ScalarData::control);
}

bool isMark(char32_t scalar) {
    return has(scalar, ScalarData::mark);
}

bool isBehindWord(std::string_view text, std::size_t byte) {
    while (byte > 0) {
        byte = UTF8::previousOffset(text, byte);
        const auto word = ScalarData::of(UTF8::decode(text, byte).scalar);
        if ((word & ScalarData::hanging) == 0) return (word & ScalarData::word) != 0;
    }
    return false;
}

bool isWhitespace(std::string_view character) {
    return isWhitespace(firstScalar(character));
}

bool isNewline(std::string_view character) {
    return isNewline(firstScalar(character));
}

bool isLetter(std::string_view character) {
    return isLetter(firstScalar(character));
}

bool isNumber(std::string_view character) {
    return isNumber(firstScalar(character));
}

bool isUppercase(std::string_view character) {
    if (isSingleScalar(character)) return has(firstScalar(character), ScalarData::uppercase);
    return UnicodeCase::upper(character) == character && UnicodeCase::lower(character) != character;
}

bool isLowercase(std::string_view character) {
    if (isSingleScalar(character)) return has(firstScalar(character), ScalarData::lowercase);
    return UnicodeCase::lower(character) == character && UnicodeCase::upper(character) != character;
}

std::string_view trimmedStart(std::string_view text) {
    while (!text.empty()) {
        const auto first = UTF8::decode(text, 0);
        if (!isWhitespace(first.scalar)) break;
        text.remove_prefix(first.byteCount);
    }
    return text;
}

std::string_view trimmed(std::string_view text) {
    text = trimmedStart(text);
    while (!text.empty()) {
        const std::size_t last = UTF8::previousOffset(text, text.size());
        if (!isWhitespace(UTF8::decode(text, last).scalar)) break;
        text.remove_suffix(text.size() - last);
    }
    return text;
}

bool isBlank(std::string_view text) {
    return trimmed(text).empty();
}

}  // namespace vellark::CharacterClass
