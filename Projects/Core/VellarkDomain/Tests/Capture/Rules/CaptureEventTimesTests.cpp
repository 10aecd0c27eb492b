#include <VellarkDomain/Capture/Rules/CaptureEventTimes.hpp>

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

namespace vellark {
namespace {

using CaptureRules::eventSeconds;

TEST(CaptureEventTimes, reads) {
    struct Row {
        const char* text;
        std::optional<double> seconds;
    };
    const Row rows[] = {
        {"2026-01-01T00:00:00Z", 1767225600.0},
        {"2026-01-01T00:00:00+00:00", 1767225600.0},
        {"2026-01-01T00:00:00.123456Z", 1767225600.123456},
        {"2026-01-01T00:00:00.1234569Z", 1767225600.123456},
        {"1970-01-01T00:00Z", 0.0},
        {"1969-12-31T23:59:59.999999Z", -0.000001},
        {"1969-12-31T23:59:58.5Z", -1.5},
        {"0001-01-01T00:00Z", -62135596800.0},
        {"9999-12-31T23:59:59.999999Z", 253402300799.999999},
        {"2026-01-01\xED\x95\x9C"
         "00:00Z",
         1767225600.0},
        {"2026-01-01Z00:00Z", std::nullopt},  // the first one is an offset too
        {"2026-01-01Z00:00+00:00", std::nullopt},
        {"2026-01-01T00:00:00", std::nullopt},
        {"2026-01-01T00:00:00z", std::nullopt},
        {"Z", std::nullopt},
        {"", std::nullopt},
        {"yesterday \xED\x95\x9C", std::nullopt},
    };
    for (int round = 0; round < 2; ++round) {  // read first, then remembered
        for (const Row& row : rows)
            EXPECT_EQ(eventSeconds(row.text), row.seconds) << row.text;
    }
}

std::string momentText(int index) {
    std::string fraction = std::to_string(index);
    fraction.insert(0, 6 - fraction.size(), '0');
    return "1970-01-01T00:00:01." + fraction + "Z";
}

// More moments than are remembered, so that answers are forgotten while others are asked for.
TEST(CaptureEventTimes, answersAlikeWhenForgotten) {
    constexpr int count = 20'000;
    const auto ask = [] {
        int wrong = 0;
        for (int index = 0; index < count; ++index) {
            const double expected = std::stod("1." + momentText(index).substr(20, 6));
            if (eventSeconds(momentText(index)) != expected) ++wrong;
            if (eventSeconds(std::to_string(index))) ++wrong;
        }
        EXPECT_EQ(wrong, 0);
    };
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 3; ++thread)
        threads.emplace_back(ask);
    for (std::thread& thread : threads)
        thread.join();
}

}  // namespace
}  // namespace vellark
