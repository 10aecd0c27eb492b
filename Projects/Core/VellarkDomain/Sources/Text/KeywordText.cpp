#include <VellarkDomain/Text/KeywordText.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/Normalization.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

namespace vellark {

namespace {

std::string prepared(std::string_view text) {
    return Normalization::nfc(UnicodeCase::lower(text));
}

bool isLetterOrDigit(std::string_view character) {
    if (character.size() != 1) return false;
    const char byte = character.front();
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9');
}

bool beginsWithHangul(std::string_view text) {
    if (text.empty()) return false;
    const char32_t scalar = UTF8::decode(text, 0).scalar;
    return scalar >= 0xAC00 && scalar <= 0xD7A3;
}

}  // namespace

KeywordPattern::KeywordPattern(std::string_view word) : text_(prepared(word)), isASCII_(UTF8::isASCII(text_)) {
    const Graphemes characters(text_);
    isHangulPair_ = !characters.exceeds(2) && beginsWithHangul(characters[0]) && beginsWithHangul(characters[1]);
}

KeywordText::KeywordText(std::string_view text)
    : text_(prepared(text)), isASCII_(UTF8::isASCII(text_)), characters_(text_) {}

std::vector<KeywordText::Range> KeywordText::matches(const KeywordPattern& pattern, bool bounded) const {
    std::vector<Range> result;
    const std::string_view word = pattern.text();
    if (word.empty()) return result;
    for (std::size_t start = text_.find(word); start != text_.npos; start = text_.find(word, start + 1)) {
        const std::size_t end = start + word.size();
        if (!isBoundary(start) || !isBoundary(end)) continue;
        if (bounded && !keepsBounds(pattern, start, end)) continue;
        result.push_back({static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(end)});
    }
    return result;
}

// Whether a character begins at the byte, or the text ends there.
bool KeywordText::isBoundary(std::size_t byte) const {
    return characters_.byteOffset(characters_.characterAt(byte)) == byte;
}

bool KeywordText::keepsBounds(const KeywordPattern& pattern, std::size_t start, std::size_t end) const {
    if (!pattern.isASCII() && !pattern.isHangulPair()) return true;
    const std::string_view before = start == 0 ? std::string_view() : characters_[characters_.characterAt(start - 1)];
    if (!pattern.isASCII()) return !beginsWithHangul(before);
    return !isLetterOrDigit(before) && !isLetterOrDigit(characters_[characters_.characterAt(end)]);
}

}  // namespace vellark
