#pragma once

#include <VellarkFoundation/Records/Enumeration.hpp>
#include <VellarkFoundation/Time/Date.hpp>

#include <cstdint>
#include <optional>
#include <string_view>

namespace vellark {

/// How review is divided into periods: not at all, by days, or by weeks that begin on Monday. A period begins at the
/// user's reset time, which may be past midnight.
enum class ReviewCadence { continuous, daily, weekly };

template <>
inline constexpr auto caseTable<ReviewCadence> = std::to_array<CaseName<ReviewCadence>>({
    {ReviewCadence::continuous, "continuous"},
    {ReviewCadence::daily, "daily"},
    {ReviewCadence::weekly, "weekly"},
});

namespace ReviewCadences {

/// The minute of the day, 0 to 1439, at which a period begins; a value outside counts as midnight.
[[nodiscard]] constexpr std::int64_t resetMinute(std::int64_t resetMinutes) {
    constexpr std::int64_t minutesPerDay = 1440;
    return resetMinutes >= 0 && resetMinutes < minutesPerDay ? resetMinutes : 0;
}

/// The start of the period that holds the moment. On a day whose clock skips the reset time the period starts at the
/// end of the gap, on one that shows it twice at the first time. Nothing for `continuous`, and for a moment that is not
/// finite. The time zone is an IANA name; an unknown one acts as UTC.
[[nodiscard]] std::optional<Date> periodStart(ReviewCadence cadence, Date moment, std::int64_t resetMinutes,
                                              std::string_view timeZone);

}  // namespace ReviewCadences

}  // namespace vellark
