#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/Normalization.hpp>

#include <unicode/bytestream.h>
#include <unicode/normalizer2.h>
#include <unicode/stringpiece.h>

namespace vellark::Normalization {

std::string nfc(std::string_view text) {
    if (UTF8::isASCII(text)) return std::string(text);
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* const normalizer = icu::Normalizer2::getNFCInstance(status);
    std::string valid = UTF8::replacingInvalid(text);
    std::string result;
    result.reserve(valid.size());
    icu::StringByteSink<std::string> sink(&result);
    const icu::StringPiece piece(valid.data(), static_cast<std::int32_t>(valid.size()));
    if (U_SUCCESS(status)) normalizer->normalizeUTF8(0, piece, sink, nullptr, status);
    return U_SUCCESS(status) ? result : valid;
}

}  // namespace vellark::Normalization
