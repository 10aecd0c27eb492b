#pragma once

#include <VellarkDomain/Documents/DateCoding.hpp>
#include <VellarkFoundation/Time/Date.hpp>

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <variant>

namespace vellark {

/// When a document that was put off comes back. Each time that it is put off again it stays away longer, up to the last
/// of the delays.
struct LaterSchedule {
    /// Days until a document comes back, by step.
    static constexpr auto delays = std::to_array<std::int64_t>({1, 3, 7});

    std::int64_t step = 0;
    Date due;

    /// A document that has been brought back: due since 1970.
    [[nodiscard]] static LaterSchedule returnedNow() { return {}; }

    /// The schedule of a document that is put off for the first time: due as many days behind the day of the present
    /// review period as the delay says, at the reset time. `resetMinutes` and `timeZone` are those of
    /// ReviewCadences::periodStart. For a moment that no calendar holds, `due` is the moment itself.
    [[nodiscard]] static LaterSchedule first(Date at, std::int64_t resetMinutes, std::string_view timeZone);

    /// The schedule of a document that is put off once more.
    [[nodiscard]] LaterSchedule advanced(Date at, std::int64_t resetMinutes, std::string_view timeZone) const;

    [[nodiscard]] bool isDue(Date at) const { return due <= at; }

    /// Days from the date's day to the day of `due` in the time zone; negative when that lies behind, 0 when no
    /// calendar holds one of the two.
    [[nodiscard]] std::int64_t daysUntilReturn(Date from, std::string_view timeZone) const;

    bool operator==(const LaterSchedule&) const = default;
};

template <class Fields>
void describe(Fields& fields, LaterSchedule& schedule) {
    fields.required("step", schedule.step);
    fields.required("due", schedule.due);
}

/// What becomes of a document's schedule.
struct LaterScheduleChange {
    struct Set {
        LaterSchedule schedule;

        bool operator==(const Set&) const = default;
    };
    struct Clear {
        bool operator==(const Clear&) const = default;
    };

    std::variant<Set, Clear> value;

    [[nodiscard]] static LaterScheduleChange set(const LaterSchedule& schedule) { return {Set{schedule}}; }
    [[nodiscard]] static LaterScheduleChange clear() { return {Clear{}}; }

    /// The change that brings back what was there before.
    [[nodiscard]] static LaterScheduleChange restoring(const std::optional<LaterSchedule>& previous) {
        return previous ? set(*previous) : clear();
    }

    bool operator==(const LaterScheduleChange&) const = default;
};

}  // namespace vellark
