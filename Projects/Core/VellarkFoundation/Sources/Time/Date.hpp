#pragma once

#include <compare>
#include <cstddef>
#include <functional>

namespace vellark {

/// A moment, as seconds since the beginning of 1970 in UTC; leap seconds are not counted. A double tells microseconds
/// apart for all years that people write. It may be infinite or no number at all: whoever writes or shows a date says
/// what becomes of those.
struct Date {
    double secondsSince1970 = 0;

    auto operator<=>(const Date&) const = default;
};

}  // namespace vellark

template <>
struct std::hash<vellark::Date> {
    std::size_t operator()(const vellark::Date& date) const noexcept {
        return std::hash<double>()(date.secondsSince1970);
    }
};
