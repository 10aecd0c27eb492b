#include <VellarkDomain/Documents/Review/ReviewCadence.hpp>
#include <VellarkDomain/Documents/Review/ReviewPeriods.hpp>

namespace vellark {

std::optional<CalendarDay> ReviewPeriods::dayOfPeriod(const Calendar& calendar, Date moment, std::int64_t minute,
                                                      CalendarDay step) {
    const auto today = calendar.day(moment);
    if (!today) return std::nullopt;
    // A clock that was put back may have shown a later day already: by an hour, or once in a place's history by a day.
    constexpr CalendarDay daysAhead = 2;
    CalendarDay day = *today + daysAhead;
    if (step == weekStep) day -= Calendar::weekday(day);
    while (true) {
        const auto start = calendar.earliest(day, minute);
        if (!start) return std::nullopt;
        if (*start <= moment) return day;
        day -= step;
    }
}

std::optional<Date> ReviewCadences::periodStart(ReviewCadence cadence, Date moment, std::int64_t resetMinutes,
                                                std::string_view timeZone) {
    if (cadence == ReviewCadence::continuous) return std::nullopt;
    const Calendar calendar(timeZone);
    const std::int64_t minute = resetMinute(resetMinutes);
    const CalendarDay step = cadence == ReviewCadence::weekly ? ReviewPeriods::weekStep : ReviewPeriods::dayStep;
    const auto day = ReviewPeriods::dayOfPeriod(calendar, moment, minute, step);
    return day ? calendar.earliest(*day, minute) : std::nullopt;
}

}  // namespace vellark
