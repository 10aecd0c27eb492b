#include <VellarkFoundation/Identifiers/UUID.hpp>

#include <sys/random.h>
#include <unistd.h>

#include <array>

namespace vellark::UUID {

namespace {

constexpr std::size_t textLength = 36;

constexpr bool isHyphenPlace(std::size_t index) {
    return index == 8 || index == 13 || index == 18 || index == 23;
}

constexpr bool isHexadecimal(char character) {
    return (character >= '0' && character <= '9') || (character >= 'a' && character <= 'f') ||
           (character >= 'A' && character <= 'F');
}

}  // namespace

std::optional<std::string> random() {
    std::array<unsigned char, 16> bytes{};
    if (getentropy(bytes.data(), bytes.size()) != 0) return std::nullopt;
    bytes[6] = static_cast<unsigned char>((bytes[6] & 0x0F) | 0x40);  // version 4
    bytes[8] = static_cast<unsigned char>((bytes[8] & 0x3F) | 0x80);  // the variant of RFC 9562
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    text.reserve(textLength);
    for (const unsigned char byte : bytes) {
        if (isHyphenPlace(text.size())) text.push_back('-');
        text.push_back(digits[byte >> 4]);
        text.push_back(digits[byte & 0x0F]);
    }
    return text;
}

bool isValid(std::string_view text) {
    if (text.size() != textLength) return false;
    for (std::size_t index = 0; index < textLength; ++index) {
        if (isHyphenPlace(index) ? text[index] != '-' : !isHexadecimal(text[index])) return false;
    }
    return true;
}

}  // namespace vellark::UUID
