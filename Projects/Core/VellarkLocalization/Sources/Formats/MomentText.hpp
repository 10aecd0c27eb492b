#pragma once

#include <VellarkFoundation/Time/Date.hpp>

#include <cstddef>
#include <optional>
#include <string_view>

namespace vellark {

/// Moments as programs write them.
namespace MomentText {

/// Longest text that is looked at, in bytes.
inline constexpr std::size_t maximumBytes = 128;

/// The moment of a text in the internet's profile of ISO 8601: day, time and offset, all of them, with any number of
/// fraction digits, of which six count.
///
///     parse("2026-01-02T03:04:05Z")
///     parse("2026-01-02T03:04:05.25+09:00"), ("...+0900")
///     parse("2026-01-02"), ("2026-01-02 03:04:05Z"), ("2026-01-02t03:04:05z"), ("2026-02-30T..."), ("...T24:00:00Z"),
///         ("...:60Z")   nothing
///
/// Years are 0001 to 9999, offsets go to 23:59. More than `maximumBytes` give nothing.
[[nodiscard]] std::optional<Date> parse(std::string_view text);

}  // namespace MomentText

}  // namespace vellark
