#include <VellarkDomain/Documents/DateCoding.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vellark {
namespace {

TEST(DateCoding, writesTheShortFormInUTC) {
    const double nothing = std::numeric_limits<double>::quiet_NaN();
    const std::pair<double, std::optional<std::string>> rows[] = {
        {0, "1970-01-01T00:00:00Z"},
        {-0.5, "1969-12-31T23:59:59.500000Z"},
        {1767323045.25, "2026-01-02T03:04:05.250000Z"},
        {0.0000004, "1970-01-01T00:00:00Z"},
        {0.0000006, "1970-01-01T00:00:00.000001Z"},
        {0.9999996, "1970-01-01T00:00:01Z"},
        {951782400, "2000-02-29T00:00:00Z"},
        {-62135596800, "0001-01-01T00:00:00Z"},
        {-62135596801, std::nullopt},
        {253402300799, "9999-12-31T23:59:59Z"},
        {253402300799.9999, "9999-12-31T23:59:59.999908Z"},
        {std::nextafter(253402300800.0, 0), "9999-12-31T23:59:59.999969Z"},
        {253402300800, std::nullopt},
        {nothing, std::nullopt},
        {std::numeric_limits<double>::infinity(), std::nullopt},
        {-std::numeric_limits<double>::infinity(), std::nullopt},
        {1e300, std::nullopt},
    };
    for (const auto& [seconds, text] : rows) {
        EXPECT_EQ(DateCoding::text(Date{seconds}), text) << seconds;
        if (text) {
            EXPECT_NEAR(DateCoding::date(*text)->secondsSince1970, seconds, 2e-5);
        }
    }
}

TEST(DateCoding, readsTheGrammarOfTimestamps) {
    const std::pair<const char*, std::optional<double>> rows[] = {
        {"2026-01-02T03:04:05Z", 1767323045},
        {"2026-01-02 12:04:05.25+09:00", 1767323045.25},
        {"9999-12-31T23:59:59.999999Z", 253402300799.999999},
        {"2026-01-02T03:04:05", std::nullopt},
        {"2026-01-02", std::nullopt},
        {"", std::nullopt},
        {"1767323045", std::nullopt},
    };
    for (const auto& [text, seconds] : rows) {
        const auto date = DateCoding::date(text);
        EXPECT_EQ(date, seconds ? std::optional(Date{*seconds}) : std::nullopt) << text;
    }
}

}  // namespace
}  // namespace vellark
