// ICU answers each property by a look-up of its own. Texts use few scripts, so their blocks are read once, on first
// use, and kept to the end of the process: no table to generate, none to disagree with the ICU that is installed.

#include <VellarkFoundation/Unicode/ScalarData.hpp>

#include <unicode/uchar.h>
#include <unicode/uscript.h>

#include <array>
#include <atomic>
#include <cstddef>
#include <memory>

namespace vellark::ScalarData {

namespace {

constexpr std::size_t blockSize = 256;
constexpr char32_t lastScalar = 0x10FFFF;
using Block = std::array<Word, blockSize>;

std::array<std::atomic<const Block*>, (lastScalar + 1) / blockSize> blocks{};

// The scripts whose consonants form conjuncts over a virama, as ICU's character rules list them.
bool formsConjuncts(UChar32 scalar) {
    UErrorCode status = U_ZERO_ERROR;
    switch (uscript_getScript(scalar, &status)) {
        case USCRIPT_GUJARATI:
        case USCRIPT_TELUGU:
        case USCRIPT_MALAYALAM:
        case USCRIPT_ORIYA:
        case USCRIPT_BENGALI:
        case USCRIPT_DEVANAGARI:
            return true;
        default:
            return false;
    }
}

Break markBreak(UChar32 scalar) {
    const auto syllabic = u_getIntPropertyValue(scalar, UCHAR_INDIC_SYLLABIC_CATEGORY);
    if (syllabic == U_INSC_VIRAMA && formsConjuncts(scalar)) return Break::virama;
    return u_getCombiningClass(scalar) != 0 ? Break::linkingExtend : Break::extend;
}

Break otherBreak(UChar32 scalar) {
    if (u_hasBinaryProperty(scalar, UCHAR_EXTENDED_PICTOGRAPHIC)) return Break::pictograph;
    const auto syllabic = u_getIntPropertyValue(scalar, UCHAR_INDIC_SYLLABIC_CATEGORY);
    return syllabic == U_INSC_CONSONANT && formsConjuncts(scalar) ? Break::linkingConsonant : Break::other;
}

Break readBreak(UChar32 scalar) {
    switch (u_getIntPropertyValue(scalar, UCHAR_GRAPHEME_CLUSTER_BREAK)) {
        case U_GCB_CONTROL:
            return Break::control;
        case U_GCB_CR:
            return Break::carriageReturn;
        case U_GCB_LF:
            return Break::lineFeed;
        case U_GCB_EXTEND:
            return markBreak(scalar);
        case U_GCB_ZWJ:
            return Break::zeroWidthJoiner;
        case U_GCB_SPACING_MARK:
            return Break::spacingMark;
        case U_GCB_PREPEND:
            return Break::prepend;
        case U_GCB_REGIONAL_INDICATOR:
            return Break::regionalIndicator;
        case U_GCB_L:
            return Break::leading;
        case U_GCB_V:
            return Break::vowel;
        case U_GCB_T:
            return Break::trailing;
        case U_GCB_LV:
            return Break::syllable;
        case U_GCB_LVT:
            return Break::closedSyllable;
        default:
            return otherBreak(scalar);
    }
}

bool isWord(UChar32 scalar, std::uint32_t category) {
    constexpr std::uint32_t categories = U_GC_M_MASK | U_GC_ND_MASK | U_GC_PC_MASK;
    return u_isUAlphabetic(scalar) || (category & categories) != 0 || scalar == 0x200C || scalar == 0x200D;
}

Word readWord(UChar32 scalar) {
    const auto when = [](bool holds, Word bit) { return holds ? bit : Word{0}; };
    const auto category = U_MASK(u_charType(scalar));
    return static_cast<Word>(
        static_cast<Word>(readBreak(scalar)) | when(u_isUWhiteSpace(scalar), whitespace) |
        when(u_isUAlphabetic(scalar), letter) |
        when(u_getIntPropertyValue(scalar, UCHAR_NUMERIC_TYPE) != U_NT_NONE, number) |
        when(u_isUUppercase(scalar), uppercase) | when(u_isULowercase(scalar), lowercase) |
        when((category & U_GC_P_MASK) != 0, punctuation) | when((category & U_GC_ND_MASK) != 0, decimalDigit) |
        when((category & (U_GC_CC_MASK | U_GC_CF_MASK)) != 0, control) | when((category & U_GC_M_MASK) != 0, mark) |
        when((category & U_GC_S_MASK) != 0, symbol) | when(isWord(scalar, category), word) |
        when((category & U_GC_CF_MASK) != 0 || u_hasBinaryProperty(scalar, UCHAR_GRAPHEME_EXTEND), hanging));
}

const Block& readBlock(std::size_t index) {
    auto block = std::make_unique<Block>();
    for (std::size_t offset = 0; offset < blockSize; ++offset) {
        (*block)[offset] = readWord(static_cast<UChar32>(index * blockSize + offset));
    }
    const Block* expected = nullptr;
    if (blocks[index].compare_exchange_strong(expected, block.get(), std::memory_order_acq_rel)) {
        return *block.release();
    }
    return *expected;  // another thread was first
}

}  // namespace

Word of(char32_t scalar) {
    if (scalar > lastScalar) scalar = 0xFFFD;
    const std::size_t index = scalar / blockSize;
    const Block* block = blocks[index].load(std::memory_order_acquire);
    return (block != nullptr ? *block : readBlock(index))[scalar % blockSize];
}

}  // namespace vellark::ScalarData
