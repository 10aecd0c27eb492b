#pragma once

#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>
#include <VellarkFoundation/Time/Date.hpp>

#include <optional>
#include <string>
#include <string_view>

// Dates in stored records: ISO 8601 text, never a number. Include this header where a record with a Date is read or
// written; `fields.required("due", schedule.due)` then does the rest.

namespace vellark {

namespace DateCoding {

/// The date in UTC: "2026-01-02T03:04:05Z", with six fraction digits, "…05.250000Z", when the moment, rounded to
/// microseconds, is not a whole second. Nothing for a date that is not finite or lies outside the years 1 to 9999.
[[nodiscard]] std::optional<std::string> text(Date date);

/// The moment of a text in the grammar of PythonISOTimestamp, which asks for a time and an offset; nothing for any
/// other text.
[[nodiscard]] std::optional<Date> date(std::string_view text);

}  // namespace DateCoding

bool decodeValue(JSONNode node, Date& value, DecodingContext& context);
bool encodeValue(EncodingContext& context, const Date& value);

}  // namespace vellark
