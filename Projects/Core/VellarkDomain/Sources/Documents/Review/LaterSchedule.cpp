#include <VellarkDomain/Documents/Review/LaterSchedule.hpp>
#include <VellarkDomain/Documents/Review/ReviewCadence.hpp>
#include <VellarkDomain/Documents/Review/ReviewPeriods.hpp>

#include <algorithm>

namespace vellark {

namespace {

LaterSchedule scheduled(std::int64_t step, Date at, std::int64_t resetMinutes, std::string_view timeZone) {
    const Calendar calendar(timeZone);
    const std::int64_t minute = ReviewCadences::resetMinute(resetMinutes);
    const auto day = ReviewPeriods::dayOfPeriod(calendar, at, minute, ReviewPeriods::dayStep);
    if (!day) return {.step = step, .due = at};
    const auto delay = LaterSchedule::delays.at(static_cast<std::size_t>(step));
    return {.step = step, .due = calendar.earliest(*day + delay, minute).value_or(at)};
}

}  // namespace

LaterSchedule LaterSchedule::first(Date at, std::int64_t resetMinutes, std::string_view timeZone) {
    return scheduled(0, at, resetMinutes, timeZone);
}

LaterSchedule LaterSchedule::advanced(Date at, std::int64_t resetMinutes, std::string_view timeZone) const {
    // A stored step may be any number.
    constexpr auto lastStep = static_cast<std::int64_t>(delays.size()) - 1;
    const std::int64_t next = std::max<std::int64_t>(0, std::min(step, lastStep - 1) + 1);
    return scheduled(next, at, resetMinutes, timeZone);
}

std::int64_t LaterSchedule::daysUntilReturn(Date from, std::string_view timeZone) const {
    const Calendar calendar(timeZone);
    const auto dueDay = calendar.day(due);
    const auto fromDay = calendar.day(from);
    return dueDay && fromDay ? *dueDay - *fromDay : 0;
}

}  // namespace vellark
