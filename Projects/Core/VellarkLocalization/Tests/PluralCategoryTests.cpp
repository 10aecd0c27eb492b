#include <VellarkLocalization/PluralCategory.hpp>

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace vellark {
namespace {

TEST(PluralCategory, cardinalRules) {
    using enum PluralCategory;
    struct Row {
        const char* language;
        PluralCategory category;
        std::vector<std::int64_t> counts;
    };
    constexpr auto lowest = std::numeric_limits<std::int64_t>::min();  // 9223372036854775808 without its sign
    const Row rows[] = {
        {"ru", one, {1, 21, 101, -1, 1'000'001}},
        {"ru", few, {2, 3, 4, 22, 104, -3}},
        {"ru", many, {0, 5, 11, 12, 14, 20, 111, 112, 1'000'000, lowest}},
        {"fr", one, {0, 1, -1}},
        {"fr", other, {2, 10, 1'000'001, lowest}},
        {"fr", many, {1'000'000, -1'000'000, 3'000'000}},
        {"es", one, {1, -1}},
        {"es", other, {0, 2, 999'999}},
        {"es", many, {1'000'000, 20'000'000}},
        {"en", one, {1, -1}},
        {"en", other, {0, 2, 21, 1'000'000}},
        {"de", one, {1}},
        {"mn", one, {1}},
        {"mn", other, {0, 2}},
        {"ko", other, {0, 1, 2}},
        {"ja", other, {1}},
        {"th", other, {1}},
        {"vi", other, {1}},
        {"zh-Hans", other, {1}},
        {"zh-HK", other, {1}},
        {"pt", other, {1}},
        {"", other, {1}},
    };
    for (const Row& row : rows) {
        for (const std::int64_t count : row.counts) {
            EXPECT_EQ(PluralCategories::cardinal(count, row.language), row.category) << row.language << " " << count;
        }
    }
}

}  // namespace
}  // namespace vellark
