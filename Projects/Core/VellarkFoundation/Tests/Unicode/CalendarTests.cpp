#include <VellarkFoundation/Unicode/Calendar.hpp>

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace vellark {
namespace {

std::string shown(const Calendar& calendar, double seconds) {
    const auto reading = calendar.reading(Date{seconds});
    if (!reading) return "nothing";
    return std::to_string(reading->day) + " " + std::to_string(reading->year) + "-" + std::to_string(reading->month) +
           "-" + std::to_string(reading->dayOfMonth) + " " + std::to_string(reading->minute);
}

TEST(CalendarTests, whatTheWallShows) {
    struct {
        const char* zone;
        double seconds;
        const char* expected;
    } const rows[] = {
        {"UTC", 0, "0 1970-1-1 0"},
        {"UTC", -0.5, "-1 1969-12-31 1439"},
        {"Asia/Seoul", 0, "0 1970-1-1 540"},
        {"America/New_York", 1'772'953'199, "20520 2026-3-8 119"},  // the last second before clocks go forward
        {"America/New_York", 1'772'953'200, "20520 2026-3-8 180"},
        {"America/New_York", 1'793'512'800, "20758 2026-11-1 60"},  // the second pass of one o'clock
        {"Asia/Kathmandu", 0, "0 1970-1-1 330"},                    // a quarter was added in 1986
        {"Pacific/Apia", 1'325'239'200, "15339 2011-12-31 0"},      // there was no 30 December
        {"No/Such_Zone", 60, "0 1970-1-1 1"},
        {"UTC", std::numeric_limits<double>::infinity(), "nothing"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(shown(Calendar(row.zone), row.seconds), row.expected) << row.zone << " " << row.seconds;
    }
}

}  // namespace
}  // namespace vellark
