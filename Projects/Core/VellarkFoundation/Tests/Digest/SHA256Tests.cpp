#include <VellarkFoundation/Digest/SHA256.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

// Examples of FIPS 180-4; lengths around the block of 64 bytes, where the padding changes its shape.
TEST(SHA256, givesTheDigestsOfTheStandard) {
    const std::pair<std::string, const char*> rows[] = {
        {"", "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"},
        {"abc", "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
        {"abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq",
         "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1"},
        {std::string(55, 'a'), "9f4390f8d30c2dd92ec9f095b65e2b9ae9b0a925a5258e241c9f1e910f734318"},
        {std::string(64, 'a'), "ffe054fe7ae0cb6dc65c3af9b61d5209f439851db43d0ba5997337df154668eb"},
        {std::string(65, 'a'), "635361c48bb9eab14198e76ea8ab7f1a41685d6ad62aa9146d301d4f17eb0ae0"},
        {std::string(1'000'000, 'a'), "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0"},
        {std::string(1, '\0'), "6e340b9cffb37a989ca544e6bb780a2c78901d3fb33738768511a30617afa01d"},
    };
    for (const auto& [bytes, digest] : rows) {
        EXPECT_EQ(SHA256::hexadecimal(bytes), digest) << bytes.size() << " bytes";
    }
}

}  // namespace
}  // namespace vellark
