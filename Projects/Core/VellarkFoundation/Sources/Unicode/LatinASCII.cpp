#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/LatinASCII.hpp>

#include <unicode/normalizer2.h>
#include <unicode/translit.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <memory>

namespace vellark::LatinASCII {

namespace {

struct Letter {
    char32_t scalar;
    std::string_view ascii;
};

// Letters that Unicode does not decompose into an ASCII letter and marks.
constexpr std::array letters = std::to_array<Letter>({
    {U'Æ', "AE"},
    {U'Ð', "D"},
    {U'Ø', "O"},
    {U'Þ', "TH"},
    {U'ß', "ss"},
    {U'æ', "ae"},
    {U'ð', "d"},
    {U'ø', "o"},
    {U'þ', "th"},
    {U'Đ', "D"},
    {U'đ', "d"},
    {U'ı', "i"},
    {U'Ł', "L"},
    {U'ł', "l"},
    {U'Œ', "OE"},
    {U'œ', "oe"},
});

bool isCombiningMark(UChar32 scalar) {
    return scalar >= 0x300 && scalar <= 0x36F;
}

// The precomposed letters that decompose as the transform does: Latin-1 to Latin Extended-B, and the Vietnamese block.
bool isDecomposable(char32_t scalar) {
    return (scalar >= 0xC0 && scalar <= 0x24F) || (scalar >= 0x1EA0 && scalar <= 0x1EF9);
}

// Appends the ASCII form of a letter. False for any scalar that must be left to the transform.
bool appendLetter(std::string& result, char32_t scalar, const icu::Normalizer2& normalizer) {
    const auto* const found = std::ranges::find(letters, scalar, &Letter::scalar);
    if (found != letters.end()) {
        result += found->ascii;
        return true;
    }
    icu::UnicodeString parts;
    if (!isDecomposable(scalar) || !normalizer.getDecomposition(static_cast<UChar32>(scalar), parts)) return false;
    if (parts.charAt(0) >= 0x80) return false;
    for (std::int32_t index = 1; index < parts.length(); ++index) {
        if (!isCombiningMark(parts.charAt(index))) return false;
    }
    result.push_back(static_cast<char>(parts.charAt(0)));
    return true;
}

// Nothing where a scalar needs the transform.
std::optional<std::string> transformLetters(std::string_view text) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* const normalizer = icu::Normalizer2::getNFCInstance(status);
    if (U_FAILURE(status)) return std::nullopt;
    std::string result;
    for (const char32_t scalar : Scalars(text)) {
        if (scalar < 0x80) {
            result.push_back(static_cast<char>(scalar));
        } else if (!appendLetter(result, scalar, *normalizer)) {
            return std::nullopt;
        }
    }
    return result;
}

}  // namespace

std::optional<std::string> transform(std::string_view text) {
    if (auto result = transformLetters(text)) return result;
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Transliterator> transliterator(
        icu::Transliterator::createInstance("Latin-ASCII", UTRANS_FORWARD, status));
    if (U_FAILURE(status) || transliterator == nullptr) return std::nullopt;
    auto units = icu::UnicodeString::fromUTF8(UTF8::replacingInvalid(text));
    transliterator->transliterate(units);
    std::string result;
    units.toUTF8String(result);
    return result;
}

}  // namespace vellark::LatinASCII
