#pragma once

#include <compare>

namespace vellark {

/// A moment, as seconds since the beginning of 1970 in UTC; leap seconds are not counted. A double tells microseconds
/// apart for all years that people write. It may be infinite or no number at all: whoever writes or shows a date says
/// what becomes of those.
struct Date {
    double secondsSince1970 = 0;

    auto operator<=>(const Date&) const = default;
};

}  // namespace vellark
