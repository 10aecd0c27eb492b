#include <VellarkFoundation/Digest/HexadecimalDigest.hpp>
#include <VellarkFoundation/Digest/SHA256Stream.hpp>

#include <sodium/crypto_hash_sha256.h>

#include <array>

namespace vellark {

struct SHA256Stream::State {
    crypto_hash_sha256_state hash;
};

SHA256Stream::SHA256Stream() : state_(std::make_unique<State>()) {
    crypto_hash_sha256_init(&state_->hash);
}

SHA256Stream::SHA256Stream(SHA256Stream&&) noexcept = default;
SHA256Stream& SHA256Stream::operator=(SHA256Stream&&) noexcept = default;
SHA256Stream::~SHA256Stream() = default;

void SHA256Stream::add(std::string_view bytes) {
    crypto_hash_sha256_update(&state_->hash, reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
}

std::string SHA256Stream::hexadecimal() {
    std::array<unsigned char, crypto_hash_sha256_BYTES> digest{};
    crypto_hash_sha256_final(&state_->hash, digest.data());
    return hexadecimalDigest(digest);
}

}  // namespace vellark
