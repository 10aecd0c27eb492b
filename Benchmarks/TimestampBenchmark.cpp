// The exact reading of ISO 8601 text beside the C library's strptime and timegm, which read whole seconds and no offset
// but "+hhmm". Before the clock starts, both must have read the same moments.

#include <VellarkDomain/Capture/Time/PythonISOTimestamp.hpp>

#include <benchmark/benchmark.h>
#include <time.h>

#include <array>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

namespace {

constexpr std::size_t textCount = 1'024;

// Moments of one form over many years.
std::vector<std::string> texts(const char* format) {
    std::vector<std::string> result;
    for (std::size_t index = 0; index < textCount; ++index) {
        const time_t seconds = static_cast<time_t>(index) * 1'234'567;
        tm fields{};
        gmtime_r(&seconds, &fields);
        std::array<char, 64> buffer{};
        strftime(buffer.data(), buffer.size(), format, &fields);
        result.emplace_back(buffer.data());
    }
    return result;
}

std::optional<std::int64_t> readByLibrary(const std::string& text) {
    tm fields{};
    if (strptime(text.c_str(), "%Y-%m-%dT%H:%M:%S%z", &fields) == nullptr) return std::nullopt;
    const long offset = fields.tm_gmtoff;
    return (timegm(&fields) - offset) * 1'000'000;
}

template <auto read>
void run(benchmark::State& state, const char* format) {
    const std::vector<std::string> inputs = texts(format);
    std::size_t index = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(read(inputs[index++ % textCount]));
    }
    state.SetItemsProcessed(state.iterations());
}

std::optional<std::int64_t> readByUs(const std::string& text) {
    return vellark::PythonISOTimestamp::microseconds(text);
}

void checkAgreement() {
    for (const std::string& text : texts("%Y-%m-%dT%H:%M:%S+00:00")) {
        if (readByUs(text) == readByLibrary(text)) continue;
        std::cerr << "readings differ: " << text << "\n";
        std::exit(1);
    }
}

}  // namespace

int main(int count, char** arguments) {
    checkAgreement();
    benchmark::RegisterBenchmark("ours/seconds", run<readByUs>, "%Y-%m-%dT%H:%M:%S+00:00");
    benchmark::RegisterBenchmark("peer/strptime", run<readByLibrary>, "%Y-%m-%dT%H:%M:%S+00:00");
    benchmark::RegisterBenchmark("ours/microseconds", run<readByUs>, "%Y-%m-%dT%H:%M:%S.123456+09:00");
    benchmark::RegisterBenchmark("ours/milliseconds-Z", run<readByUs>, "%Y-%m-%dT%H:%M:%S.123Z");
    benchmark::RegisterBenchmark("ours/week", run<readByUs>, "%G-W%V-%u %H%M%SZ");
    benchmark::RegisterBenchmark("ours/refused", run<readByUs>, "%Y-%m-%dT%H:%M:%S");
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
