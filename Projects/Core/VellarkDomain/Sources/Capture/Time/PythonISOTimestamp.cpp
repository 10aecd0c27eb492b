#include <VellarkDomain/Capture/Time/PythonISOTimestamp.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <array>
#include <cstddef>

// The date's form is told by its punctuation alone, which fixes where the separator stands; each part is then read by
// position. Days are counted from 0001-01-01, which is day 1, so that week dates and calendar dates meet in one number
// and the hour 24 is the next number.

namespace vellark::PythonISOTimestamp {

namespace {

constexpr std::int64_t secondsPerDay = 86'400;
constexpr std::int64_t microsecondsPerSecond = 1'000'000;
constexpr std::int64_t ordinalOf1970 = 719'163;
constexpr std::int64_t lastOrdinal = 3'652'059;  // 9999-12-31

constexpr bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

// The number that `count` digits at the offset make; -1 when one of them is none. The caller sees to the bounds.
constexpr int digits(std::string_view text, std::size_t offset, std::size_t count) {
    int value = 0;
    bool valid = true;
    for (std::size_t index = offset; index < offset + count; ++index) {
        valid &= isDigit(text[index]);
        value = value * 10 + (text[index] - '0');
    }
    return valid ? value : -1;
}

constexpr bool isLeapYear(int year) {
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

constexpr int daysInMonth(int year, int month) {
    constexpr std::array<int, 13> days = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && isLeapYear(year) ? 29 : days[static_cast<std::size_t>(month)];
}

constexpr int daysBeforeYear(int year) {
    const int past = year - 1;
    return past * 365 + past / 4 - past / 100 + past / 400;
}

constexpr int ordinal(int year, int month, int day) {
    constexpr std::array<int, 13> before = {0, 0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
    const int leapDay = month > 2 && isLeapYear(year) ? 1 : 0;
    return daysBeforeYear(year) + before[static_cast<std::size_t>(month)] + leapDay + day;
}

// Monday of the year's first week, which is the one that holds January 4. Day 1 was a Monday.
constexpr int firstMonday(int year) {
    const int fourth = ordinal(year, 1, 4);
    return fourth - (fourth - 1) % 7;
}

// Byte offset of the separator, which is where the date ends. Where a week date leaves it open whether a digit or a
// hyphen belongs to the date, the choice is CPython's.
std::size_t separatorLocation(std::string_view text) {
    const auto isDigitAt = [&](std::size_t offset) { return offset < text.size() && isDigit(text[offset]); };
    if (text[4] == '-') {
        if (text[5] != 'W') return 10;
        const bool hasDay = text.size() > 8 && text[8] == '-' && !isDigitAt(10);
        return hasDay ? 10 : 8;
    }
    if (text[4] != 'W') return 8;
    std::size_t end = 7;
    while (isDigitAt(end)) {
        ++end;
    }
    if (end < 9) return end;
    return end % 2 == 0 ? 7 : 8;
}

std::optional<int> calendarDate(std::string_view date, int year) {
    const bool extended = date.size() == 10;
    if (extended && date[7] != '-') return std::nullopt;
    const int month = digits(date, extended ? 5 : 4, 2);
    const int day = digits(date, extended ? 8 : 6, 2);
    if (month < 1 || month > 12 || day < 1 || day > daysInMonth(year, month)) return std::nullopt;
    return ordinal(year, month, day);
}

std::optional<int> isoWeekDate(std::string_view date, int year) {
    const bool extended = date[4] == '-';
    const std::size_t weekOffset = extended ? 6 : 5;
    std::size_t dayOffset = weekOffset + 2;
    int day = 1;
    if (date.size() > dayOffset) {
        if (extended && date[dayOffset++] != '-') return std::nullopt;
        day = digits(date, dayOffset, 1);
    }
    const int week = digits(date, weekOffset, 2);
    const int monday = firstMonday(year);
    const int weeks = (firstMonday(year + 1) - monday) / 7;
    if (week < 1 || week > weeks || day < 1 || day > 7) return std::nullopt;
    return monday + (week - 1) * 7 + day - 1;
}

// The day's ordinal, for a date that ends where `separatorLocation` says.
std::optional<int> readDate(std::string_view date) {
    const int year = digits(date, 0, 4);
    if (year < 1) return std::nullopt;
    const bool isWeek = date[4] == 'W' || (date[4] == '-' && date[5] == 'W');
    return isWeek ? isoWeekDate(date, year) : calendarDate(date, year);
}

struct Clock {
    int hour = 0;
    int minute = 0;
    int second = 0;
    int microsecond = 0;

    [[nodiscard]] std::int64_t microseconds() const {
        return ((hour * 60LL + minute) * 60 + second) * microsecondsPerSecond + microsecond;
    }
};

// Reads text from the front; every step leaves `rest` behind what it read, and answers false on what it cannot read.
struct ClockReader {
    std::string_view rest;

    bool readPair(int& value) {
        if (rest.size() < 2) return false;
        value = digits(rest, 0, 2);
        rest.remove_prefix(2);
        return value >= 0;
    }

    bool startsWithDigit() const { return !rest.empty() && isDigit(rest.front()); }

    bool skip(char byte) {
        if (rest.empty() || rest.front() != byte) return false;
        rest.remove_prefix(1);
        return true;
    }

    bool readFraction(int& microsecond) {
        if (!skip('.') && !skip(',')) return true;
        if (!startsWithDigit()) return false;
        int scale = 100'000;
        for (; startsWithDigit(); rest.remove_prefix(1)) {
            microsecond += (rest.front() - '0') * scale;
            scale /= 10;
        }
        return true;
    }

    bool read(Clock& clock) {
        if (!readPair(clock.hour)) return false;
        const bool extended = skip(':');
        if (!extended && !startsWithDigit()) return true;
        if (!readPair(clock.minute)) return false;
        if (extended ? !skip(':') : !startsWithDigit()) return true;
        return readPair(clock.second) && readFraction(clock.microsecond);
    }
};

// Days that the time of day adds to its date, 0 or 1; nothing for a time that no clock shows.
std::optional<int> daysOf(const Clock& time) {
    if (time.minute > 59 || time.second > 59 || time.hour > 24) return std::nullopt;
    if (time.hour < 24) return 0;
    if (time.minute != 0 || time.second != 0 || time.microsecond != 0) return std::nullopt;
    return 1;
}

// The offset from UTC in microseconds. It must take up the text to its end.
std::optional<std::int64_t> readOffset(ClockReader reader) {
    if (reader.rest == "Z") return 0;
    const bool negative = reader.skip('-');
    if (!negative && !reader.skip('+')) return std::nullopt;
    Clock offset;
    if (!reader.read(offset) || !reader.rest.empty()) return std::nullopt;
    const std::int64_t distance = offset.microseconds();
    if (distance >= secondsPerDay * microsecondsPerSecond) return std::nullopt;
    return negative ? -distance : distance;
}

}  // namespace

std::optional<std::int64_t> microseconds(std::string_view text) {
    constexpr std::size_t shortest = 11;  // "2026W01T00Z"
    if (text.size() < shortest) return std::nullopt;
    const std::size_t separator = separatorLocation(text);
    const std::optional<int> day = readDate(text.substr(0, separator));
    if (!day) return std::nullopt;

    ClockReader reader{text.substr(separator + UTF8::decode(text, separator).byteCount)};
    Clock time;
    if (!reader.read(time)) return std::nullopt;
    const std::optional<int> daysAhead = daysOf(time);
    const std::optional<std::int64_t> offset = readOffset(reader);
    if (!daysAhead || !offset || *day + *daysAhead > lastOrdinal) return std::nullopt;

    const std::int64_t days = *day - ordinalOf1970;
    return days * secondsPerDay * microsecondsPerSecond + time.microseconds() - *offset;
}

}  // namespace vellark::PythonISOTimestamp
