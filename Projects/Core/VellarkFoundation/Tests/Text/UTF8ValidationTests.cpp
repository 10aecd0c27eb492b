#include "Support/PythonPeer.hpp"
#include "Support/RandomInput.hpp"
#include <VellarkFoundation/Text/ByteScan.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <gtest/gtest.h>

#include <algorithm>

namespace vellark {
namespace {

bool isValidOneByOne(std::string_view text) {
    std::size_t offset = 0;
    while (offset < text.size()) {
        const UTF8::Decoded decoded = UTF8::decode(text, offset);
        if (!decoded.wellFormed) return false;
        offset += decoded.byteCount;
    }
    return true;
}

std::string repeated(std::string_view piece, std::size_t atLeast) {
    std::string text;
    while (text.size() < atLeast)
        text += piece;
    return text;
}

// Every one of these between every pair of bytes of every filler: whatever the place in a stride of 64 bytes, whatever
// stands around it, at the text's two ends too.
TEST(UTF8Validation, seesDamageAtEveryPlace) {
    const std::vector<std::string> pieces = {
        "",
        "\x80",
        "\xBF",
        "\xC0\x80",
        "\xC1\xBF",
        "\xC2",
        "\xC2\x80",
        "\xE0\x9F\xBF",
        "\xE0\xA0\x80",
        "\xED\x9F\xBF",
        "\xED\xA0\x80",
        "\xED\xBF\xBF",
        "\xEF\xBF",
        "\xEF\xBF\xBF",
        "\xF0\x90\x80",
        "\xF0\x8F\xBF\xBF",
        "\xF0\x90\x80\x80",
        "\xF4\x8F\xBF\xBF",
        "\xFF",
        "\xF4\x90\x80\x80",
        "\xF5\x80\x80\x80",
        "\xF8\x88\x80\x80\x80",
        "\xE1\x80\xE1\x80\x80",
        std::string(1, '\0'),
    };
    for (const char* filler : {"a", "é", "한", "😀", "ab한c😀é"}) {
        const std::string around = repeated(filler, 150);
        for (std::size_t offset = 0; offset <= around.size(); ++offset) {
            for (const std::string& piece : pieces) {
                const std::string text = around.substr(0, offset) + piece + around.substr(offset);
                ASSERT_EQ(UTF8::isValid(text), isValidOneByOne(text)) << testing::PythonPeer::hexadecimal(text);
            }
            const std::string_view cut = std::string_view(around).substr(0, offset);
            ASSERT_EQ(UTF8::isValid(cut), isValidOneByOne(cut)) << testing::PythonPeer::hexadecimal(cut);
        }
    }
}

TEST(UTF8Validation, judgesEveryPairOfBytesInsideAStride) {
    for (const char* lead : {"", "\xE1", "\xF1", "\xF1\x80"}) {
        for (unsigned first = 0; first < 256; ++first) {
            for (unsigned second = 0x70; second < 0xD0; ++second) {
                const std::string pair = {static_cast<char>(first), static_cast<char>(second)};
                const std::string text = std::string(70, 'a') + lead + pair + "\x80" + std::string(70, 'b');
                ASSERT_EQ(UTF8::isValid(text), isValidOneByOne(text)) << testing::PythonPeer::hexadecimal(text);
            }
        }
    }
}

TEST(ByteScan, countsAsThePlainSearch) {
    testing::RandomNumbers random(5);
    for (int round = 0; round < 2'000; ++round) {
        std::string text(random.below(1'500), 'x');
        const std::size_t rarity = 1 + random.below(40);
        for (char& character : text) {
            if (random.below(rarity) == 0) character = '\n';
        }
        const auto found = static_cast<std::size_t>(std::ranges::count(text, '\n'));
        ASSERT_EQ(ByteScan::count(text, '\n'), found);
        ASSERT_EQ(ByteScan::endOfNth(text, '\n', found + 1), std::string_view::npos);
        if (found == 0) continue;
        const std::size_t ordinal = 1 + random.below(found);
        const std::size_t end = ByteScan::endOfNth(text, '\n', ordinal);
        ASSERT_EQ(text[end - 1], '\n');
        ASSERT_EQ(std::ranges::count(text.substr(0, end), '\n'), static_cast<std::ptrdiff_t>(ordinal));
    }
}

}  // namespace
}  // namespace vellark
