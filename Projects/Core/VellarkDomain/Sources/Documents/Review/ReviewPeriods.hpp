#pragma once

#include <VellarkFoundation/Unicode/Calendar.hpp>

#include <cstdint>
#include <optional>

// Shared by the cadences and the schedules.

namespace vellark::ReviewPeriods {

/// Days between the starts of two periods.
inline constexpr CalendarDay dayStep = 1;
inline constexpr CalendarDay weekStep = 7;

/// The day whose period holds the moment: of all days, or with `weekStep` of all Mondays, the last one that has begun
/// at its reset minute. Nothing for a moment that is not finite.
[[nodiscard]] std::optional<CalendarDay> dayOfPeriod(const Calendar& calendar, Date moment, std::int64_t minute,
                                                     CalendarDay step);

}  // namespace vellark::ReviewPeriods
