#include "Support/PythonPeer.hpp"
#include "Support/RandomInput.hpp"
#include <VellarkDomain/Documents/DateCoding.hpp>
#include <VellarkDomain/Documents/Review/LaterSchedule.hpp>
#include <VellarkDomain/Documents/Review/ReviewBatchReceipt.hpp>
#include <VellarkDomain/Documents/Review/ReviewCadence.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>

namespace vellark {
namespace {

Date moment(const char* text) {
    return DateCoding::date(text).value();
}

std::string shown(const std::optional<Date>& date) {
    return date ? DateCoding::text(*date).value_or("unwritable") : "nothing";
}

TEST(ReviewCadence, periodsBeginAtTheReset) {
    struct Row {
        const char* name;
        const char* at;
        std::int64_t reset;
        const char* zone;
        const char* daily;
        const char* weekly;
    };
    const Row rows[] = {
        {"plain day", "2026-03-04T12:00Z", 0, "UTC", "2026-03-04T00:00:00Z", "2026-03-02T00:00:00Z"},
        {"before the reset", "2026-03-04T03:59Z", 240, "UTC", "2026-03-03T04:00:00Z", "2026-03-02T04:00:00Z"},
        {"at the reset", "2026-03-04T04:00Z", 240, "UTC", "2026-03-04T04:00:00Z", "2026-03-02T04:00:00Z"},
        {"Monday before the reset", "2026-03-02T03:59:59.9Z", 240, "UTC", "2026-03-01T04:00:00Z",
         "2026-02-23T04:00:00Z"},
        {"last minute", "2026-03-04T12:00Z", 1439, "UTC", "2026-03-03T23:59:00Z", "2026-03-02T23:59:00Z"},
        {"1440 is midnight", "2026-03-04T12:00Z", 1440, "UTC", "2026-03-04T00:00:00Z", "2026-03-02T00:00:00Z"},
        {"negative is midnight", "2026-03-04T12:00Z", -1, "UTC", "2026-03-04T00:00:00Z", "2026-03-02T00:00:00Z"},
        {"east", "2026-03-04T15:00Z", 0, "Asia/Seoul", "2026-03-04T15:00:00Z", "2026-03-01T15:00:00Z"},
        {"unknown zone", "2026-03-04T12:00Z", 60, "Mars/Base", "2026-03-04T01:00:00Z", "2026-03-02T01:00:00Z"},
        {"gap", "2026-03-29T12:00Z", 150, "Europe/Berlin", "2026-03-29T01:00:00Z", "2026-03-23T01:30:00Z"},
        {"in front of the gap", "2026-03-29T00:59Z", 150, "Europe/Berlin", "2026-03-28T01:30:00Z",
         "2026-03-23T01:30:00Z"},
        {"repeated, first pass", "2026-10-25T00:30Z", 150, "Europe/Berlin", "2026-10-25T00:30:00Z",
         "2026-10-19T00:30:00Z"},
        {"repeated, second pass", "2026-10-25T01:10Z", 150, "Europe/Berlin", "2026-10-25T00:30:00Z",
         "2026-10-19T00:30:00Z"},
        {"a midnight that is missing", "2018-11-04T12:00Z", 0, "America/Sao_Paulo", "2018-11-04T03:00:00Z",
         "2018-10-29T03:00:00Z"},
        {"a day that is missing", "2011-12-30T11:00Z", 0, "Pacific/Apia", "2011-12-30T10:00:00Z",
         "2011-12-26T10:00:00Z"},
        {"before 1970", "1969-12-31T23:59Z", 0, "UTC", "1969-12-31T00:00:00Z", "1969-12-29T00:00:00Z"},
        {"before the Gregorian reform", "1500-03-01T12:00Z", 0, "UTC", "1500-03-01T00:00:00Z", "1500-02-26T00:00:00Z"},
    };
    for (const Row& row : rows) {
        const Date at = moment(row.at);
        EXPECT_EQ(shown(ReviewCadences::periodStart(ReviewCadence::daily, at, row.reset, row.zone)), row.daily)
            << row.name;
        EXPECT_EQ(shown(ReviewCadences::periodStart(ReviewCadence::weekly, at, row.reset, row.zone)), row.weekly)
            << row.name;
        EXPECT_EQ(ReviewCadences::periodStart(ReviewCadence::continuous, at, row.reset, row.zone), std::nullopt);
    }
    for (const double second : {std::numeric_limits<double>::quiet_NaN(), HUGE_VAL, -HUGE_VAL, 1e300}) {
        EXPECT_EQ(ReviewCadences::periodStart(ReviewCadence::daily, Date{second}, 0, "UTC"), std::nullopt);
    }
}

TEST(LaterSchedule, staysAwayLongerEachTime) {
    const Date at = moment("2026-03-04T12:00Z");
    LaterSchedule schedule = LaterSchedule::first(at, 240, "Asia/Seoul");
    EXPECT_EQ(schedule, (LaterSchedule{0, moment("2026-03-04T19:00Z")}));
    const char* const due[] = {"2026-03-06T19:00:00Z", "2026-03-10T19:00:00Z", "2026-03-10T19:00:00Z"};
    for (const char* const expected : due) {
        schedule = schedule.advanced(at, 240, "Asia/Seoul");
        EXPECT_EQ(shown(schedule.due), expected);
    }
    EXPECT_EQ(schedule.step, 2);
    const std::pair<std::int64_t, std::int64_t> steps[] = {{-4, 0}, {-1, 0}, {0, 1},         {1, 2},
                                                           {2, 2},  {99, 2}, {INT64_MAX, 2}, {INT64_MIN, 0}};
    for (const auto& [step, next] : steps) {
        EXPECT_EQ((LaterSchedule{step, {}}.advanced(at, 0, "UTC").step), next) << step;
    }
}

TEST(LaterSchedule, dueFollowsTheCalendar) {
    struct Row {
        const char* name;
        const char* at;
        std::int64_t reset;
        const char* zone;
        const char* due;
    };
    const Row rows[] = {
        {"into the gap", "2026-03-28T12:00Z", 150, "Europe/Berlin", "2026-03-29T01:00:00Z"},
        {"out of the gap", "2026-03-29T12:00Z", 150, "Europe/Berlin", "2026-03-30T00:30:00Z"},
        {"into the repeated hour", "2026-10-24T12:00Z", 150, "Europe/Berlin", "2026-10-25T00:30:00Z"},
        {"a missing midnight", "2018-11-03T12:00Z", 0, "America/Sao_Paulo", "2018-11-04T03:00:00Z"},
        {"1440 is midnight", "2026-03-04T12:00Z", 1440, "UTC", "2026-03-05T00:00:00Z"},
        {"before the reset it is still yesterday", "2026-03-04T03:00Z", 240, "UTC", "2026-03-04T04:00:00Z"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(shown(LaterSchedule::first(moment(row.at), row.reset, row.zone).due), row.due) << row.name;
    }
    EXPECT_EQ(LaterSchedule::first(Date{HUGE_VAL}, 0, "UTC").due, Date{HUGE_VAL});
}

TEST(LaterSchedule, countsDaysByTheCalendar) {
    struct Row {
        const char* due;
        const char* from;
        const char* zone;
        std::int64_t days;
    };
    const Row rows[] = {
        {"2026-03-04T12:00Z", "2026-03-04T23:00Z", "UTC", 0},
        {"2026-03-05T00:00Z", "2026-03-04T23:59Z", "UTC", 1},
        {"2026-03-01T00:00Z", "2026-03-04T23:59Z", "UTC", -3},
        {"2026-03-29T22:00Z", "2026-03-28T23:00Z", "Europe/Berlin", 1},
        {"2026-10-25T23:00Z", "2026-10-24T22:00Z", "Europe/Berlin", 1},
        {"2026-03-05T00:00Z", "2026-03-04T23:59Z", "Asia/Seoul", 0},
        {"2024-03-01T00:00Z", "2024-02-28T00:00Z", "UTC", 2},
    };
    for (const Row& row : rows) {
        EXPECT_EQ((LaterSchedule{0, moment(row.due)}.daysUntilReturn(moment(row.from), row.zone)), row.days) << row.due;
    }
    EXPECT_EQ((LaterSchedule{0, Date{HUGE_VAL}}.daysUntilReturn(Date{0}, "UTC")), 0);
}

TEST(LaterSchedule, comesBack) {
    const LaterSchedule returned = LaterSchedule::returnedNow();
    EXPECT_EQ(writeRecord(returned), std::string(R"({"step":0,"due":"1970-01-01T00:00:00Z"})"));
    EXPECT_TRUE(returned.isDue(Date{0}));
    EXPECT_TRUE(returned.isDue(moment("2026-01-01T00:00Z")));
    EXPECT_FALSE(returned.isDue(Date{-0.001}));
    EXPECT_EQ(LaterScheduleChange::restoring(returned), LaterScheduleChange::set(returned));
    EXPECT_EQ(LaterScheduleChange::restoring(std::nullopt), LaterScheduleChange::clear());
}

TEST(ReviewBatchReceipt, isStrictButForItsSchedules) {
    const std::string head = R"({"savedState":"later","previousStates":{"a":"unread","b":null},)";
    const std::string fingerprint = R"("fingerprint":{"sha256":"s","mtimeNs":"1","inode":"2"})";
    const std::string schedules = R"(,"previousSchedules":{"a":{"step":1,"due":"2026-01-01T00:00:00.500000Z"}})";
    using Reason = DecodingError::Reason;
    struct Row {
        std::string text;
        std::optional<DecodingError> error;
    };
    const Row rows[] = {
        {head + fingerprint + "}", std::nullopt},
        {head + fingerprint + schedules + "}", std::nullopt},
        {head + fingerprint + ",\"previousSchedules\":null}", std::nullopt},
        {head + "\"x\":1}", DecodingError{Reason::missing, "fingerprint"}},
        {R"({"savedState":"Later","previousStates":{},)" + fingerprint + "}",
         DecodingError{Reason::unknownText, "savedState"}},
        {R"({"savedState":"read","previousStates":{"a":"x"},)" + fingerprint + "}",
         DecodingError{Reason::unknownText, "previousStates.a"}},
        {R"({"savedState":"read","previousStates":[],)" + fingerprint + "}",
         DecodingError{Reason::wrongType, "previousStates"}},
        {head + R"("fingerprint":{"sha256":"s","mtimeNs":1,"inode":"2"}})",
         DecodingError{Reason::wrongType, "fingerprint.mtimeNs"}},
        {head + fingerprint + R"(,"previousSchedules":{"a":null}})",
         DecodingError{Reason::wrongType, "previousSchedules.a"}},
        {head + fingerprint + R"(,"previousSchedules":{"a":{"step":1,"due":0}}})",
         DecodingError{Reason::wrongType, "previousSchedules.a.due"}},
        {head + fingerprint + R"(,"previousSchedules":{"a":{"step":1,"due":"2026-01-01"}}})",
         DecodingError{Reason::unknownText, "previousSchedules.a.due"}},
    };
    for (const Row& row : rows) {
        const auto receipt = readRecord<ReviewBatchReceipt>(std::string_view(row.text));
        ASSERT_EQ(receipt.has_value(), !row.error) << row.text;
        if (row.error) {
            EXPECT_EQ(receipt.error(), *row.error);
        } else if (row.text.find("Schedules\":null") == std::string::npos) {
            EXPECT_EQ(writeRecord(*receipt), row.text);
        }
    }
}

TEST(ReviewBatchReceipt, aDateThatNoFileHoldsIsNotWritten) {
    const ReviewBatchReceipt receipt{.previousSchedules = {{{"a", {0, Date{HUGE_VAL}}}}}};
    EXPECT_EQ(writeRecord(receipt).error(), EncodingError{"previousSchedules.a.due"});
}

// Against Python's own time zones, by the definition: of all days the last whose first moment at or behind the reset
// time has come, found by watching the clock go.
TEST(ReviewCadence, agreesWithAClockThatIsWatched) {
    const std::string script = R"(
import datetime, zoneinfo
epoch = datetime.datetime(1970, 1, 1, tzinfo=datetime.timezone.utc)
def reading(zone, second):
    at = (epoch + datetime.timedelta(seconds=second)).astimezone(zone).replace(tzinfo=None)
    return int((at - datetime.datetime(1970, 1, 1)).total_seconds())
def begin(zone, day, minute):
    wanted = day * 86400 + minute * 60
    second = wanted - 86400 * 3 // 2
    while reading(zone, second + 900) < wanted: second += 900
    while reading(zone, second) < wanted: second += 60
    return second
def answer(case):
    name, minute, second = case.decode().split()
    zone, minute, second = zoneinfo.ZoneInfo(name), int(minute), int(second)
    day = reading(zone, second) // 86400 + 1
    while begin(zone, day, minute) > second: day -= 1
    return f"{begin(zone, day, minute)} {begin(zone, day + 3, minute)}".encode()
)";
    const std::vector<std::string> zones = {"America/New_York",    "Europe/London",    "Asia/Kathmandu",
                                            "Australia/Lord_Howe", "Africa/Cairo",     "America/Sao_Paulo",
                                            "Asia/Tehran",         "America/St_Johns", "Pacific/Chatham",
                                            "Asia/Beirut",         "America/Havana",   "Antarctica/Troll"};
    testing::RandomNumbers random(5);
    std::vector<std::string> cases;
    for (int index = 0; index < 300; ++index) {
        const std::size_t second = 86'400 * 365 + random.below(std::size_t{86'400} * 365 * 50);  // 1971 to 2020
        cases.push_back(random.oneOf(zones) + " " + std::to_string(random.below(1440)) + " " + std::to_string(second));
        if (index % 3 == 0) {  // near the night of a change
            cases.back() = "Europe/London " + std::to_string(30 + random.below(120)) + " " +
                           std::to_string(1'585'440'000 + random.below(100'000));
        }
    }
    const auto answers = testing::PythonPeer::answers(script, cases);
    if (!answers) GTEST_SKIP() << "python3 is missing";
    for (std::size_t index = 0; index < cases.size(); ++index) {
        std::istringstream line(cases[index]);
        std::string zone;
        std::int64_t minute = 0;
        double second = 0;
        line >> zone >> minute >> second;
        const auto start = ReviewCadences::periodStart(ReviewCadence::daily, Date{second}, minute, zone);
        const auto due = LaterSchedule{0, {}}.advanced(Date{second}, minute, zone).due;
        std::ostringstream ours;
        ours << static_cast<std::int64_t>(start->secondsSince1970) << " "
             << static_cast<std::int64_t>(due.secondsSince1970);
        EXPECT_EQ(ours.str(), (*answers)[index]) << cases[index];
    }
}

}  // namespace
}  // namespace vellark
