#include <VellarkDomain/Capture/Rules/CaptureEventTimes.hpp>
#include <VellarkDomain/Capture/Time/PythonISOTimestamp.hpp>
#include <VellarkFoundation/JSON/JSONNumberText.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <unordered_map>

// The same few moments are asked for again and again, once for every record of a library, so that answers are kept.
// The lock covers look-up and insertion, never the reading of a text.

namespace vellark::CaptureRules {

namespace {

constexpr std::size_t maximumEventTimes = 16'384;  // entries; when full, all go at once

class EventTimes {
public:
    // The answer of an earlier call, which may be a refusal; nothing when there is none.
    std::optional<std::optional<double>> find(std::string_view text) {
        const std::scoped_lock lock(mutex_);
        const auto entry = answers_.find(text);
        if (entry == answers_.end()) return std::nullopt;
        return entry->second;
    }

    void insert(std::string_view text, std::optional<double> seconds) {
        const std::scoped_lock lock(mutex_);
        if (answers_.size() >= maximumEventTimes) answers_.clear();
        answers_.insert_or_assign(std::string(text), seconds);
    }

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
    };

    std::mutex mutex_;
    std::unordered_map<std::string, std::optional<double>, Hash, std::equal_to<>> answers_;
};

EventTimes& eventTimes() {
    static EventTimes times;
    return times;
}

std::string withNumericOffsets(std::string_view text) {
    std::string result;
    result.reserve(text.size() + 5);
    for (const char byte : text) {
        if (byte == 'Z') {
            result += "+00:00";
        } else {
            result += byte;
        }
    }
    return result;
}

// Through decimal text, because a division by a million would round a second time.
double seconds(std::int64_t microseconds) {
    constexpr std::uint64_t perSecond = 1'000'000;
    const auto bits = static_cast<std::uint64_t>(microseconds);
    const std::uint64_t magnitude = microseconds < 0 ? 0 - bits : bits;
    const std::string fraction = std::to_string(magnitude % perSecond);
    std::string decimal = microseconds < 0 ? "-" : "";
    decimal += std::to_string(magnitude / perSecond);
    decimal += '.';
    decimal.append(6 - fraction.size(), '0');
    decimal += fraction;
    return JSONNumberText::nearestDouble(decimal);
}

std::optional<double> readSeconds(std::string_view text) {
    const auto microseconds = text.find('Z') == std::string_view::npos
                                  ? PythonISOTimestamp::microseconds(text)
                                  : PythonISOTimestamp::microseconds(withNumericOffsets(text));
    if (!microseconds) return std::nullopt;
    return seconds(*microseconds);
}

}  // namespace

std::optional<double> eventSeconds(std::string_view text) {
    if (!UTF8::isASCII(text)) return readSeconds(text);
    if (const auto known = eventTimes().find(text)) return *known;
    const std::optional<double> answer = readSeconds(text);
    eventTimes().insert(text, answer);
    return answer;
}

}  // namespace vellark::CaptureRules
