#pragma once

#include <VellarkFoundation/Time/Date.hpp>

#include <cstdint>
#include <string>
#include <string_view>

namespace vellark {

/// Numbers and moments as a locale writes them. `locale` is an ICU identifier such as "ko_KR" or "de-AT"; what ICU
/// cannot read counts as the root locale. Each locale's formats are made once and then shared by all threads.
namespace LocaleFormats {

/// Largest number of fraction digits that ICU writes.
inline constexpr int maximumPrecision = 999;

/// Grouped as the locale groups: "1,234" in English, "1234" and "12.345" in Spanish.
[[nodiscard]] std::string number(std::int64_t value, std::string_view locale);
[[nodiscard]] std::string number(std::uint64_t value, std::string_view locale);

/// With at most six fraction digits.
[[nodiscard]] std::string number(double value, std::string_view locale);

/// With exactly `precision` fraction digits (at least 0, at most `maximumPrecision`), half rounded to even.
[[nodiscard]] std::string decimal(double value, int precision, std::string_view locale);

/// The day in the locale's medium form, in its own calendar: "Jan 2, 2026". The time zone is an identifier such as
/// "Asia/Seoul"; "" is the process's own, and one that ICU does not know counts as UTC. A date that is not finite has
/// no text: "".
[[nodiscard]] std::string date(Date date, std::string_view locale, std::string_view timeZone);

/// The day in medium and the time in short form: "Jan 2, 2026, 3:04 PM".
[[nodiscard]] std::string dateTime(Date date, std::string_view locale, std::string_view timeZone);

enum class TimeUnit { second, minute, hour };

/// How long ago, abbreviated: "5 min. ago"; 0 seconds are "now".
[[nodiscard]] std::string ago(std::int64_t count, TimeUnit unit, std::string_view locale);

}  // namespace LocaleFormats

}  // namespace vellark
