#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <gtest/gtest.h>
#include <unicode/brkiter.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <memory>
#include <random>
#include <string>
#include <vector>

namespace vellark {
namespace {

// Ends of the characters in bytes, as ICU's own iterator finds them.
std::vector<std::size_t> endsByICU(std::string_view text) {
    UErrorCode status = U_ZERO_ERROR;
    static const std::unique_ptr<icu::BreakIterator> iterator(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    icu::UnicodeString units;
    std::vector<std::size_t> byteEnds(1, 0);
    std::size_t bytes = 0;
    for (auto scalar = Scalars(text).begin(); scalar != Scalars(text).end(); ++scalar) {
        units.append(static_cast<UChar32>(*scalar));
        bytes += scalar.byteCount();
        byteEnds.resize(static_cast<std::size_t>(units.length()) + 1, bytes);
    }
    iterator->setText(units);
    std::vector<std::size_t> ends;
    for (auto end = iterator->next(); end != icu::BreakIterator::DONE; end = iterator->next()) {
        ends.push_back(byteEnds[static_cast<std::size_t>(end)]);
    }
    return ends;
}

std::vector<std::size_t> ends(std::string_view text) {
    std::vector<std::size_t> result;
    for (std::size_t start = 0; start < text.size();)
        result.push_back(start = GraphemeBreak::next(text, start));
    return result;
}

void expectAgreement(const std::string& text) {
    const auto expected = endsByICU(text);
    ASSERT_EQ(ends(text), expected) << testing::PrintToString(text);
    ASSERT_EQ(GraphemeBreak::count(text), expected.size());
    const Graphemes graphemes(text);
    ASSERT_EQ(graphemes.count(), expected.size());
    for (std::size_t limit = 0; limit <= expected.size() && limit < 6; ++limit) {
        const std::size_t end = limit == 0 ? 0 : expected[limit - 1];
        ASSERT_EQ(GraphemeBreak::prefix(text, limit).size(), end);
        ASSERT_EQ(Graphemes(text).byteOffset(limit), end);
        ASSERT_EQ(GraphemeBreak::exceeds(text, limit), limit < expected.size());
        ASSERT_EQ(Graphemes(text).exceeds(limit), limit < expected.size());
    }
}

// One scalar or more of every class that the rules tell apart, and scalars at the classes' borders.
constexpr char32_t nastyScalars[] = {
    'a',     ' ',     '\r',    '\n',    '\t',    0,       0x7F,    0x85,    0xA9,    0xAD,    0x300,  0x301,
    0x34F,   0x600,   0x6DD,   0x903,   0x915,   0x937,   0x93C,   0x94D,   0x995,   0x9CD,   0xA95,  0xACD,
    0xB15,   0xB4D,   0xB95,   0xBCD,   0xC15,   0xC4D,   0xC95,   0xCCD,   0xD15,   0xD4D,   0xD4E,  0xE31,
    0xE33,   0x1100,  0x1161,  0x11A8,  0x1160,  0x115F,  0xA960,  0xD7B0,  0xD7CB,  0xAC00,  0xAC01, 0xD7A3,
    0x200C,  0x200D,  0x200B,  0x2028,  0x20E3,  0x2764,  0xFE0F,  0x3042,  0x3099,  0x4E00,  0xFF9E, 0xFFFD,
    0x110BD, 0x1F1E6, 0x1F1FF, 0x1F3FB, 0x1F468, 0x1F469, 0x1F600, 0xE0020, 0xE0001, 0x10FFFF};

TEST(GraphemesTests, cutLikeICUOverMixedScalars) {
    std::mt19937 random(72);
    std::uniform_int_distribution<std::size_t> pick(0, std::size(nastyScalars) - 1);
    std::uniform_int_distribution<std::size_t> length(1, 14);
    for (int round = 0; round < 60'000; ++round) {
        std::string text;
        for (std::size_t left = length(random); left > 0; --left)
            UTF8::append(text, nastyScalars[pick(random)]);
        ASSERT_NO_FATAL_FAILURE(expectAgreement(text));
    }
}

TEST(GraphemesTests, cutLikeICUOverAllPairsOfClassesAndAnyBytes) {
    for (const char32_t first : nastyScalars) {
        for (const char32_t second : nastyScalars) {
            std::string text;
            UTF8::append(text, first);
            UTF8::append(text, second);
            ASSERT_NO_FATAL_FAILURE(expectAgreement(text));
        }
    }
    std::mt19937 random(15);
    std::uniform_int_distribution<int> byte(0, 255);
    for (int round = 0; round < 5'000; ++round) {
        std::string text(12, '\0');
        for (char& character : text)
            character = static_cast<char>(byte(random));
        ASSERT_NO_FATAL_FAILURE(expectAgreement(text));
    }
}

TEST(GraphemesTests, everyScalarBehindALetterAndBeforeOne) {
    for (char32_t scalar = 0; scalar <= 0x10FFFF; scalar += scalar < 0x20000 ? 1 : 61) {
        if (scalar >= 0xD800 && scalar <= 0xDFFF) continue;
        std::string text = "a";
        UTF8::append(text, scalar);
        text += "b";
        ASSERT_EQ(ends(text), endsByICU(text)) << std::hex << static_cast<std::uint32_t>(scalar);
    }
}

TEST(GraphemesTests, positionsAreAskedInAnyOrder) {
    const std::string text = "a\r\n각👨‍👩‍👧é🇰🇷";
    const Graphemes graphemes(text);
    EXPECT_EQ(graphemes[2], "각");
    EXPECT_EQ(graphemes[1], "\r\n");
    EXPECT_EQ(graphemes.characterAt(2), 1U);
    EXPECT_EQ(graphemes.roundedUp(2), 2U);
    EXPECT_EQ(graphemes.roundedUp(3), 2U);
    EXPECT_EQ(graphemes.roundedUp(0), 0U);
    EXPECT_EQ(graphemes.count(), 6U);
    EXPECT_EQ(graphemes.characterAt(text.size()), 6U);
    EXPECT_EQ(graphemes.roundedUp(text.size()), 6U);
    EXPECT_EQ(graphemes.slice(4, 99), "é🇰🇷");
    EXPECT_EQ(graphemes.slice(5, 2), "");
    EXPECT_EQ(graphemes[6], "");
    EXPECT_EQ(Graphemes("").count(), 0U);
    EXPECT_EQ(Graphemes("plain").roundedUp(5), 5U);
}

TEST(CharacterClassTests, classesOfTellingCharacters) {
    EXPECT_TRUE(CharacterClass::isWhitespace(U'\u3000'));
    EXPECT_FALSE(CharacterClass::isWhitespace(U'\u200B'));
    EXPECT_TRUE(CharacterClass::isNumber("½") && CharacterClass::isNumber("一") && CharacterClass::isNumber("①"));
    EXPECT_TRUE(CharacterClass::isLetter("각") && !CharacterClass::isLetter("5"));
    EXPECT_TRUE(CharacterClass::isNewline("\r\n"));
    EXPECT_TRUE(CharacterClass::isUppercase("Ⅷ") && CharacterClass::isUppercase("E\u0301"));
    EXPECT_FALSE(CharacterClass::isUppercase("1\u0301"));
    EXPECT_TRUE(CharacterClass::isLowercase("e\u0301") && CharacterClass::isLowercase("ß"));
    EXPECT_TRUE(CharacterClass::isPunctuation(U'、') && !CharacterClass::isPunctuation(U'$'));
    EXPECT_EQ(CharacterClass::trimmed("\u3000 a b\u00A0\n"), "a b");
    EXPECT_TRUE(CharacterClass::isBlank(" \u2028") && !CharacterClass::isBlank("\u200B"));
}

}  // namespace
}  // namespace vellark
