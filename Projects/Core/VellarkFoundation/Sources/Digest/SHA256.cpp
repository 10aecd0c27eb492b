#include <VellarkFoundation/Digest/SHA256.hpp>

#include <sodium/crypto_hash_sha256.h>

#include <array>

namespace vellark::SHA256 {

std::string hexadecimal(std::string_view bytes) {
    std::array<unsigned char, crypto_hash_sha256_BYTES> digest{};
    crypto_hash_sha256(digest.data(), reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    text.reserve(2 * digest.size());
    for (const unsigned char byte : digest) {
        text.push_back(digits[byte >> 4]);
        text.push_back(digits[byte & 0x0F]);
    }
    return text;
}

}  // namespace vellark::SHA256
