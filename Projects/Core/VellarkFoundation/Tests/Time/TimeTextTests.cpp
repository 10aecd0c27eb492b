#include <VellarkFoundation/Time/TimeText.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

TEST(TimeText, cutsAndNeverRounds) {
    struct Row {
        timespec moment;
        const char* date;
        const char* seconds;
    };
    const Row rows[] = {
        {{0, 0}, "1970-01-01T00:00:00.000Z", "0.000000"},
        {{1'767'225'600, 123'456'789}, "2026-01-01T00:00:00.123Z", "1767225600.123456"},
        {{1'767'225'599, 999'999'999}, "2025-12-31T23:59:59.999Z", "1767225599.999999"},
        {{951'782'400, 1'000}, "2000-02-29T00:00:00.000Z", "951782400.000001"},
        {{951'868'800, 999'000}, "2000-03-01T00:00:00.000Z", "951868800.000999"},
        {{4'107'542'400, 70'000'000}, "2100-03-01T00:00:00.070Z", "4107542400.070000"},
        {{2'147'483'648, 0}, "2038-01-19T03:14:08.000Z", "2147483648.000000"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(TimeText::millisecondsUTC(row.moment), row.date);
        EXPECT_EQ(TimeText::secondsWithMicroseconds(row.moment), row.seconds);
    }
    EXPECT_EQ(TimeText::millisecondsUTC({-1, 500'000'000}), "1969-12-31T23:59:59.500Z");
}

}  // namespace
}  // namespace vellark
