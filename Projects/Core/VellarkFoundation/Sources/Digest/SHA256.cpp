#include <VellarkFoundation/Digest/HexadecimalDigest.hpp>
#include <VellarkFoundation/Digest/SHA256.hpp>

#include <sodium/crypto_hash_sha256.h>

#include <array>

namespace vellark::SHA256 {

std::string hexadecimal(std::string_view bytes) {
    std::array<unsigned char, crypto_hash_sha256_BYTES> digest{};
    crypto_hash_sha256(digest.data(), reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
    return hexadecimalDigest(digest);
}

}  // namespace vellark::SHA256
