#include <VellarkFoundation/Unicode/DisplayWidth.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

TEST(DisplayWidthTests, columns) {
    const std::pair<std::string_view, std::size_t> rows[] = {
        {"", 0},         {"plain", 5},
        {"회의록", 6},   {"議事録", 6},
        {"Ｆ", 2},       {"é", 1},
        {"e\u0301", 1},  {"👩‍👩‍👧", 2},
        {"🇰🇷", 2},       {"🇰", 2},
        {"❤", 1},        {"❤️", 2},
        {"\a", 0},       {"\u0301", 0},
        {"สวัสดี", 4},     {"½", 1},
        {"\xFF\xFF", 2}, {"\u1112\u1161\u11AB", 2},
        {"ㅎ", 2},       {"—", 1},
        {"\u200B", 0},
    };
    for (const auto& [text, expected] : rows) {
        EXPECT_EQ(DisplayWidth::columns(text), expected) << text;
    }
}

TEST(DisplayWidthTests, fitting) {
    EXPECT_EQ(DisplayWidth::fitted("회의록", 6), "회의록");
    EXPECT_EQ(DisplayWidth::fitted("회의록", 5), "회의…");
    EXPECT_EQ(DisplayWidth::fitted("회의록", 4), "회…");
    EXPECT_EQ(DisplayWidth::fitted("회의록", 1), "…");
    EXPECT_EQ(DisplayWidth::fitted("회의록", 0), "");
    EXPECT_EQ(DisplayWidth::padded("회의록", 4), "회… ");
    EXPECT_EQ(DisplayWidth::padded("ab", 4), "ab  ");
}

TEST(DisplayWidthTests, terminalsGetNoCommands) {
    EXPECT_EQ(DisplayWidth::harmless("a\x1B[31mb\r\n\u202Ec\u2028\u009B"), "a [31mb   c  ");
    EXPECT_EQ(DisplayWidth::harmless("👩‍👩‍👧 é"), "👩‍👩‍👧 é");
}

}  // namespace
}  // namespace vellark
