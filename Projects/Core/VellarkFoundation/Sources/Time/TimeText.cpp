#include <VellarkFoundation/Time/TimeText.hpp>

#include <array>
#include <chrono>
#include <cstdio>

namespace vellark::TimeText {

std::string millisecondsUTC(timespec moment) {
    using namespace std::chrono;
    const sys_seconds seconds{std::chrono::seconds{moment.tv_sec}};
    const sys_days midnight = floor<days>(seconds);
    const year_month_day date{midnight};
    const hh_mm_ss time{seconds - midnight};
    std::array<char, 64> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), "%04d-%02u-%02uT%02d:%02d:%02d.%03dZ",
                                     static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                                     static_cast<unsigned>(date.day()), static_cast<int>(time.hours().count()),
                                     static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()),
                                     static_cast<int>(moment.tv_nsec / 1'000'000));
    return {buffer.data(), static_cast<std::size_t>(length)};
}

std::string secondsWithMicroseconds(timespec moment) {
    std::array<char, 48> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), "%lld.%06ld", static_cast<long long>(moment.tv_sec),
                                     static_cast<long>(moment.tv_nsec / 1000));
    return {buffer.data(), static_cast<std::size_t>(length)};
}

timespec now() {
    timespec moment{};
    clock_gettime(CLOCK_REALTIME, &moment);
    return moment;
}

}  // namespace vellark::TimeText
