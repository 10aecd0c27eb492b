#include <VellarkFoundation/Unicode/ScalarProperties.hpp>

#include <unicode/uchar.h>

#include <cstdint>

namespace vellark::ScalarProperties {

namespace {

UChar32 codePoint(char32_t scalar) {
    return scalar <= 0x10FFFF ? static_cast<UChar32>(scalar) : 0xFFFF;  // a noncharacter has no property either
}

bool hasCategory(char32_t scalar, std::uint32_t mask) {
    return (U_GET_GC_MASK(codePoint(scalar)) & mask) != 0;
}

}  // namespace

bool isAlphabetic(char32_t scalar) {
    return u_hasBinaryProperty(codePoint(scalar), UCHAR_ALPHABETIC) != 0;
}

bool isDecimalDigit(char32_t scalar) {
    return u_getIntPropertyValue(codePoint(scalar), UCHAR_NUMERIC_TYPE) == U_NT_DECIMAL;
}

bool isNonspacingOrSpacingMark(char32_t scalar) {
    return hasCategory(scalar, U_GC_MN_MASK | U_GC_MC_MASK);
}

bool continuesWord(char32_t scalar) {
    return isAlphabetic(scalar) || hasCategory(scalar, U_GC_M_MASK | U_GC_ND_MASK | U_GC_PC_MASK | U_GC_CF_MASK) ||
           u_hasBinaryProperty(codePoint(scalar), UCHAR_GRAPHEME_EXTEND) != 0;
}

bool extendsCharacter(char32_t scalar) {
    switch (u_getIntPropertyValue(codePoint(scalar), UCHAR_GRAPHEME_CLUSTER_BREAK)) {
        case U_GCB_EXTEND:
        case U_GCB_SPACING_MARK:
        case U_GCB_ZWJ:
            return true;
        default:
            return false;
    }
}

}  // namespace vellark::ScalarProperties
