#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/LatinASCII.hpp>
#include <VellarkFoundation/Unicode/Normalization.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

TEST(LatinASCII, writesWordsInPlainLetters) {
    EXPECT_EQ(LatinASCII::transform("bản đặc tả"), "ban dac ta");
    EXPECT_EQ(LatinASCII::transform("œuvre, Straße, año"), "oeuvre, Strasse, ano");
    EXPECT_EQ(LatinASCII::transform("plan d’accès"), "plan d'acces");
    EXPECT_EQ(LatinASCII::transform("план"), "план");
}

// A dash is no letter, so that a text with one takes the way through ICU: both ways must agree on every letter.
TEST(LatinASCII, agreesWithTheTransform) {
    const auto check = [](char32_t first, char32_t last) {
        std::string text;
        for (char32_t scalar = first; scalar <= last; ++scalar) {
            UTF8::append(text, scalar);
            text += ' ';
        }
        text = Normalization::nfc(text);
        const std::string expected = LatinASCII::transform(text + "—").value();
        std::string result;
        for (const char32_t scalar : Scalars(text)) {
            std::string one;
            UTF8::append(one, scalar);
            result += LatinASCII::transform(one).value();
        }
        EXPECT_EQ(result + "-", expected);
    };
    check(0xA0, 0x24F);
    check(0x1EA0, 0x1EFF);
}

TEST(Normalization, composes) {
    EXPECT_EQ(Normalization::nfc("e\u0301"), "é");
    EXPECT_EQ(Normalization::nfc("\u1112\u116C\u110B\u1174"), "회의");
    EXPECT_EQ(Normalization::nfc("plain"), "plain");
    EXPECT_EQ(Normalization::nfc("é\xFF"), "é\uFFFD");
}

}  // namespace
}  // namespace vellark
