#include "../Differential.hpp"
#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkDomain/Capture/Rules/CaptureHeadings.hpp>
#include <VellarkDomain/Capture/Rules/CaptureStructuralText.hpp>
#include <VellarkDomain/Capture/Rules/PythonExpression.hpp>

#include <gtest/gtest.h>

#include <algorithm>

namespace vellark {
namespace {

using Headings = std::vector<std::string>;

const std::string space = R"([\t\n\x{0B}\f\r\x{1C}-\x{20}\x{85}\x{A0}\x{1680}\x{2000}-\x{200A})"
                          R"(\x{2028}\x{2029}\x{202F}\x{205F}\x{3000}])";

Headings headings(std::string_view text) {
    Headings found;
    CaptureRules::HeadingScanner scanner(text);
    while (const auto heading = scanner.next())
        found.emplace_back(*heading);
    return found;
}

// The expression that the scanner stands for, started anew behind the line of each heading. Where nothing but white
// space follows the marks, it backtracks to take some of that for a text; there the scanner finds no heading.
Headings expressionHeadings(std::string_view text) {
    static const Regex heading =
        PythonText::expression("(?<![^\\n])#{1,6}" + space + "+([^\\n]+?)" + space + "*#*" + space + "*(?![^\\n])");
    Headings found;
    const RegexText prepared(text);
    RegexMatcher matcher(heading, prepared);
    for (std::size_t offset = 0; offset < text.size() && matcher.find(offset) == RegexOutcome::match;) {
        const ByteRange range = *matcher.group(1);
        if (PythonText::strip(range.of(text)).empty()) break;
        found.emplace_back(range.of(text));
        offset = std::min(text.find('\n', range.end), text.size());
    }
    return found;
}

std::size_t expressionEntries(std::string_view text) {
    static const Regex entry =
        PythonText::expression("(?<![^\\n])" + space + "*- `(?:Projects|Sources|Scripts|Tests)/[^`]+`");
    const RegexText prepared(text);
    RegexMatcher matcher(entry, prepared);
    std::size_t count = 0;
    while (matcher.find() == RegexOutcome::match)
        ++count;
    return count;
}

TEST(CaptureHeadings, findsHeadings) {
    const struct {
        const char* name;
        std::string text;
        Headings headings;
    } rows[] = {
        {"closing marks", "# T  ##", {"T"}},
        {"a mark at the end of a word", "# C#", {"C"}},
        {"marks inside", "# a # b #", {"a # b"}},
        {"nothing but marks", "# ## #", {"##"}},
        {"a single mark as text", "# ###  ", {"#"}},
        {"text on a later line", "#\n\nBody\n# Next", {"Body", "Next"}},
        {"a heading taken for the text of the one before", "#\n# b", {"# b"}},
        {"an empty one behind another", "# a\n#\n\nb", {"a", "b"}},
        {"no text", "# \n \t", {}},
        {"no white space", "#a", {}},
        {"seven marks", "####### a\n###### b", {"b"}},
        {"indented", " # a", {}},
        {"a carriage return ends no line", "x\r# a\r\n# b\r\n", {"b"}},
        {"other white space", "#\u00A0\u3000a\u2028", {"a"}},
        {"no white space in Python", "#\u200Ba\n# \uFEFF", {"\uFEFF"}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(headings(row.text), row.headings) << row.name;
    }
}

TEST(CaptureHeadings, agreeWithTheExpressions) {
    const std::string_view marks[] = {"#", " ", "\n", "\r", "\u00A0", "a"};
    const std::string_view pieces[] = {
        "#", "# ", " ", "\t", "\n", "\r", "\xC2\xA0", "`", "~", "a", "- `Sources/x`", "- `Tests/", "*"};
    std::vector<std::string> cases;
    testing::appendAllSequences(cases, marks, 5);
    testing::Generator generator(20);
    for (int count = 0; count < 8'000; ++count) {
        cases.push_back(generator.join(pieces, 1 + generator.below(16)));
    }
    for (const std::string& text : cases) {
        ASSERT_EQ(headings(text), expressionHeadings(text)) << ::testing::PrintToString(text);
        ASSERT_EQ(CaptureRules::codeMapEntryCount(text), expressionEntries(text)) << ::testing::PrintToString(text);
    }
}

TEST(CaptureHeadings, takeLinearTime) {
    constexpr std::size_t size = 1'000'000;
    EXPECT_EQ(headings("# a" + std::string(size, ' ') + "b").size(), 1U);
    EXPECT_TRUE(headings(std::string(size, '#')).empty());
    std::string opened;
    std::string bare;
    while (opened.size() < size)
        opened += "- `Tests/\n";
    while (bare.size() < size)
        bare += "#\n";
    EXPECT_EQ(headings(bare + "\n").size(), 250'000U);
    EXPECT_EQ(CaptureRules::codeMapEntryCount(opened), 50'000U) << "each closes at the next one's mark";
    EXPECT_EQ(CaptureRules::codeMapEntryCount(std::string(size, '\n')), 0U);
    EXPECT_EQ(CaptureRules::structuralText(std::string(size, '`')), "");
}

TEST(CaptureStructuralText, dropsFencedCode) {
    const struct {
        const char* name;
        std::string text;
        std::string kept;
    } rows[] = {
        {"none", "a\r\nb\n", "a\nb"},
        {"empty lines stay", "\n\na", "\n\na"},
        {"a fence", "a\n```swift\n# x\n```\nb", "a\nb"},
        {"four are not closed by three", "````\n```\n# x\n````\nb", "b"},
        {"more close", "```\nx\n`````\nb", "b"},
        {"another mark closes nothing", "~~~\n```\n~~~\nb", "b"},
        {"text behind the run closes nothing", "```\n``` x\n```\u00A0\t\nb", "b"},
        {"backticks behind an opening run", "```a```\nx\n```\nb", "b"},
        {"three of indent", " \t ```\nx\n\t\t\t```\nb", "b"},
        {"four of indent open nothing", "    ```\nb", "    ```\nb"},
        {"four of indent close nothing", "```\n    ```\nb", ""},
        {"other white space is no indent", "\u00A0```\nb", "\u00A0```\nb"},
        {"two marks", "``\nb", "``\nb"},
        {"open to the end", "a\n~~~\nx", "a"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(CaptureRules::structuralText(row.text), row.kept) << row.name;
    }
}

}  // namespace
}  // namespace vellark
