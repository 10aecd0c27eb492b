#include <VellarkDomain/Documents/Summary/TotalLabel.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>

#include <algorithm>
#include <array>

// Walks back from the end over what may stand between a total word and its number: colons, dashes, particles, "is",
// "about", parentheses. What then ends the text must be the end of a total word.

namespace vellark::TotalLabel {

namespace {

char lower(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 'a' - 'A') : byte;
}

bool endsWith(std::string_view text, std::string_view word) {
    if (text.size() < word.size()) return false;
    return std::equal(word.begin(), word.end(), text.end() - static_cast<std::ptrdiff_t>(word.size()),
                      [](char expected, char byte) { return expected == lower(byte); });
}

// The scalars that may stand between word and number, but for letters of ASCII.
bool isFiller(char32_t scalar) {
    constexpr std::u32string_view fillers = U":：=|-–—−~≈.은는이가약";
    return fillers.find(scalar) != fillers.npos || CharacterClass::isWhitespace(scalar);
}

bool dropFillers(std::string_view& text) {
    const std::size_t size = text.size();
    while (!text.empty()) {
        const std::size_t last = UTF8::previousOffset(text, text.size());
        if (!isFiller(UTF8::decode(text, last).scalar)) break;
        text = text.substr(0, last);
    }
    return text.size() < size;
}

bool dropWord(std::string_view& text) {
    // Words with an "s" may be written with the long one, which the ending leaves out.
    constexpr auto words =
        std::to_array<std::string_view>({"is", "i\u017F", "of", "to", "comes", "come\u017F", "approx", "about"});
    const auto word = std::find_if(words.begin(), words.end(), [&](auto ending) { return endsWith(text, ending); });
    if (word == words.end()) return false;
    text.remove_suffix(word->size());
    return true;
}

bool endsInParenthesis(std::string_view text) {
    return text.ends_with(')') || text.ends_with("）");
}

// The last letters of all total words in ASCII, some with the word that must stand before them.
bool endsInWord(std::string_view text) {
    constexpr auto seconds = std::to_array<std::string_view>({"due", "amount", "price", "cost"});
    constexpr auto firsts = std::to_array<std::string_view>({"total", "amount", "balance"});
    const auto endsInAny = [&](const auto& words, std::string_view* found) {
        for (const std::string_view word : words) {
            if (found != nullptr) *found = word;
            if (endsWith(text, word)) return true;
        }
        return false;
    };
    std::string_view second;
    if (endsInAny(seconds, &second)) {
        text.remove_suffix(second.size());
        dropFillers(text);
        return endsInAny(firsts, nullptr);
    }
    return endsWith(text, "total") || endsWith(text, "summe") || endsWith(text, "endbetrag");
}

bool isWordByte(char byte) {
    return (byte >= '0' && byte <= '9') || (lower(byte) >= 'a' && lower(byte) <= 'z') || byte == '_';
}

// "gesamt" takes any letters behind it.
bool endsInGesamt(std::string_view text) {
    std::size_t start = text.size();
    while (start > 0 && isWordByte(text[start - 1]))
        --start;
    if (start > 0 && static_cast<unsigned char>(text[start - 1]) >= 0x80) return true;  // letters beyond ASCII
    const std::string_view word = text.substr(start);
    for (std::size_t place = 0; place + 6 <= word.size(); ++place) {
        if (endsWith(word.substr(0, place + 6), "gesamt")) return true;
    }
    return false;
}

}  // namespace

bool mayEnd(std::string_view text) {
    do {
        if (endsInParenthesis(text) || endsInGesamt(text)) return true;
    } while (dropFillers(text) || dropWord(text));
    if (text.empty()) return false;
    return static_cast<unsigned char>(text.back()) >= 0x80 || endsInWord(text);
}

}  // namespace vellark::TotalLabel
