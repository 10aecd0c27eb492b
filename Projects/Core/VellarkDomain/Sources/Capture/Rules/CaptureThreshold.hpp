#pragma once

#include <map>
#include <optional>

namespace vellark {

/// Whether the flat policy's switch stands at on; what it does not mention is off.
template <class Key>
[[nodiscard]] bool isOn(const std::map<Key, bool>& switches, const Key& key) {
    const auto entry = switches.find(key);
    return entry != switches.end() && entry->second;
}

/// The latest of the moments from which a file counts, in seconds since 1970.
class CaptureThreshold {
public:
    void add(std::optional<double> moment) {
        if (moment && (!latest_ || *latest_ < *moment)) latest_ = moment;
    }

    template <class Key>
    void add(const std::map<Key, double>& moments, const Key& key) {
        if (const auto entry = moments.find(key); entry != moments.end()) add(entry->second);
    }

    /// True at the threshold itself, too. An unknown moment is never held back.
    [[nodiscard]] bool isReached(std::optional<double> moment) const {
        return !latest_ || !moment || *latest_ <= *moment;
    }

private:
    std::optional<double> latest_;
};

}  // namespace vellark
