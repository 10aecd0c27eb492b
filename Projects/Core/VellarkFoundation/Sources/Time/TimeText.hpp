#pragma once

#include <time.h>

#include <cstdint>
#include <string>

namespace vellark {

/// Moments as text, in UTC, without locale or time zone data.
namespace TimeText {

/// ISO 8601 with exactly three fraction digits, cut and not rounded: "2026-01-01T00:00:00.123Z".
[[nodiscard]] std::string millisecondsUTC(timespec moment);

/// Seconds since 1970 with exactly six decimals, cut and not rounded: "1767225600.123456".
[[nodiscard]] std::string secondsWithMicroseconds(timespec moment);

/// The system's clock now.
[[nodiscard]] timespec now();

}  // namespace TimeText

}  // namespace vellark
