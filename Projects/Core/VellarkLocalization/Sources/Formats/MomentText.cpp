#include <VellarkLocalization/Formats/MomentText.hpp>

#include <chrono>
#include <cstdint>

namespace vellark::MomentText {

namespace {

// Walks the text. Each step gives false, or nothing, when the text goes on otherwise.
class Cursor {
public:
    explicit Cursor(std::string_view text) : text_(text) {}

    [[nodiscard]] bool isAtEnd() const { return text_.empty(); }

    bool take(char wanted) {
        if (!text_.starts_with(wanted)) return false;
        text_.remove_prefix(1);
        return true;
    }

    std::optional<int> digit() {
        if (text_.empty() || text_.front() < '0' || text_.front() > '9') return std::nullopt;
        const int value = text_.front() - '0';
        text_.remove_prefix(1);
        return value;
    }

    bool number(int digitCount, int lowest, int highest, int& value) {
        value = 0;
        for (int index = 0; index < digitCount; ++index) {
            const auto next = digit();
            if (!next) return false;
            value = 10 * value + *next;
        }
        return value >= lowest && value <= highest;
    }

private:
    std::string_view text_;
};

bool readDay(Cursor& cursor, std::chrono::sys_days& day) {
    int year = 0;
    int month = 0;
    int dayOfMonth = 0;
    if (!cursor.number(4, 1, 9999, year) || !cursor.take('-') || !cursor.number(2, 1, 12, month) || !cursor.take('-') ||
        !cursor.number(2, 1, 31, dayOfMonth)) {
        return false;
    }
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                                           std::chrono::day(static_cast<unsigned>(dayOfMonth))};
    day = date;
    return date.ok();
}

bool readFraction(Cursor& cursor, int& microseconds) {
    if (!cursor.take('.')) return true;
    int weight = 100'000;
    auto digit = cursor.digit();
    if (!digit) return false;
    for (; digit; digit = cursor.digit()) {
        microseconds += weight * *digit;
        weight /= 10;
    }
    return true;
}

bool readTime(Cursor& cursor, std::chrono::microseconds& time) {
    int hour = 0;
    int minute = 0;
    int second = 0;
    int microseconds = 0;
    if (!cursor.number(2, 0, 23, hour) || !cursor.take(':') || !cursor.number(2, 0, 59, minute) || !cursor.take(':') ||
        !cursor.number(2, 0, 59, second) || !readFraction(cursor, microseconds)) {
        return false;
    }
    time = std::chrono::hours(hour) + std::chrono::minutes(minute) + std::chrono::seconds(second) +
           std::chrono::microseconds(microseconds);
    return true;
}

bool readOffset(Cursor& cursor, std::chrono::minutes& offset) {
    if (cursor.take('Z')) return true;
    const bool isWest = cursor.take('-');
    if (!isWest && !cursor.take('+')) return false;
    int hour = 0;
    int minute = 0;
    if (!cursor.number(2, 0, 23, hour)) return false;
    cursor.take(':');
    if (!cursor.number(2, 0, 59, minute)) return false;
    offset = (isWest ? -1 : 1) * (std::chrono::hours(hour) + std::chrono::minutes(minute));
    return true;
}

}  // namespace

std::optional<Date> parse(std::string_view text) {
    if (text.size() > maximumBytes) return std::nullopt;
    Cursor cursor(text);
    std::chrono::sys_days day{};
    std::chrono::microseconds time{};
    std::chrono::minutes offset{};
    if (!readDay(cursor, day) || !cursor.take('T') || !readTime(cursor, time) || !readOffset(cursor, offset) ||
        !cursor.isAtEnd()) {
        return std::nullopt;
    }
    const std::chrono::microseconds moment = day.time_since_epoch() + time - offset;
    return Date{static_cast<double>(moment.count()) / 1e6};
}

}  // namespace vellark::MomentText
