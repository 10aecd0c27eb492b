#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vellark {

/// Exact reading of ISO 8601 text: the grammar of Python's `datetime.fromisoformat`, with a time and a UTC offset
/// required. No locale, no formatter, no allocation.
///
///     date     YYYY-MM-DD  YYYY-Www-D  YYYY-Www  YYYYMMDD  YYYYWwwD  YYYYWww
///     between  one character, whichever
///     time     HH  HH:MM  HH:MM:SS  HHMM  HHMMSS; behind seconds a fraction, "." or "," and digits
///     offset   "Z", or "+" or "-" and the same forms as a time
///
/// Digits are ASCII, and nothing may stand before, between or behind the parts.
namespace PythonISOTimestamp {

/// `microseconds` into a variable, which stays as it is for a text that is refused. True when the text was read.
[[nodiscard]] bool readMicroseconds(std::string_view text, std::int64_t& value);

/// Microseconds since 1970-01-01T00:00:00 UTC. A finer fraction is cut after six digits. "24:00" is midnight at the end
/// of its day; minutes and seconds of an offset may exceed 59 as long as the whole offset is under a day. Any other
/// text gives nothing:
///
///     microseconds("2026-01-01T00:00:00+00:00")    1767225600000000
///     microseconds("2026-W01-4 00Z")               1767225600000000
///     microseconds("2026-01-01T00:00:00")          nothing, for want of an offset
///     microseconds("2026-02-29T00:00Z")            nothing
[[nodiscard]] inline std::optional<std::int64_t> microseconds(std::string_view text) {
    std::int64_t value = 0;
    if (!readMicroseconds(text, value)) return std::nullopt;
    return value;
}

}  // namespace PythonISOTimestamp

}  // namespace vellark
