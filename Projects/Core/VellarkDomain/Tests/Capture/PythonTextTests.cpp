#include <VellarkDomain/Capture/PythonText.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

using Pieces = std::vector<std::string_view>;

TEST(PythonText, searchesByScalars) {
    EXPECT_TRUE(PythonText::contains("", ""));
    EXPECT_TRUE(PythonText::contains("한국어", "국"));
    EXPECT_FALSE(PythonText::contains("é", "e")) << "no normalisation";
    EXPECT_TRUE(PythonText::contains("e\u0301", "e")) << "no grapheme clusters";
    EXPECT_FALSE(PythonText::contains("a", "ab"));
    EXPECT_TRUE(PythonText::hasPrefix("\r\nx", "\r"));
    EXPECT_FALSE(PythonText::hasPrefix("é", "e\u0301"));
    EXPECT_TRUE(PythonText::hasPrefix("a", ""));
}

TEST(PythonText, membersAreASCII) {
    constexpr std::string_view set[] = {"md", "plan", "é"};
    const std::pair<const char*, bool> rows[] = {
        {"md", true}, {"plan", true}, {"Plan", false}, {"", false}, {"m", false}, {"é", false}, {"pla\u0301n", false},
    };
    for (const auto& [text, isMember] : rows) {
        EXPECT_EQ(PythonText::isMember(text, set), isMember) << text;
    }
}

TEST(PythonText, cutsByScalars) {
    EXPECT_EQ(PythonText::prefix("한국어", 2), "한국");
    EXPECT_EQ(PythonText::prefix("e\u0301x", 1), "e");
    EXPECT_EQ(PythonText::prefix("\U0001F600x", 1), "\U0001F600");
    EXPECT_EQ(PythonText::prefix("ab", 0), "");
    EXPECT_EQ(PythonText::prefix("ab", 9), "ab");
    EXPECT_EQ(PythonText::prefix("\xe3\x81\xff", 1), "\xe3\x81") << "an ill-formed subpart counts as one";
}

TEST(PythonText, separatesIntoComponents) {
    EXPECT_EQ(PythonText::components("", '/'), (Pieces{""}));
    EXPECT_EQ(PythonText::components("/a//b/", '/'), (Pieces{"", "a", "", "b", ""}));
    EXPECT_EQ(PythonText::components("a·b·", U'·'), (Pieces{"a", "b", ""}));
}

TEST(PythonText, knowsNormalAbsolutePaths) {
    const std::pair<const char*, bool> rows[] = {
        {"", false},     {"/", true},      {"//", false},    {"/a", true},     {"/a/", false},
        {"/a/.", false}, {"/..", false},   {"/a/..b", true}, {"/a/...", true}, {"a/b", false},
        {"//a", false},  {"/a//b", false}, {"/.a", true},    {"/a /b", true},  {"/a/./b", false},
    };
    for (const auto& [path, isNormal] : rows) {
        EXPECT_EQ(PythonText::isNormalAbsolute(path), isNormal) << path;
    }
}

}  // namespace
}  // namespace vellark
