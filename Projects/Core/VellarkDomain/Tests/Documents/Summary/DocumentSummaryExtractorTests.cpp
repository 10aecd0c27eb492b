#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkDomain/Documents/Summary/SummaryText.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

namespace Extractor = DocumentSummaryExtractor;
using Texts = std::vector<std::string>;

DocumentSummaryExtract digest(std::string_view text, bool isComplete = true) {
    return Extractor::extract(text, DocumentContentFormat::markdown(), isComplete);
}

DocumentSummaryExtract page(std::string_view text) {
    return Extractor::extract(text, DocumentContentFormat::html());
}

std::string repeated(std::string_view piece, std::size_t count) {
    std::string result;
    for (; count > 0; --count)
        result += piece;
    return result;
}

TEST(DocumentSummaryExtractor, readsFrontMatter) {
    struct Row {
        const char* name;
        const char* text;
        const char* summary;
        const char* body;
    };
    const Row rows[] = {
        {"quoted value", "---\nsummary: \"It's so\"\n---\nBody", "It's so", "Body"},
        {"order of the keys", "---\ndescription: b\nsummary: a\n---\nBody", "a", "Body"},
        {"empty key goes on to the next", "---\nsummary:\n설명: 나\n---\nBody", "나", "Body"},
        {"decomposed key", "---\n\u1109\u1165\u11AF\u1106\u1167\u11BC: 나\n---\nBody", "나", "Body"},
        {"flow list", "---\nsummary: [a, \"b\", 'c', ]\n---\nBody", "a · b · c", "Body"},
        {"list", "---\nsummary:\n- \"a\"\n  - b\n\n---\nBody", "a · b", "Body"},
        {"block text", "---\nsummary: |\n  one\n\n  two\nx: y\n...\nBody", "one two", "Body"},
        {"first occurrence wins", "---\nsummary: a\nSummary: b\n---\nBody", "a", "Body"},
        {"comments and blank lines", "---\n# c\n\nsummary: a\n---\nBody", "a", "Body"},
        {"line without a colon", "---\nsummary: a\nno colon here\n---\nBody", "summary: a no colon here",
         "---\nsummary: a\nno colon here\n---\nBody"},
        {"bad key", "---\na b: c\n---\n\nBody", "a b: c", "---\na b: c\n---\n\nBody"},
        {"indented first", "---\n  a: b\n---\nBody", "a: b", "---\n  a: b\n---\nBody"},
        {"never closed", "---\nsummary: a", "summary: a", "---\nsummary: a"},
        {"no key", "---\n\n---\nBody", "Body", "---\n\n---\nBody"},
        {"last line ends in a carriage return", "---\nsummary: a\n---\nBody\r", "a", "Body"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(digest(row.text).summary, row.summary) << row.name;
        EXPECT_EQ(digest(row.text).body, row.body) << row.name;
    }
}

TEST(DocumentSummaryExtractor, seesOneLineInADocumentOfCRLF) {
    const auto read = digest("---\r\nsummary: a\r\n---\r\n# Title\r\n\r\n## 결론\r\n\r\n간다.\r\n");
    EXPECT_EQ(read.summary, "");  // the only line begins with "---"
    EXPECT_EQ(read.headings, Texts{});
    EXPECT_EQ(read.body, "---\r\nsummary: a\r\n---\r\n# Title\r\n\r\n## 결론\r\n\r\n간다.\r\n");
    EXPECT_EQ(read.conclusion, "결론: 간다.");
}

TEST(DocumentSummaryExtractor, takesTheFirstParagraphOrList) {
    struct Row {
        const char* text;
        const char* summary;
        Texts items;
    };
    const Row rows[] = {
        {"# T\n\n[a](b) | [c](d)\n\n> q\n\nOne **two**\nthree\n\nfour", "One two three", {}},
        {"- a\n\n## H\n\n1. [x] b\n* ``\n+ c\n- d\n\nparagraph", "a · b · c", {"a", "b", "c"}},
        {"para\n- a", "para", {}},
        {"```\ncode\n```\ntext\n~~~\nmore\n~~~\nend", "text", {}},
        {"![badge](x)![badge](y)\ntext", "text", {}},
        {"<b>x</b>\n%% note\n***\n| a |\ntext", "text", {}},
        {"`![i](u)`\n\nNext", "", {}},  // a line that cleans to nothing is a paragraph all the same
        {"#️⃣ keycap", "#️⃣ keycap", {}},
        {"", "", {}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(digest(row.text).summary, row.summary) << row.text;
        EXPECT_EQ(digest(row.text).items, row.items) << row.text;
    }
}

TEST(DocumentSummaryExtractor, takesKeyHeadings) {
    EXPECT_EQ(digest("# T\n## a #\n### x\n## **b**\n## c\n## d").headings, (Texts{"a", "b", "c"}));
    EXPECT_EQ(digest("# T\n### [x](y)\n#### z\n#nospace\n #indented\n# u\n# v").headings, (Texts{"T", "x", "u"}));
    EXPECT_EQ(digest("```\n## code\n~~~\n## real").headings, Texts{"real"});
    EXPECT_EQ(Extractor::headingLevel("###### a"), 6);
    for (const char* line : {"####### a", "###", " # a", "#a", "#\u3000a", ""})
        EXPECT_EQ(Extractor::headingLevel(line), std::nullopt) << line;
    const auto lines = SummaryText::lines("# a\ntext\n##\n## _b_\nmore");
    EXPECT_EQ(Extractor::nearestHeading(lines, 99), "b");
    EXPECT_EQ(Extractor::nearestHeading(lines, 2), "a");
    EXPECT_EQ(Extractor::nearestHeading(lines, -1), std::nullopt);
    EXPECT_EQ(Extractor::nearestHeading({}, 0), std::nullopt);
}

TEST(DocumentSummaryExtractor, tellsMenus) {
    for (const char* line : {"[a](b) | [c](d)", "![x](y)", "[[a]] → [[b]]", "[a](b) [c](d) [e](f) and so on",
                             "[a](1)[b](2)[c](3)12345678901234567890"})
        EXPECT_TRUE(Extractor::isNavigation(line)) << line;
    for (const char* line : {"text", "[a]", "[a](b) and [c](d) text", "[a](1)[b](2)[c](3)123456789012345678901"})
        EXPECT_FALSE(Extractor::isNavigation(line)) << line;
}

TEST(DocumentSummaryExtractor, cutsAtSentencesAndKeepsNumbers) {
    const std::string filler = repeated("x", 60);
    struct Row {
        const char* name;
        std::string text;
        std::size_t limit;
        std::string expected;
    };
    const Row rows[] = {
        {"short", "abc", 3, "abc"},
        {"hard", "abcdef", 3, "abc…"},
        {"mark at 60 is too early", filler + ". " + filler, 80, (filler + ". " + filler).substr(0, 80) + "…"},
        {"mark at 61", filler + "x. " + filler, 80, filler + "x."},
        {"ideographic stop", filler + "나。" + filler, 80, filler + "나。"},
        {"the last of all marks", filler + "a? b. c! d" + filler, 80, filler + "a? b. c!"},
        {"an amount is kept", "It is $1,234,567 now", 9, "It is $1,234,567…"},
        {"an amount at the end", "It is $1,234,567", 9, "It is $1,234,567"},
        {"families count as one", repeated("👩‍👩‍👧", 5), 3, repeated("👩‍👩‍👧", 3) + "…"},
        {"blanks before the ellipsis go", "ab   cd", 4, "ab…"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Extractor::cut(row.text, row.limit), row.expected) << row.name;
    EXPECT_EQ(Extractor::valueEnd(9, "It is $1,234,567 now"), 16U);
    EXPECT_EQ(Extractor::valueEnd(6, "It is $1,234,567 now"), std::nullopt);
}

TEST(DocumentSummaryExtractor, readsNoFurtherThanItsLimit) {
    const std::string tail = "\nTotal: $1,200";
    const std::string whole = repeated("각", Extractor::readingLimit - tail.size()) + tail;
    EXPECT_EQ(digest(whole).facts, Texts{"Total: $1,200"});
    EXPECT_EQ(digest(whole, false).facts, Texts{});
    EXPECT_EQ(digest(whole + "0").facts, Texts{});
    EXPECT_EQ(digest(whole + "0").body, whole);
}

TEST(DocumentSummaryExtractor, readsPages) {
    const auto read = page(
        "<head><title>T</title><meta name=Description content=' &lt;b&gt;D '></head><h2>One</h2><p>First<br>p</p>"
        "<table><tr><th>Total<td>1,200<tr><td>due</td><td>May 3</td></table>1<2<h2>Fazit</h2>Ja.<p>Nein.");
    EXPECT_EQ(read.summary, "D");
    EXPECT_EQ(read.headings, (Texts{"One", "Fazit"}));
    EXPECT_EQ(read.body, "One First p Total 1,200 due May 3 1 < 2 Fazit Ja. Nein.");
    EXPECT_EQ(read.facts, (Texts{"Total: 1,200", "due · May 3"}));
    EXPECT_EQ(read.conclusion, "Fazit: Ja.");
    EXPECT_EQ(page("<meta name=description><meta name=description content=B><p> <p>a</p>").summary, "B");
    EXPECT_EQ(page("<p><b></b></p><p>&lt;i&gt;x</p>").summary, "x");
    EXPECT_EQ(page("<script>$5,000</script><code>$6,000</code> <p>a $7,000").facts, Texts{"a $7,000"});
}

TEST(DocumentSummaryExtractor, readsCodeOnlyWhenItIsText) {
    const std::string text = "one\r\ntwo\n\nthree";
    for (const char* language : {"plaintext", "rst", "adoc"})
        EXPECT_EQ(Extractor::extract(text, DocumentContentFormat::code(language)).summary, "one\r\ntwo") << language;
    const DocumentContentFormat others[] = {DocumentContentFormat::code("json"),
                                            DocumentContentFormat::code(std::nullopt)};
    for (const auto& format : others)
        EXPECT_EQ(Extractor::extract(text, format), (DocumentSummaryExtract{.body = text}));
    EXPECT_EQ(digest("a\xFF").summary, "a\uFFFD");
}

}  // namespace
}  // namespace vellark
