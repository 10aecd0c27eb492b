#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/DisplayWidth.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <unicode/uchar.h>

namespace vellark::DisplayWidth {

namespace {

constexpr char32_t emojiSelector = 0xFE0F;  // asks for the coloured, wide form of the character before it

std::size_t columnsOfCharacter(std::string_view character) {
    const auto first = UTF8::decode(character, 0);
    if (first.scalar < 0x7F) return first.scalar >= 0x20 ? 1 : 0;
    const auto scalar = static_cast<UChar32>(first.scalar);
    const int width = u_getIntPropertyValue(scalar, UCHAR_EAST_ASIAN_WIDTH);
    if (width == U_EA_WIDE || width == U_EA_FULLWIDTH) return 2;
    const bool isPair = first.byteCount < character.size() && u_hasBinaryProperty(scalar, UCHAR_REGIONAL_INDICATOR);
    if (isPair || u_hasBinaryProperty(scalar, UCHAR_EMOJI_PRESENTATION)) return 2;
    for (const char32_t other : Scalars(character.substr(first.byteCount))) {
        if (other == emojiSelector && u_hasBinaryProperty(scalar, UCHAR_EMOJI)) return 2;
    }
    constexpr std::uint32_t widthless = U_GC_M_MASK | U_GC_CC_MASK | U_GC_CF_MASK | U_GC_ZL_MASK | U_GC_ZP_MASK;
    return (U_GET_GC_MASK(scalar) & widthless & ~std::uint32_t{U_GC_MC_MASK}) != 0 ? 0 : 1;
}

bool isHarmful(char32_t scalar) {
    const auto category = U_GET_GC_MASK(static_cast<UChar32>(scalar));
    if ((category & (U_GC_CC_MASK | U_GC_ZL_MASK | U_GC_ZP_MASK)) != 0) return true;
    return u_hasBinaryProperty(static_cast<UChar32>(scalar), UCHAR_BIDI_CONTROL) != 0;
}

}  // namespace

std::size_t columns(std::string_view text) {
    std::size_t sum = 0;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = GraphemeBreak::next(text, start);
        sum += columnsOfCharacter(text.substr(start, end - start));
        start = end;
    }
    return sum;
}

std::string fitted(std::string_view text, std::size_t limit) {
    std::size_t sum = 0;
    std::size_t cut = 0;  // where a text that turns out too long ends before its "…"
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = GraphemeBreak::next(text, start);
        sum += columnsOfCharacter(text.substr(start, end - start));
        if (sum > limit) return limit == 0 ? "" : std::string(text.substr(0, cut)) + "…";
        if (sum + 1 <= limit) cut = end;
        start = end;
    }
    return std::string(text);
}

std::string padded(std::string_view text, std::size_t width) {
    std::string result = fitted(text, width);
    result.append(width - columns(result), ' ');
    return result;
}

std::string harmless(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (const char32_t scalar : Scalars(text)) {
        if (isHarmful(scalar)) {
            result += ' ';
        } else {
            UTF8::append(result, scalar);
        }
    }
    return result;
}

}  // namespace vellark::DisplayWidth
