#include "Documents/Kinds/PlainKindMatcher.hpp"
#include "Support/RandomInput.hpp"
#include <VellarkDomain/Documents/Kinds/Matcher/DocumentKindMatcher.hpp>
#include <VellarkDomain/Documents/Kinds/Matcher/KoreanParticles.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <gtest/gtest.h>

#include <numeric>

namespace vellark {
namespace {

using Hit = DocumentKindMatcher::Hit;

std::string normalized(std::string_view text) {
    return DocumentKindMatcher::normalizedText(DocumentKindMatcher::normalize(text));
}

TEST(DocumentKindMatcher, normalizes) {
    struct Row {
        const char* name;
        std::string_view text;
        std::string_view expected;
    };
    const Row rows[] = {
        {"nothing", "", ""},
        {"nothing left", " -12.5% ", ""},
        {"full width", "２０２４　Ｒｅｐｏｒｔ", "report"},
        {"digits vanish", "Roadmap_v2.1", "roadmap v"},
        {"digits do not part words", "a1b ١٢c", "ab c"},
        {"apostrophes vanish", "The user's, the users’ plan", "the users the users plan"},
        {"a superscript parts words", "a²b①c", "a b c"},
        {"alphabetic symbols stay", "ⅣⒶ", "ⅳⓐ"},
        {"middle dot parts katakana", "テスト・プラン", "テスト プラン"},
        {"other katakana signs stay", "゠ー々〆", "゠ー々〆"},
        {"ideographic zero is a letter", "〇", "〇"},
        {"decomposed Korean", "\u1112\u116C\u110B\u1174\u1105\u1169\u11A8", "회의록"},
        {"decomposed Latin", "Re\u0301sume\u0301", "résumé"},
        {"compatibility ideographs stay without a mark", "\uF900", "\uF900"},
        {"a mark composes the whole text", "\uF900e\u0301", "\u8C48é"},
        {"half-width katakana is not joined", "ﾃﾞ", "ﾃﾞ"},
        {"marks alone stay", "a \uFE0F ก\u0E49", "a \uFE0F ก\u0E49"},
        {"enclosing marks and format characters part", "a\u20DDb\u200Bc\u200Dd\u00ADe", "a b c d e"},
        {"sigma has one form", "ΟΔΟΣ", "οδοσ"},
        {"dotted capital I", "İ", "i\u0307"},
        {"sharp s", "GROẞ", "groß"},
        {"beyond the first plane", "𐐀 😀 𠀀", "𐐨 𠀀"},
        {"ill-formed bytes part words", "plan\xFF\xC0report\xE1\x80", "plan report"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(normalized(row.text), row.expected) << row.name;
    }
    EXPECT_EQ(DocumentKindMatcher::normalizedText(std::u32string{U'a', 0xD800, 0x11'0000, U'b'}), "ab");
}

// Normalised text has single blanks, and only between words. (It is no fixed point: what is left of a mark may
// compose.)
TEST(DocumentKindMatcher, leavesSingleBlanks) {
    const std::vector<std::string> pieces = {"a",  "Z",  " ", "-", "'", "7",    "가",
                                             "ー", "・", "ก", "İ", "é", "\xFF", "😀"};
    for (const std::string& text : testing::randomTexts(1, 20'000, 8, pieces)) {
        const std::string result = normalized(text);
        EXPECT_EQ(result.find("  "), std::string::npos) << text;
        EXPECT_FALSE(result.starts_with(' ') || result.ends_with(' ')) << text;
    }
}

TEST(DocumentKindMatcher, knowsParticles) {
    EXPECT_EQ(KoreanParticles::words().size(), 46U);
    EXPECT_TRUE(DocumentKindMatcher::isParticle(U"회의록은", 3));
    EXPECT_TRUE(DocumentKindMatcher::isParticle(U"회의록은 나", 3));
    EXPECT_FALSE(DocumentKindMatcher::isParticle(U"회의록은요", 3));
    EXPECT_FALSE(DocumentKindMatcher::isParticle(U"회의록", 3));
    for (const std::u32string_view word : KoreanParticles::words()) {
        EXPECT_TRUE(DocumentKindMatcher::isParticle(word, 0));
    }
}

// One pattern and one text, with the flags that the pattern has: p plural, c compound, s suffix head.
struct Match {
    const char* name;
    const char32_t* pattern;
    const char* flags;
    const char32_t* text;
    std::vector<std::uint32_t> starts;
};

TEST(DocumentKindMatcher, keepsBoundaries) {
    const Match rows[] = {
        {"whole word", U"plan", "", U"plan b plan", {0, 7}},
        {"not inside a word", U"plan", "c", U"planet planning", {}},
        {"not at the end of a word", U"plan", "p", U"projektplan", {}},
        {"plural s and es", U"plan", "p", U"plans planes plan", {0, 6, 13}},
        {"no plural without the flag", U"plan", "", U"plans planes", {}},
        {"a plural is a whole word", U"plan", "p", U"planss planesx planest planse", {}},
        {"compound", U"plan", "c", U"projektplan plan", {7, 12}},
        {"a compound takes no ending", U"plan", "pc", U"projektplans plans", {13}},
        {"Korean and kana are boundaries", U"plan", "", U"새plan표 planノート", {1, 7}},
        {"Thai is a boundary", U"plan", "", U"แผนplanงาน", {3}},
        {"Cyrillic is not", U"plan", "", U"яplan", {}},
        {"Korean at the start of its run", U"회의", "", U"주간회의 회의", {5}},
        {"Korean behind Latin", U"회의", "", U"q회의 팀-회의", {1, 6}},
        {"suffix head inside a run", U"회의록", "s", U"주간회의록", {2}},
        {"particle", U"회의록", "", U"회의록입니다", {0}},
        {"no other syllable", U"회의록", "", U"회의록작성 회의록은요", {}},
        {"kana and ideographs anywhere", U"議事録", "", U"第三回議事録案", {3}},
        {"Thai anywhere", U"แผน", "", U"ทำแผนงาน", {2}},
        {"mixed scripts start anywhere", U"api 문서", "", U"xapi 문서는", {1}},
        {"overlapping", U"ああ", "", U"あああ", {0, 1}},
        {"one scalar", U"案", "", U"案案", {0, 1}},
    };
    for (const Match& row : rows) {
        const std::vector<std::u32string> patterns = {U"", row.pattern};
        const std::string_view flags(row.flags);
        const auto flagged = [&](char flag) { return std::vector<bool>{false, flags.find(flag) != flags.npos}; };
        const DocumentKindMatcher matcher(
            {.patterns = patterns, .suffixHead = flagged('s'), .plural = flagged('p'), .compound = flagged('c')});
        std::vector<std::uint32_t> starts;
        for (const Hit& hit : matcher.hits(row.text)) {
            EXPECT_EQ(hit.pattern, 1U) << row.name;
            starts.push_back(hit.start);
        }
        EXPECT_EQ(starts, row.starts) << row.name;
    }
}

TEST(DocumentKindMatcher, keepsEqualPatternsApart) {
    const std::vector<std::u32string> patterns(4, U"plan");
    const DocumentKindMatcher matcher({.patterns = patterns, .compound = {false, true, false, true}});
    const std::vector<Hit> expected = {{1, 1, 5}, {3, 1, 5}, {0, 6, 10}, {1, 6, 10}, {2, 6, 10}, {3, 6, 10}};
    EXPECT_EQ(matcher.hits(U"xplan plan"), expected);
}

TEST(DocumentKindMatcher, ordersHits) {
    const std::vector<std::u32string> patterns = {U"の", U"", U"本の", U"日本の", U"の", U"日本"};
    const DocumentKindMatcher matcher({.patterns = patterns});
    const std::vector<Hit> expected = {{5, 0, 2}, {3, 0, 3}, {2, 1, 3}, {0, 2, 3}, {4, 2, 3}};
    EXPECT_EQ(matcher.hits(U"日本の"), expected);
    EXPECT_TRUE(matcher.hits(U"").empty());
    EXPECT_TRUE(DocumentKindMatcher({.patterns = {}}).hits(U"plan").empty());
}

// Words of few scalars, one of each class that a rule tells apart.
std::u32string randomWord(testing::RandomNumbers& random, std::size_t longest) {
    static constexpr std::u32string_view scalars = U"aes  n가은록のー案กи\U0001F600";
    std::u32string word;
    for (std::size_t length = random.below(longest + 1); length > 0; --length) {
        word += scalars[random.below(scalars.size())];
    }
    return word;
}

std::vector<bool> randomFlags(testing::RandomNumbers& random, std::size_t count) {
    std::vector<bool> flags(random.below(count + 1));
    for (std::size_t index = 0; index < flags.size(); ++index) {
        flags[index] = random.below(2) == 0;
    }
    return flags;
}

TEST(DocumentKindMatcher, agreesWithThePlainAutomaton) {
    testing::RandomNumbers random(7);
    for (int round = 0; round < 400; ++round) {
        std::vector<std::u32string> patterns(1 + random.below(60));
        for (std::u32string& pattern : patterns) {
            pattern = randomWord(random, 5);
        }
        if (round % 50 == 0) patterns.push_back(std::u32string{0x11'0000});
        const DocumentKindMatcher::Patterns made = {.patterns = patterns,
                                                    .suffixHead = randomFlags(random, patterns.size()),
                                                    .plural = randomFlags(random, patterns.size()),
                                                    .compound = randomFlags(random, patterns.size())};
        const DocumentKindMatcher matcher(made);
        const testing::PlainKindMatcher plain(made);
        for (int count = 0; count < 40; ++count) {
            const std::u32string text = randomWord(random, count == 0 ? 2'000 : 40);
            ASSERT_EQ(matcher.hits(text), plain.hits(text)) << DocumentKindMatcher::normalizedText(text);
        }
    }
}

}  // namespace
}  // namespace vellark
