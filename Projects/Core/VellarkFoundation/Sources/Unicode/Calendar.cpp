#include <VellarkFoundation/Unicode/Calendar.hpp>

#include <unicode/basictz.h>
#include <unicode/timezone.h>
#include <unicode/tztrans.h>

#include <algorithm>
#include <cmath>

// ICU tells the offset of a moment and the next change of it. Between two changes the clock runs evenly, so the first
// moment with a given reading is found by walking the few stretches around it, without asking a calendar field by
// field, and without the rules by which calendars resolve readings that do not exist.

namespace vellark {

namespace {

constexpr std::int64_t secondsPerDay = 86'400;
constexpr std::int64_t secondsPerMinute = 60;
constexpr double millisecondsPerSecond = 1000;

/// Farthest moment that is looked at, in seconds: some 3 million years, well within what ICU counts.
constexpr double farthest = 1e14;

/// More than any clock was ever off from UTC, in seconds.
constexpr std::int64_t largestOffset = 2 * secondsPerDay;

std::int64_t floorDivision(std::int64_t value, std::int64_t divisor) {
    const std::int64_t quotient = value / divisor;
    return value % divisor < 0 ? quotient - 1 : quotient;
}

}  // namespace

struct Calendar::Zone {
    std::unique_ptr<const icu::TimeZone> zone;

    /// Seconds by which the clock is ahead of UTC at the moment.
    [[nodiscard]] std::int64_t offset(double second) const {
        std::int32_t raw = 0;
        std::int32_t saving = 0;
        UErrorCode status = U_ZERO_ERROR;
        zone->getOffset(second * millisecondsPerSecond, false, raw, saving, status);
        if (U_FAILURE(status)) return 0;
        return floorDivision(raw + saving, static_cast<std::int64_t>(millisecondsPerSecond));
    }

    /// The first moment behind `second` at which the offset may change; nothing when it never does.
    [[nodiscard]] std::optional<double> nextChange(double second) const {
        const auto* basic = dynamic_cast<const icu::BasicTimeZone*>(zone.get());
        icu::TimeZoneTransition transition;
        if (basic == nullptr || !basic->getNextTransition(second * millisecondsPerSecond, false, transition)) {
            return std::nullopt;
        }
        return std::floor(transition.getTime() / millisecondsPerSecond);
    }
};

Calendar::Calendar(std::string_view timeZone) {
    const auto name =
        icu::UnicodeString::fromUTF8(icu::StringPiece(timeZone.data(), static_cast<std::int32_t>(timeZone.size())));
    std::unique_ptr<const icu::TimeZone> zone(icu::TimeZone::createTimeZone(name));
    if (*zone == icu::TimeZone::getUnknown()) zone.reset(icu::TimeZone::getGMT()->clone());
    zone_ = std::make_unique<const Zone>(Zone{std::move(zone)});
}

Calendar::Calendar(Calendar&&) noexcept = default;
Calendar& Calendar::operator=(Calendar&&) noexcept = default;
Calendar::~Calendar() = default;

std::optional<CalendarDay> Calendar::day(Date date) const {
    const double second = std::floor(date.secondsSince1970);
    if (!(std::fabs(second) <= farthest)) return std::nullopt;
    return floorDivision(static_cast<std::int64_t>(second) + zone_->offset(second), secondsPerDay);
}

std::optional<Calendar::Reading> Calendar::reading(Date date) const {
    const double second = std::floor(date.secondsSince1970);
    if (!(std::fabs(second) <= farthest)) return std::nullopt;
    const std::int64_t local = static_cast<std::int64_t>(second) + zone_->offset(second);
    Reading reading{.day = floorDivision(local, secondsPerDay)};
    reading.minute = static_cast<int>((local - reading.day * secondsPerDay) / secondsPerMinute);
    // Years begin in March here, so that the leap day is the last one; 400 of them have a whole number of days.
    constexpr std::int64_t daysPerEra = 146'097;
    constexpr CalendarDay firstOfEra = -719'468;  // March 1 of the year 0
    const std::int64_t sinceFirst = reading.day - firstOfEra;
    const std::int64_t era = floorDivision(sinceFirst, daysPerEra);
    const std::int64_t dayOfEra = sinceFirst - era * daysPerEra;
    const std::int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36'524 - dayOfEra / 146'096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
    reading.dayOfMonth = static_cast<int>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1);
    reading.month = static_cast<int>(monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9);
    reading.year = yearOfEra + era * 400 + (reading.month <= 2 ? 1 : 0);
    return reading;
}

std::optional<Date> Calendar::earliest(CalendarDay day, std::int64_t minute) const {
    constexpr auto farthestDay = static_cast<CalendarDay>(farthest) / secondsPerDay;
    if (day < -farthestDay || day > farthestDay) return std::nullopt;
    const auto reading = static_cast<double>(day * secondsPerDay + minute * secondsPerMinute);
    double start = reading - static_cast<double>(largestOffset);
    while (true) {
        const double moment = std::max(start, reading - static_cast<double>(zone_->offset(start)));
        const auto change = zone_->nextChange(start);
        if (!change || moment < *change) return Date{moment};
        start = *change;
    }
}

int Calendar::weekday(CalendarDay day) {
    constexpr CalendarDay thursday = 3;  // 1970-01-01
    const CalendarDay shifted = day + thursday;
    return static_cast<int>(shifted - 7 * floorDivision(shifted, 7));
}

}  // namespace vellark
