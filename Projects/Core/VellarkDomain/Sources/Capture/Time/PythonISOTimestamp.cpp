#include <VellarkDomain/Capture/Time/PythonISOTimestamp.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <array>
#include <bit>
#include <cstddef>
#include <cstring>

// The date's form is told by its punctuation alone, which fixes where the separator stands; each part is then read by
// position. Days are counted from 0001-01-01, which is day 1, so that week dates and calendar dates meet in one number
// and the hour 24 is the next number.
//
// Nearly all moments are written YYYY-MM-DD?HH:MM:SS. That form is read in three words of eight bytes, digits and
// punctuation tested together; only what is not of that form takes the long way, which knows them all.

namespace vellark::PythonISOTimestamp {

namespace {

constexpr std::int64_t secondsPerDay = 86'400;
constexpr std::int64_t microsecondsPerSecond = 1'000'000;
constexpr int ordinalOf1970 = 719'163;
constexpr int noDay = 0;
constexpr int lastDay = 3'652'059;  // 9999-12-31

constexpr std::array<int, 6> powersOf10 = {1, 10, 100, 1'000, 10'000, 100'000};

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

// Moments come in no order that a processor could foresee, so the calendar is arithmetic with few branches, and a
// missing value is a value of its own until the end.

// A year that 25 divides is a leap year when 16 divides it, any other when 4 does.
constexpr bool isLeapYear(int year) {
    const int rest = year % 25 == 0 ? 15 : 3;
    return (year & rest) == 0;
}

constexpr int daysBeforeYear(int year) {
    const auto past = static_cast<unsigned>(year - 1);
    const unsigned centuries = past / 100;
    return static_cast<int>(past * 365 + past / 4 - centuries + centuries / 4);
}

// Days of each month, the leap day left out.
constexpr std::array<int, 13> monthLengths = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

// Days from the start of the year to the month for January and February, from its end back for the others: so the leap
// day never lies between.
constexpr std::array<int, 13> daysToMonth = [] {
    std::array<int, 13> days{};
    for (std::size_t month = 2; month <= 12; ++month)
        days[month] = days[month - 1] + monthLengths[month - 1] - (month == 3 ? 365 : 0);
    return days;
}();

constexpr bool isInMonth(int year, int month, int day) {
    if (day <= 28) return day >= 1;
    const bool hasLeapDay = month == 2 && isLeapYear(year);
    return day <= monthLengths[static_cast<std::size_t>(month)] + (hasLeapDay ? 1 : 0);
}

constexpr bool isCalendarDay(int year, int month, int day) {
    return year >= 1 && month >= 1 && month <= 12 && isInMonth(year, month, day);
}

// The ordinal of a day that the calendar has.
constexpr int ordinal(int year, int month, int day) {
    return daysBeforeYear(month <= 2 ? year : year + 1) + daysToMonth[static_cast<std::size_t>(month)] + day;
}

// Monday of the year's first week, which is the one that holds January 4. Day 1 was a Monday.
constexpr int firstMonday(int year) {
    const int fourth = daysBeforeYear(year) + 4;
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

int calendarDate(std::string_view date, int year) {
    const bool extended = date.size() == 10;
    if (extended && date[7] != '-') return noDay;
    const int month = digits(date, extended ? 5 : 4, 2);
    const int day = digits(date, extended ? 8 : 6, 2);
    return isCalendarDay(year, month, day) ? ordinal(year, month, day) : noDay;
}

int isoWeekDate(std::string_view date, int year) {
    const bool extended = date[4] == '-';
    const std::size_t weekOffset = extended ? 6 : 5;
    std::size_t dayOffset = weekOffset + 2;
    int day = 1;
    if (date.size() > dayOffset) {
        if (extended && date[dayOffset++] != '-') return noDay;
        day = digits(date, dayOffset, 1);
    }
    const int week = digits(date, weekOffset, 2);
    const int monday = firstMonday(year);
    const int weeks = (firstMonday(year + 1) - monday) / 7;
    if (week < 1 || week > weeks || day < 1 || day > 7) return noDay;
    return monday + (week - 1) * 7 + day - 1;
}

// The day's ordinal, for a date that ends where `separatorLocation` says.
int readDate(std::string_view date) {
    const int year = digits(date, 0, 4);
    if (year < 1) return noDay;
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
        std::size_t missing = 6;
        for (; startsWithDigit(); rest.remove_prefix(1)) {
            if (missing == 0) continue;
            microsecond = microsecond * 10 + (rest.front() - '0');
            --missing;
        }
        microsecond *= powersOf10[missing];
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

// Eight characters of which some are digits, as a word: the byte of the first one is the lowest. A digit's byte holds
// its value, any other is 0.
class DigitWord {
public:
    // What each of the eight characters must be: a digit that is at most the one given, any ASCII character for '?', or
    // else the character itself.
    struct Pattern {
        std::uint64_t expected = 0;
        std::uint64_t overflow = 0;  // added to what differs from `expected`, reaches 0x10 in a byte that does not fit
        std::uint64_t kept = 0;      // bytes that are digits
        std::uint64_t open = 0;      // bits that may differ at will

        consteval explicit Pattern(std::string_view form) {
            for (std::size_t index = 0; index < 8; ++index) {
                const std::uint64_t at = 8 * index;
                const auto highest = static_cast<unsigned char>(form[index]);
                if (isDigit(form[index])) {
                    expected |= 0x30ULL << at;
                    overflow |= (0x3FULL - highest) << at;
                    kept |= 0xFFULL << at;
                } else if (highest == '?') {
                    open |= 0x7FULL << at;
                } else {
                    expected |= static_cast<std::uint64_t>(highest) << at;
                    overflow |= 0x0FULL << at;
                }
            }
        }
    };

    DigitWord(const char* characters, const Pattern& pattern) {
        std::uint64_t word = 0;
        std::memcpy(&word, characters, sizeof word);
        const std::uint64_t difference = (word ^ pattern.expected) & ~pattern.open;
        constexpr std::uint64_t highNibbles = 0xF0F0F0F0F0F0F0F0;
        misfit_ = (difference | (difference + pattern.overflow)) & highNibbles;
        const std::uint64_t values = difference & pattern.kept;
        pairs_ = values * 10 + (values >> 8);
    }

    // Not 0 when the characters do not fit the pattern.
    [[nodiscard]] std::uint64_t misfit() const { return misfit_; }

    // The number that the digits at the index and behind it make.
    [[nodiscard]] int pair(int index) const { return static_cast<int>((pairs_ >> (8 * index)) & 0xFF); }

private:
    std::uint64_t misfit_ = 0;
    std::uint64_t pairs_ = 0;
};

struct Moment {
    int day = noDay;
    Clock time;
    std::string_view offset;
};

bool readAnyForm(std::string_view text, Moment& moment) {
    constexpr std::size_t shortest = 11;  // "2026W01T00Z"
    if (text.size() < shortest) return false;
    const std::size_t separator = separatorLocation(text);
    ClockReader reader{text.substr(separator + UTF8::decode(text, separator).byteCount)};
    moment.time = {};
    if (!reader.read(moment.time)) return false;
    moment.day = readDate(text.substr(0, separator));
    moment.offset = reader.rest;
    return true;
}

// True for a time of day on the day, hour 24 being its end. The last day has no such end, as no day follows it.
bool isOnDay(const Clock& time, int day) {
    if (time.minute > 59 || time.second > 59 || time.hour > 24) return false;
    if (time.hour < 24) return true;
    return time.minute == 0 && time.second == 0 && time.microsecond == 0 && day < lastDay;
}

bool isUTC(std::string_view offset) {
    return offset == "Z" || offset == "+00:00";
}

// Reads the offset from UTC in microseconds, which must take up the text to its end.
bool readOffset(std::string_view text, std::int64_t& offset) {
    ClockReader reader{text};
    const bool negative = reader.skip('-');
    if (!negative && !reader.skip('+')) return false;
    Clock clock;
    if (!reader.read(clock) || !reader.rest.empty()) return false;
    offset = negative ? -clock.microseconds() : clock.microseconds();
    return clock.microseconds() < secondsPerDay * microsecondsPerSecond;
}

std::int64_t utcMicroseconds(int day, const Clock& time, std::int64_t offset) {
    const std::int64_t days = day - ordinalOf1970;
    return days * secondsPerDay * microsecondsPerSecond + time.microseconds() - offset;
}

// Apart from the common form, which needs no stack without it.
[[gnu::noinline]] bool readFractionAndOffset(std::string_view text, int& microsecond, std::int64_t& offset) {
    ClockReader reader{text};
    if (!reader.readFraction(microsecond)) return false;
    return isUTC(reader.rest) || readOffset(reader.rest, offset);
}

[[gnu::noinline]] bool readLongWay(std::string_view text, std::int64_t& value) {
    Moment moment;
    std::int64_t offset = 0;
    if (!readAnyForm(text, moment) || moment.day == noDay || moment.day > lastDay) return false;
    if (!isOnDay(moment.time, moment.day)) return false;
    if (!isUTC(moment.offset) && !readOffset(moment.offset, offset)) return false;
    value = utcMicroseconds(moment.day, moment.time, offset);
    return true;
}

// Reads the common form; false when the text is not of it, or holds what needs a closer look.
bool readCommonForm(std::string_view text, std::int64_t& value) {
    constexpr std::size_t length = 19;
    if (std::endian::native != std::endian::little || text.size() <= length) return false;
    static constexpr DigitWord::Pattern datePattern("9999-19-");
    static constexpr DigitWord::Pattern middlePattern("39?29:59");
    static constexpr DigitWord::Pattern endPattern("9:59:59?");
    const DigitWord date(text.data(), datePattern);
    const DigitWord middle(text.data() + 8, middlePattern);
    const DigitWord end(text.data() + 12, endPattern);
    if ((date.misfit() | middle.misfit() | end.misfit()) != 0) return false;

    const int year = date.pair(0) * 100 + date.pair(2);
    const int month = date.pair(5);
    const int day = middle.pair(0);
    Clock time{middle.pair(3), middle.pair(6), end.pair(5), 0};
    if (time.hour > 23 || !isCalendarDay(year, month, day)) return false;

    const std::string_view rest = text.substr(length);
    std::int64_t offset = 0;
    if (!isUTC(rest) && !readFractionAndOffset(rest, time.microsecond, offset)) return false;
    value = utcMicroseconds(ordinal(year, month, day), time, offset);
    return true;
}

}  // namespace

bool readMicroseconds(std::string_view text, std::int64_t& value) {
    return readCommonForm(text, value) || readLongWay(text, value);
}

}  // namespace vellark::PythonISOTimestamp
