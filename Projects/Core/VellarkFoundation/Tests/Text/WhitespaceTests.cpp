#include <VellarkFoundation/Text/Whitespace.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

TEST(Whitespace, trimsItsTwoSets) {
    struct Row {
        const char* text;
        const char* trimmed;
        const char* withNewlines;
    };
    const Row rows[] = {
        {"", "", ""},
        {" \t ", "", ""},
        {"a b", "a b", "a b"},
        {"\u3000가\u00a0", "가", "가"},
        {"\u200ba\u205f\u1680\u202f", "a", "a"},
        {" \n a \r\n", "\n a \r\n", "a"},
        {"\u2028a\u0085\v\f", "\u2028a\u0085\v\f", "a"},
        {"\x1c"
         "a\x1f",
         "\x1c"
         "a\x1f",
         "\x1c"
         "a\x1f"},
        {"\ufeffa\u180e", "\ufeffa\u180e", "\ufeffa\u180e"},
        {" \xe2\x80 ", "\xe2\x80", "\xe2\x80"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Whitespace::trimmed(row.text), row.trimmed) << row.text;
        EXPECT_EQ(Whitespace::trimmedWithNewlines(row.text), row.withNewlines) << row.text;
    }
}

}  // namespace
}  // namespace vellark
