#include "Support/RandomInput.hpp"
#include <VellarkDomain/Conversations/Code/CodeHighlighter.hpp>
#include <VellarkDomain/Conversations/Code/CodeKeywords.hpp>
#include <VellarkDomain/Conversations/Code/JSONPrinter.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {
namespace {

// Tokens as "k:func|p: a()", lines parted by "\n"; letters: p k s n c y(key) a r h m.
std::string shown(const CodeBlock& block) {
    constexpr std::string_view letters = "pksncyarhm";
    std::string result;
    for (std::size_t line = 0; line < block.lineEnds.size(); ++line) {
        if (line > 0) result += '\n';
        for (const CodeToken& token : block.line(line)) {
            if (!result.empty() && result.back() != '\n') result += '|';
            result += letters[static_cast<std::size_t>(token.kind)];
            result += ':';
            result += block.textOf(token);
        }
    }
    return result;
}

struct CodeRow {
    const char* name;
    std::string_view language;
    std::string_view text;
    std::string_view expected;
};

constexpr CodeRow codeRows[] = {
    {"no language", "", "let a\n\n1", "p:let a\n\np:1"},
    {"language names are exact", "Swift", "let", "p:let"},
    {"empty text is one empty line", "swift", "", ""},
    {"only line feeds", "swift", "\n\n", "\n"},
    {"keywords", "swift", "let x = self", "k:let|p: x = |k:self"},
    {"attributes", "swift", "@main @ a", "k:@main|p: @ a"},
    {"open string ends at its line", "swift", "\"ab\nlet", "s:\"ab\nk:let"},
    {"escaped line feed keeps the string", "swift", "\"a\\\nb\" c", "s:\"a\\\ns:b\"|p: c"},
    {"triple quotes", "python", "'''a\n\\''' b'''c", "s:'''a\ns:\\''' b'''|p:c"},
    {"block comment over lines", "js", "a/*b\nc*/d", "p:a|c:/*b\nc:c*/|p:d"},
    {"open block comment", "js", "/*/ let", "c:/*/ let"},
    {"line comment", "ts", "a // b\nif", "p:a |c:// b\nk:if"},
    {"template string", "tsx", "`a\n${b}` 'c", "s:`a\ns:${b}`|p: |s:'c"},
    {"shell hash behind a letter", "sh", "a#b #c", "p:a#b |c:#c"},
    {"shell raw quotes", "bash", "echo 'a\\' b", "k:echo|p: |s:'a\\'|p: b"},
    {"numbers", "js", "1.2.3 12abc a1 3. 0x1F 5é", "n:1.2.3|p: |n:12abc|p: a1 |n:3|p:. |n:0x1F|p: |n:5|p:é"},
    {"words hold other scripts", "python", "for한 in", "p:for한 |k:in"},
    {"keys", "json5", "{\"a\" : \"b\", // c\n\"d\"\n:-1.}",
     "p:{|y:\"a\"|p: : |s:\"b\"|p:, |c:// c\ns:\"d\"\np::|n:-1.|p:}"},
    {"JSON by its first character", "", " {\"a\":[]}", "p:{\np:  |y:\"a\"|p:: []\np:}"},
    {"diff by its start", "", "--- a\n+++ b\n@@ -1 +1 @@\n-x\n+y\n z",
     "m:--- a\nm:+++ b\nh:@@ -1 +1 @@\nr:-x\na:+y\np: z"},
    {"diff by name", "diff", "index 1\n\n+", "m:index 1\n\na:+"},
};

TEST(CodeHighlighterTests, tokens) {
    for (const CodeRow& row : codeRows) {
        EXPECT_EQ(shown(CodeHighlighter::code(row.language, row.text)), row.expected) << row.name;
    }
}

TEST(CodeHighlighterTests, keywordListsAreWholeAndSorted) {
    const auto expectList = [](std::span<const std::string_view> list, std::size_t count) {
        EXPECT_EQ(list.size(), count);
        EXPECT_TRUE(std::is_sorted(list.begin(), list.end()));
        for (const std::string_view word : list)
            EXPECT_LT(word.size(), 32U);
    };
    expectList(CodeKeywords::swift, 66);
    expectList(CodeKeywords::python, 36);
    expectList(CodeKeywords::javaScript, 50);
    expectList(CodeKeywords::shell, 24);
}

TEST(CodeHighlighterTests, countsStandForTheWholeText) {
    std::string text = "--- a\n";
    for (int line = 0; line < 900; ++line)
        text += "+x\n-y\n";
    const CodeBlock block = CodeHighlighter::diff(text);
    EXPECT_EQ(block.kind, (std::variant<CodeBlock::Code, CodeBlock::JSON, CodeBlock::Diff>(CodeBlock::Diff{900, 900})));
    EXPECT_EQ(block.lineEnds.size(), 400U);
    EXPECT_EQ(block.lineCount, 1802U);
    EXPECT_EQ(block.tail().size(), text.size() - 6 - 399 * 3);
}

TEST(CodeHighlighterTests, theHeadEndsAtAWholeLineOrScalar) {
    const std::string lines(399, '\n');
    EXPECT_EQ(CodeHighlighter::highlightCut(lines), 399U);
    EXPECT_EQ(CodeHighlighter::highlightCut(lines + "\na"), 400U);
    EXPECT_EQ(CodeHighlighter::highlightCut(std::string(40'000, 'a')), 40'000U);
    EXPECT_EQ(CodeHighlighter::highlightCut("ab\n" + std::string(40'000, 'a')), 3U);
    EXPECT_EQ(CodeHighlighter::highlightCut(std::string(39'999, 'a') + "각"), 39'999U);
    EXPECT_EQ(CodeHighlighter::highlightCut(std::string(39'998, 'a') + "각"), 39'998U);
    EXPECT_EQ(CodeHighlighter::highlightCut(std::string(39'997, 'a') + "각b"), 40'000U);
    const CodeBlock block = CodeHighlighter::code("swift", "/*" + std::string(40'000, 'a') + "*/");
    EXPECT_EQ(block.tokens.size(), 1U);
    EXPECT_EQ(block.tail().size(), 4U);
}

struct JSONRow {
    std::string_view text;
    std::string_view expected;  // empty: refused
    std::size_t count = 0;
};

constexpr JSONRow jsonRows[] = {
    {"{}", "{}", 0},
    {"[ ]", ""},
    {"[1]", ""},
    {"[1,2]", "[\n  1,\n  2\n]", 2},
    {"{\"a\":{\"b\":[]},\"c\":[null,-0.5e+7]}",
     "{\n  \"a\": {\n    \"b\": []\n  },\n  \"c\": [\n    null,\n    -0.5e+7\n  ]\n}", 2},
    {"{\"a\":1,\"a\":\"\\ud800\\\"/\"}", "{\n  \"a\": 1,\n  \"a\": \"\\ud800\\\"/\"\n}", 2},
    {"{\"a\":1}x", ""},
    {"{\"a\":1,}", ""},
    {"{\"a\" 1}", ""},
    {"[01,2]", ""},
    {"[1.,2]", ""},
    {"[\"\n\",2]", ""},
    {"[\"\\x\",2]", ""},
    {"[\"\\u12g4\",2]", ""},
    {"[tru,2]", ""},
    {"{a:1}", ""},
    {"[1}", ""},
    {"\"a\"", ""},
    {"\xEF\xBB\xBF{}", ""},
    {"[\"\xFF\",2]", ""},
    {"{\"a\":", ""},
    {"{\"a\\", ""},
    {"{\"\\u1", ""},
};

TEST(CodeHighlighterTests, jsonIsSetAnewOrRefused) {
    for (const JSONRow& row : jsonRows) {
        const auto block = CodeHighlighter::json(row.text);
        ASSERT_EQ(block.has_value(), !row.expected.empty()) << row.text;
        if (!block) continue;
        EXPECT_EQ(block->text, row.expected);
        EXPECT_EQ(std::get<CodeBlock::JSON>(block->kind).count, row.count) << row.text;
    }
    const auto nested = [](std::size_t depth) {
        return "{\"a\":" + std::string(depth - 1, '[') + std::string(depth - 1, ']') + "}";
    };
    const auto deepest = CodeHighlighter::json(nested(64));
    ASSERT_TRUE(deepest);
    EXPECT_NE(deepest->text.find("\n" + std::string(32, ' ') + "["), std::string::npos);
    EXPECT_EQ(deepest->text.find("\n" + std::string(33, ' ')), std::string::npos);
    EXPECT_FALSE(CodeHighlighter::json(nested(65)));
}

// Every prefix of a text is a text, and so is every text of a few nasty pieces: what is accepted is what a strict
// reader accepts, and printing what was printed changes nothing.
TEST(CodeHighlighterTests, jsonOfAnyPieces) {
    const auto texts = testing::randomTexts(
        68, 30'000, 9,
        {"{", "}", "[", "]", ",", ":", "\"a\"", "1", "-0", "1.5", "true", "null", " ", "\n", "{}", "[]"});
    for (const std::string& text : texts) {
        const auto printed = printJSON(text);
        if (!printed) continue;
        const auto again = printJSON(printed->text);
        ASSERT_TRUE(again) << text;
        ASSERT_EQ(again->text, printed->text);
        ASSERT_EQ(again->count, printed->count);
    }
}

// The tokens of all lines and the line feeds between them are the head.
TEST(CodeHighlighterTests, nothingIsLost) {
    const auto texts =
        testing::randomTexts(86, 6'000, 12, {"\"", "'", "`",   "/*", "*/", "//", "#", "\\", "\n",   " ",
                                             "@",  "a", "let", "1",  ".",  "-",  ":", "한", "\xFF", "$"});
    for (const std::string_view language : {"swift", "python", "ts", "sh", "json", "", "diff"}) {
        for (const std::string& text : texts) {
            const CodeBlock block = CodeHighlighter::code(language, text);
            std::string joined;
            for (std::size_t line = 0; line < block.lineEnds.size(); ++line) {
                if (line > 0) joined += '\n';
                for (const CodeToken& token : block.line(line))
                    joined += block.textOf(token);
            }
            if (block.text.ends_with('\n')) joined += '\n';
            ASSERT_EQ(joined, block.text) << language;
        }
    }
}

}  // namespace
}  // namespace vellark
