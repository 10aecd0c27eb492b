#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <unicode/ustring.h>
#include <unicode/utf16.h>

#include <array>

namespace vellark::UnicodeCase {

namespace {

using Mapping = int32_t (*)(UChar*, int32_t, const UChar*, int32_t, const char*, UErrorCode*);

void appendMapped(std::string& result, char32_t scalar, Mapping mapping) {
    std::array<UChar, 2> source{};
    std::int32_t sourceLength = 0;
    U16_APPEND_UNSAFE(source.data(), sourceLength, static_cast<UChar32>(scalar));
    std::array<UChar, 8> mapped{};  // no scalar maps to more than three
    UErrorCode status = U_ZERO_ERROR;
    const std::int32_t length =
        mapping(mapped.data(), static_cast<std::int32_t>(mapped.size()), source.data(), sourceLength, "", &status);
    for (std::int32_t index = 0; index < length;) {
        UChar32 part = 0;
        U16_NEXT(mapped.data(), index, length, part);
        UTF8::append(result, static_cast<char32_t>(part));
    }
}

std::string mapped(std::string_view text, Mapping mapping, char first, char last, int distance) {
    std::string result;
    result.reserve(text.size());
    for (const char32_t scalar : Scalars(text)) {
        if (scalar >= 0x80) {
            appendMapped(result, scalar, mapping);
        } else {
            const char character = static_cast<char>(scalar);
            const bool moves = character >= first && character <= last;
            result.push_back(moves ? static_cast<char>(character + distance) : character);
        }
    }
    return result;
}

}  // namespace

std::string lower(std::string_view text) {
    return mapped(text, u_strToLower, 'A', 'Z', 'a' - 'A');
}

std::string upper(std::string_view text) {
    return mapped(text, u_strToUpper, 'a', 'z', 'A' - 'a');
}

}  // namespace vellark::UnicodeCase
