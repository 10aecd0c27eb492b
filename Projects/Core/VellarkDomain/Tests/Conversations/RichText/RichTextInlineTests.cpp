#include "Support/RandomInput.hpp"
#include <VellarkDomain/Conversations/RichText/ConversationRichText.hpp>

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace vellark {
namespace {

using InlineRun = ConversationRichText::Run;

// "b[bold]" with letters for traits (b i s c p), "(link)" and "<full>" behind; plain text as it stands.
std::string shown(const std::vector<InlineRun>& runs) {
    std::string result;
    for (const InlineRun& run : runs) {
        std::string letters;
        for (std::size_t bit = 0; bit < 5; ++bit) {
            if (run.traits.contains(1U << bit)) letters += "biscp"[bit];
        }
        const bool isPlain = letters.empty() && !run.link && !run.full;
        result += isPlain ? run.text : letters + "[" + run.text + "]";
        if (run.link) result += "(" + *run.link + ")";
        if (run.full) result += "<" + *run.full + ">";
    }
    return result;
}

struct Row {
    const char* name;
    std::string_view text;
    std::string_view expected;
};

constexpr Row rows[] = {
    {"empty", "", ""},
    {"plain", "Nothing here, 1 < 2? no: done", "Nothing here, 1 < 2? no: done"},
    {"emphasis", "a *b* **c** ***d*** ~~e~~", "a i[b] b[c] bi[d] s[e]"},
    {"emphasis beside Hangul", "**굵게**는", "b[굵게]는"},
    {"block marks stay", "# a\n- b\n> c\n1. d\n[x]: http://y", "# a\n- b\n> c\n1. d\n[x]: [http://y](http://y)"},
    {"blanks stay", "  a *b*  \n \t c* \n", "  a i[b]  \n \t c* \n"},
    {"a hard break is a line feed", "a\\\nb **c**  \nd", "a\nb b[c]  \nd"},
    {"code keeps its bytes", "` a ` ``b`c`` `d\n  e` `` ` ``", "c[ a ] c[b`c] c[d\n  e] c[ ` ]"},
    {"an escaped tick opens nothing", "\\`a` b` `c`", "`ac[ b] c[c]"},
    {"escapes and entities", "\\*a\\* &amp; &#x41; `&amp;`", "*a* & A c[&amp;]"},
    {"HTML stays", "<b>x</b> <!-- y -->", "<b>x</b> <!-- y -->"},
    {"links", "[a *b*](https://x.y/z \"t\") [c] [d][e]", "[a ](https://x.y/z)i[b](https://x.y/z) [c] [d][e]"},
    {"bare addresses", "see www.x.org, https://a.b/c. me@x.org",
     "see [www.x.org](http://www.x.org), [https://a.b/c](https://a.b/c). [me@x.org](mailto:me@x.org)"},
    {"other schemes lose the link", "[a](javascript:x) [b](/c) <ftp://d.e/>", "a b ftp://d.e/"},
    {"the scheme keeps its case", "[a](HTTPS://X)", "[a](HTTPS://X)"},
    {"images", "![alt](https://i.j/k.png) ![](https://i.j/k.png) ![l](m.png)", "[alt](https://i.j/k.png)  l"},
    {"addresses are escaped", "[a](<https://x/한 b%2f%zz>)", "[a](https://x/%ED%95%9C%20b%2f%25zz)"},
    {"a single tilde stays", "~/a ~b~ [c](https://x/~d) ~~e~~", "~/a ~b~ [c](https://x/~d) s[e]"},
    {"a private scalar turns the guard off", "\uE000 ~~a~~", "\uE000 s[a]"},
    {"ill-formed bytes", "*a\xFF*", "i[a\uFFFD]"},
    {"unclosed", "**a [b](c `d", "**a [b](c `d"},
};

TEST(RichTextInlineTests, runs) {
    for (const Row& row : rows) {
        EXPECT_EQ(shown(ConversationRichText::inlineRuns(row.text)), row.expected) << row.name;
    }
    EXPECT_EQ(shown(ConversationRichText::inlineRuns(std::string_view("*a\0b*", 5))), "i[a\uFFFDb]");
    const std::string longText = "*" + std::string(ConversationRichText::inlineLimit - 2, 'a') + "*";
    EXPECT_EQ(ConversationRichText::inlineRuns(longText).front().traits.rawValue, InlineRun::Traits::italic);
    EXPECT_EQ(ConversationRichText::inlineRuns(longText + "b").front().traits.rawValue, 0U);
}

// Without marks that cmark takes away, the runs' texts are the source.
TEST(RichTextInlineTests, whiteSpaceAndWordsAreKept) {
    const auto texts = testing::randomTexts(
        67, 20'000, 10, {" ", "  ", "\t", "\n", "\n\n", "a", "한", "~", "\u2009", "\u205F", ":", "<", "e\u0301", "@"});
    for (const std::string& text : texts) {
        std::string joined;
        for (const InlineRun& run : ConversationRichText::inlineRuns(text))
            joined += run.text;
        ASSERT_EQ(joined, text) << ::testing::PrintToString(text);
    }
}

// A text that is given back without asking cmark is what cmark would have made of it.
TEST(RichTextInlineTests, inertTextsAreSeenAsInert) {
    const auto texts =
        testing::randomTexts(77, 30'000, 12, {":", "://", "/", "[",    "]",   "(", ")", "!", "&",  "amp",
                                              ";", "~",   "#", "http", "www", ".", "a", " ", "\n", "한"});
    for (const std::string& text : texts) {
        const auto runs = ConversationRichText::inlineRuns(text);
        const bool mayGrow = text.ends_with("www.") || text.ends_with("/");  // to an address, with what is added
        if (runs.size() != 1 || runs[0].text != text || runs[0].link || mayGrow) continue;
        const auto parsed = ConversationRichText::inlineRuns(text + " *x*");
        ASSERT_EQ(parsed.size(), 2U) << ::testing::PrintToString(text);
        ASSERT_EQ(parsed[0].text, text + " ");
    }
}

TEST(RichTextInlineTests, neighboursDifferAndNoneIsEmpty) {
    const auto texts = testing::randomTexts(
        76, 20'000, 14,
        {"*", "**", "`", "``", "~~", "[", "](", ")", "!", "\\", "a", " ", "\n", "www.a.b", "<", ">", "&lt;"});
    for (const std::string& text : texts) {
        const auto runs = ConversationRichText::inlineRuns(text);
        for (std::size_t index = 0; index < runs.size(); ++index) {
            ASSERT_FALSE(runs[index].text.empty()) << text;
            if (index == 0) continue;
            ASSERT_FALSE(runs[index].traits == runs[index - 1].traits && runs[index].link == runs[index - 1].link);
        }
    }
}

TEST(RichTextPathsTests, longPathsAreShortened) {
    const std::vector<Row> paths = {
        {"40 characters stay", "/aaaaaaaaa/bbbbbbbbb/ccccccccc/d/eeeeeee", "/aaaaaaaaa/bbbbbbbbb/ccccccccc/d/eeeeeee"},
        {"41 are shortened", "at /aaaaaaaaa/bbbbbbbbb/ccccccccc/d/eeeeeeee).",
         "at cp[/aaaaaaaaa/bbbbbbbbb/…/d/eeeeeeee]</aaaaaaaaa/bbbbbbbbb/ccccccccc/d/eeeeeeee>)."},
        {"five pieces stay", "/aaaaaaaaaaaaaaa/bbbbbbbbbbbbbbbbb/ccccccccccccc/d",
         "/aaaaaaaaaaaaaaa/bbbbbbbbbbbbbbbbb/ccccccccccccc/d"},
        {"the home directory", "~/aaaaaaaaaaa/bbbbbbbbbbbbbb/ccccccccccccc/d/e",
         "cp[~/aaaaaaaaaaa/bbbbbbbbbbbbbb/…/d/e]<~/aaaaaaaaaaa/bbbbbbbbbbbbbb/ccccccccccccc/d/e>"},
        {"no path", "a/aaaaaaaaaaa/bbbbbbbbbbbbbb/ccccccccccccc/d/e", "a/aaaaaaaaaaa/bbbbbbbbbbbbbb/ccccccccccccc/d/e"},
    };
    for (const Row& row : paths) {
        const auto runs = ConversationRichText::shorteningPaths(ConversationRichText::inlineRuns(row.text));
        EXPECT_EQ(shown(runs), row.expected) << row.name;
    }
}

}  // namespace
}  // namespace vellark
