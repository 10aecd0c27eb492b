#include <VellarkFoundation/Unicode/Regex.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

TEST(Regex, offsetsAreBytes) {
    const std::string text = "é𝄞가: 12 und 345";
    const RegexText prepared(text);
    RegexMatcher matcher(Regex(R"((\d)(\d+)(x)?)"), prepared);
    ASSERT_EQ(matcher.find(), RegexOutcome::match);
    EXPECT_EQ(matcher.string(), "12");
    EXPECT_EQ(matcher.range(), (ByteRange{11, 13}));
    EXPECT_EQ(matcher.groupString(2), "2");
    EXPECT_EQ(matcher.group(3), std::nullopt);
    EXPECT_EQ(matcher.group(4), std::nullopt);
    ASSERT_EQ(matcher.find(), RegexOutcome::match);
    EXPECT_EQ(matcher.string(), "345");
    EXPECT_EQ(matcher.find(), RegexOutcome::noMatch);
    ASSERT_EQ(matcher.find(12), RegexOutcome::match);
    EXPECT_EQ(matcher.string(), "345");  // one digit is left of the first number
}

TEST(Regex, offsetsSurviveIllFormedText) {
    const std::string text = "\xff\xe3\x81 a\xf0\x9f b";
    const RegexText prepared(text);
    RegexMatcher matcher(Regex("b"), prepared);
    ASSERT_EQ(matcher.find(), RegexOutcome::match);
    EXPECT_EQ(matcher.range(), (ByteRange{8, 9}));
}

TEST(Regex, unitOffsetsAreThoseOfScalarStarts) {
    const RegexText prepared("a𝄞b");
    const std::size_t expected[] = {0, 1, 1, 1, 1, 3, 4};
    for (std::size_t byte = 0; byte < 7; ++byte) {
        EXPECT_EQ(prepared.unitOffset(byte), expected[byte]) << byte;
    }
}

TEST(Regex, anchoredTriesStartTheText) {
    const RegexText prepared("xab");
    RegexMatcher matcher(Regex(R"(^b|\ba)"), prepared);
    EXPECT_EQ(matcher.lookingAt(0), RegexOutcome::noMatch);
    EXPECT_EQ(matcher.lookingAt(1), RegexOutcome::match);
    EXPECT_EQ(matcher.lookingAt(2), RegexOutcome::match);
    EXPECT_EQ(matcher.find(0), RegexOutcome::noMatch);
}

TEST(Regex, wholeMatchesAndLimits) {
    EXPECT_TRUE(matchesWhole(Regex("a+"), "aaa"));
    EXPECT_FALSE(matchesWhole(Regex("a+"), "aaa\n"));
    EXPECT_FALSE(Regex::compile("(").has_value());
    const std::string letters(1'000'000, 'a');
    const RegexText prepared(letters);
    EXPECT_EQ(RegexMatcher(Regex("(?:a|b)*c", {.stackLimitBytes = 10'000}), prepared).lookingAt(0),
              RegexOutcome::failed);
    EXPECT_EQ(RegexMatcher(Regex("(?:a|b){16,}"), prepared).find(), RegexOutcome::match);
}

TEST(UnicodeCase, mapsScalarByScalar) {
    EXPECT_EQ(UnicodeCase::lower("ΟΔΟΣ ẞ \u212A \u0130 ſ ABZ[\xff"), "οδοσ ß k i\u0307 ſ abz[\uFFFD");
    EXPECT_EQ(UnicodeCase::upper("straße ﬁ az{"), "STRASSE FI AZ{");
}

}  // namespace
}  // namespace vellark
