#include "Support/RandomInput.hpp"
#include <VellarkDomain/Conversations/RichText/ConversationRichText.hpp>
#include <VellarkDomain/Conversations/RichText/RichTextLine.hpp>
#include <VellarkFoundation/Unicode/Regex.hpp>

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace vellark {
namespace {

using Rich = ConversationRichText;

std::string text(const std::vector<Rich::Run>& runs) {
    std::string result;
    for (const Rich::Run& run : runs)
        result += run.text;
    return result;
}

std::string shown(const std::vector<Rich::Block>& blocks);

struct Shown {
    std::string operator()(const Rich::Paragraph& paragraph) const { return "p(" + text(paragraph.runs) + ")"; }
    std::string operator()(const Rich::Heading& heading) const {
        return "h" + std::to_string(heading.level) + "(" + text(heading.runs) + ")";
    }
    std::string operator()(const Rich::List& list) const {
        std::string result = "l(";
        for (const Rich::ListItem& item : list.items) {
            if (result.size() > 2) result += "|";
            result += std::to_string(item.depth) + (item.number ? "#" + std::to_string(*item.number) : "") + ":";
            result += text(item.content);
        }
        return result + ")";
    }
    std::string operator()(const Rich::Quote& quote) const { return "q(" + shown(quote.blocks) + ")"; }
    std::string operator()(const Rich::Code& code) const {
        constexpr const char* kinds[] = {"c", "j", "d"};
        const auto* named = std::get_if<CodeBlock::Code>(&code.kind);
        return kinds[code.kind.index()] + (named != nullptr ? named->language : "") + "(" + code.text + ")";
    }
    std::string operator()(const Rich::Table& table) const {
        std::string result = "t";
        for (const auto alignment : table.alignments)
            result += "lcr"[static_cast<std::size_t>(alignment)];
        const auto add = [&result](const std::vector<Rich::Table::Cell>& row) {
            result += "(";
            for (std::size_t index = 0; index < row.size(); ++index)
                result += (index > 0 ? "|" : "") + text(row[index]);
            result += ")";
        };
        add(table.header);
        for (const auto& row : table.rows)
            add(row);
        return result;
    }
    std::string operator()(const Rich::Rule&) const { return "r"; }
};

std::string shown(const std::vector<Rich::Block>& blocks) {
    std::string result;
    for (const Rich::Block& block : blocks)
        result += (result.empty() ? "" : " ") + std::visit(Shown(), block.content);
    return result;
}

struct Row {
    const char* name;
    std::string_view source;
    std::string_view expected;
};

constexpr Row rows[] = {
    {"empty", "", ""},
    {"blank", " \n\t\r\n", ""},
    {"headings", "# a #\n## b#\n###\n####### c\n#d", "h1(a) h2(b#) h3() p(####### c\n#d)"},
    {"a keycap is no number sign", "#\uFE0F\u20E3 a", "p(#\uFE0F\u20E3 a)"},
    {"underlined headings", "a\nb\n===\nc\n--", "h1(a\nb) h2(c)"},
    {"one dash underlines nothing", "a\n-", "p(a\n-)"},
    {"rules", "---\n* * *\n_ _", "r r p(_ _)"},
    {"an indent makes no code", "    a\n     # b", "p(    a\n     # b)"},
    {"line ends of all kinds", "a\r\nb\u2028# c\rd", "p(a\nb) h1(c) p(d)"},
    {"fences", "```Py {x}\na\n ```\n~~~\nb", "cpy(a) c(b)"},
    {"an indented fence takes its indent away", "  ```\n   a\n b\n  ```", "c( a\nb)"},
    {"a tick in the info opens nothing", "``` a`\nb", "p(``` a`\nb)"},
    {"a longer close closes", "```\n``\n`````\nc", "c(``) p(c)"},
    {"a whole message of JSON", " {\"a\":[1]}\n", "j({\n  \"a\": [\n    1\n  ]\n})"},
    {"a message that only begins so", "[1] see {x}", "p([1] see {x})"},
    {"a paragraph of JSON", "x\n\n[1,2]\n\ny", "p(x) j([\n  1,\n  2\n]) p(y)"},
    {"cut JSON", "{\"a\": 1, …", "cjson({\"a\": 1, …)"},
    {"commented JSON", "[ {\n\"a\" : 1, // b\n}]", "cjson([ {\n\"a\" : 1, // b\n}])"},
    {"quotes", "> a\n>b\n\n>  c", "q(p(a\nb)) q(p( c))"},
    {"a fourth quote is text", "> > > > a\n> > > > # b", "q(q(q(p(a\n# b))))"},
    {"lists", "- a\n  - b\n    more\n\n   c\n* d", "l(0:a|1:b\nmore\n\nc|0:d)"},
    {"numbers go on", "3. a\n3. b\n   1) c\n7. d", "l(0#3:a|0#4:b|1#1:c|0#5:d)"},
    {"a bullet forgets the number", "1. a\n- b\n7. c", "l(0#1:a|0:b|0#7:c)"},
    {"an indent of one is the same level", "- a\n - b", "l(0:a|0:b)"},
    {"no lazy line", "- a\nb", "l(0:a) p(b)"},
    {"only a bullet or 1 interrupts", "a\n2. b\n1. c", "p(a\n2. b) l(0#1:c)"},
    {"an item of code", "- a\n- ```sh\n  ls\n  ```\n- b", "l(0:a) csh(ls) l(0:b)"},
    {"ten digits are no number", "1234567890. a", "p(1234567890. a)"},
    {"a rule among items", "- a\n\n- - -\nb", "l(0:a) r p(b)"},
    {"an indented rule joins its item", "- a\n\n  - - -", "l(0:a\n- - -)"},
    {"a deep rule alone is text", "     - - -", "p(     - - -)"},
    {"tables", "|a|b|c|\n|:-|:-:|-:|\n|1|2\n3|4|5|6\n\nx", "tlcr(a|b|c)(1|2|)(3|4|5) p(x)"},
    {"a table without its bars", "a|b\n-|-\n", "tll(a|b)"},
    {"escaped bars", "a\\|b|c\n-|-\n\\\\|d\\|", "tll(a|b|c)(\\|d|)"},
    {"unequal columns", "|a|b|\n|-|\nx", "p(|a|b|\n|-|\nx)"},
    {"patches", "diff --git a b\nindex 1\n@@ -1 +1 @@\n-a\n+b\n\n c\n\nd",
     "d(diff --git a b\nindex 1\n@@ -1 +1 @@\n-a\n+b\n\n c) p(d)"},
    {"a bare hunk", "text\n@@ -1,2 +1 @@\n x", "p(text) d(@@ -1,2 +1 @@\n x)"},
    {"a rule or a patch", "--- a\n+++ b\n+c\nd", "d(--- a\n+++ b\n+c) p(d)"},
};

TEST(ConversationRichTextTests, blocks) {
    for (const Row& row : rows) {
        EXPECT_EQ(shown(Rich(row.source).blocks), row.expected) << row.name;
    }
    std::string wide = "|", delimiters = "|";
    for (int column = 0; column < 33; ++column) {
        wide += "a|";
        delimiters += "-|";
    }
    EXPECT_EQ(Rich(wide + "\n" + delimiters).blocks[0].content.index(), 0U) << "33 columns";
    EXPECT_EQ(Rich(wide.substr(2) + "\n" + delimiters.substr(2)).blocks[0].content.index(), 5U) << "32 columns";
}

TEST(ConversationRichTextTests, plainTextSaysWhatIsShown) {
    const Rich rich(
        "# A *b*\n\n1. c\n2. d\n- e\n\n---\n> q\n> # r\n\n|x|y|\n|-|-|\n\n```\nz\n```\n"
        "/aaaaaaaaa/bbbbbbbbb/ccccccccc/d/eeeeeeee",
        true);
    EXPECT_EQ(rich.plainText, "A b\n1. c\n2. d\ne\nq\nr\n|x|y|\n|-|-|\nz\n/aaaaaaaaa/bbbbbbbbb/ccccccccc/d/eeeeeeee");
    EXPECT_EQ(rich, Rich(rich));
}

TEST(ConversationRichTextTests, cutRecordsAreRecognisedAsByTheirExpression) {
    static const Regex expression(R"(^\s*(?:\[\s*)*\{\s*\x22(?:[^\x22\\\n]|\\.)*\x22\s*:)");
    const auto texts = testing::randomTexts(
        18, 60'000, 9, {"{", "[", "\"", ":", "\\", "\n", "\r", "\u2028", " ", "\u3000", "a", "}", "…", ",", "é"});
    for (const std::string& text : texts) {
        if (!RichTextLine::looksLikeJSON(text)) continue;
        ASSERT_TRUE(containsMatch(expression, text)) << ::testing::PrintToString(text);
    }
    for (const std::string& text : texts) {
        const bool matches = containsMatch(expression, text);
        ASSERT_TRUE(!matches || RichTextLine::looksLikeJSON(text + "}")) << ::testing::PrintToString(text);
    }
}

// Any bytes end, and every prefix of a message is a message.
TEST(ConversationRichTextTests, anyLinesMakeBlocks) {
    const auto texts =
        testing::randomTexts(670, 8'000, 16, {"\n",          "\n\n", "- ",   "1. ",    "    ", "> ",    "```",
                                              "~~~",         "|",    "-|-",  "# ",     "---",  "===",   "a",
                                              "@@ -1",       "+",    "{",    "\"a\":", "}",    "* * *", "\r\n",
                                              "diff --git ", "한",   "\xFF", "`"});
    for (const std::string& text : texts)
        (void)Rich(text, true);
}

}  // namespace
}  // namespace vellark
