#include <VellarkFoundation/Time/TimeText.hpp>

#include <chrono>
#include <cstdint>

namespace vellark::TimeText {

namespace {

// Not printf: its first use costs a short-lived program more than the rest of this file.
void appendPadded(std::string& text, std::int64_t value, std::size_t width) {
    const std::string digits = std::to_string(value);
    if (digits.size() < width) text.append(width - digits.size(), '0');
    text += digits;
}

}  // namespace

std::string millisecondsUTC(timespec moment) {
    using namespace std::chrono;
    const sys_seconds seconds{std::chrono::seconds{moment.tv_sec}};
    const sys_days midnight = floor<days>(seconds);
    const year_month_day date{midnight};
    const hh_mm_ss time{seconds - midnight};
    std::string text;
    appendPadded(text, static_cast<int>(date.year()), 4);
    text += '-';
    appendPadded(text, static_cast<unsigned>(date.month()), 2);
    text += '-';
    appendPadded(text, static_cast<unsigned>(date.day()), 2);
    text += 'T';
    appendPadded(text, time.hours().count(), 2);
    text += ':';
    appendPadded(text, time.minutes().count(), 2);
    text += ':';
    appendPadded(text, time.seconds().count(), 2);
    text += '.';
    appendPadded(text, moment.tv_nsec / 1'000'000, 3);
    return text + 'Z';
}

std::string secondsWithMicroseconds(timespec moment) {
    std::string text = std::to_string(moment.tv_sec) + '.';
    appendPadded(text, moment.tv_nsec / 1000, 6);
    return text;
}

timespec now() {
    timespec moment{};
    clock_gettime(CLOCK_REALTIME, &moment);
    return moment;
}

}  // namespace vellark::TimeText
