#pragma once

#include <VellarkFoundation/Time/Date.hpp>

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace vellark {

/// A day of the calendar, counted from 1970-01-01; 1970-01-01 is 0. Days before the Gregorian reform are counted as if
/// it had always held, as ISO 8601 does.
using CalendarDay = std::int64_t;

/// Days and times of day in one time zone, with the zone's real history: days of 23 and 25 hours, gaps, repeated hours
/// and days that never were.
///
///     const Calendar seoul("Asia/Seoul");
///     seoul.day(Date{0})             0: nine in the morning there
///     seoul.earliest(0, 30)          Date{-30'600}: half past midnight of that day
class Calendar {
public:
    /// What the clock and the calendar on the wall show.
    struct Reading {
        CalendarDay day = 0;
        std::int64_t year = 1970;
        int month = 1;       ///< 1 to 12
        int dayOfMonth = 1;  ///< 1 to 31
        int minute = 0;      ///< of the day, 0 to 1439
    };

    /// Of an IANA name such as "Europe/Berlin"; a name that is unknown acts as UTC.
    explicit Calendar(std::string_view timeZone);
    Calendar(Calendar&&) noexcept;
    Calendar& operator=(Calendar&&) noexcept;
    ~Calendar();

    /// The day that the clock shows. Nothing for a date that is not finite or is millions of years away.
    [[nodiscard]] std::optional<CalendarDay> day(Date date) const;

    /// What the wall shows at the moment. Nothing where `day` gives nothing.
    [[nodiscard]] std::optional<Reading> reading(Date date) const;

    /// The first moment at which the clock shows the minute of the day, or anything later: a time in a gap gives the
    /// gap's end, a repeated one its first pass. `minute` counts from midnight, 0 to 1439. Nothing for a day that is
    /// millions of years away.
    [[nodiscard]] std::optional<Date> earliest(CalendarDay day, std::int64_t minute) const;

    /// 0 for Monday to 6 for Sunday.
    [[nodiscard]] static int weekday(CalendarDay day);

private:
    struct Zone;

    std::unique_ptr<const Zone> zone_;
};

}  // namespace vellark
