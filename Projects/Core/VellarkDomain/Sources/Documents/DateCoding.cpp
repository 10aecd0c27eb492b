#include <VellarkDomain/Capture/Time/PythonISOTimestamp.hpp>
#include <VellarkDomain/Documents/DateCoding.hpp>

#include <array>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>

namespace vellark {

namespace {

constexpr std::int64_t microsecondsPerSecond = 1'000'000;
constexpr std::int64_t secondsPerDay = 86'400;

// 0001-01-01T00:00:00Z, and the first second behind the year 9999.
constexpr std::int64_t firstSecond = -62'135'596'800;
constexpr std::int64_t endSecond = 253'402'300'800;

constexpr std::int64_t exactInDouble = std::int64_t{1} << 53;

double seconds(std::int64_t microseconds) {
    constexpr double perSecond = microsecondsPerSecond;
    if (microseconds >= -exactInDouble && microseconds <= exactInDouble) {
        return static_cast<double>(microseconds) / perSecond;
    }
    const std::int64_t whole = microseconds / microsecondsPerSecond;
    return static_cast<double>(whole) + static_cast<double>(microseconds % microsecondsPerSecond) / perSecond;
}

}  // namespace

std::optional<std::string> DateCoding::text(Date date) {
    const double floor = std::floor(date.secondsSince1970);
    if (!(floor >= static_cast<double>(firstSecond) && floor < static_cast<double>(endSecond))) return std::nullopt;
    auto second = static_cast<std::int64_t>(floor);
    auto microsecond = static_cast<std::int64_t>(std::nearbyint((date.secondsSince1970 - floor) * 1e6));
    if (microsecond == microsecondsPerSecond) {
        microsecond = 0;
        ++second;
    }
    if (second == endSecond) return std::nullopt;

    const std::int64_t sinceFirst = second - firstSecond;
    const auto ofDay = static_cast<int>(sinceFirst % secondsPerDay);
    const std::chrono::days days((second - ofDay) / secondsPerDay);
    const std::chrono::year_month_day day{std::chrono::sys_days(days)};
    std::array<char, 48> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), "%04d-%02u-%02uT%02d:%02d:%02d",
                                     static_cast<int>(day.year()), static_cast<unsigned>(day.month()),
                                     static_cast<unsigned>(day.day()), ofDay / 3600, ofDay / 60 % 60, ofDay % 60);
    std::string result(buffer.data(), static_cast<std::size_t>(length));
    if (microsecond != 0) {
        const std::string digits = std::to_string(microsecond);
        result += "." + std::string(6 - digits.size(), '0') + digits;
    }
    return result + "Z";
}

std::optional<Date> DateCoding::date(std::string_view text) {
    const auto microseconds = PythonISOTimestamp::microseconds(text);
    if (!microseconds) return std::nullopt;
    return Date{seconds(*microseconds)};
}

bool decodeValue(JSONNode node, Date& value, DecodingContext& context) {
    const auto text = node.string();
    if (!text) return context.fail(DecodingError::Reason::wrongType);
    const auto read = DateCoding::date(*text);
    if (!read) return context.fail(DecodingError::Reason::unknownText);
    value = *read;
    return true;
}

bool encodeValue(EncodingContext& context, const Date& value) {
    const auto text = DateCoding::text(value);
    if (text) context.json.string(*text);
    return text.has_value();
}

}  // namespace vellark
