#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

namespace vellark {

/// Formatters by the text that describes them, made at first need and shared by all threads. A formatter may be null:
/// then ICU could not make it.
template <class Formatter>
class FormatterCache {
public:
    /// Formatters kept at once. Real programs use a handful; a caller that goes through hundreds of locales makes the
    /// cache begin anew, so that it cannot grow without bound.
    static constexpr std::size_t maximumCount = 128;

    template <class Make>
    [[nodiscard]] std::shared_ptr<const Formatter> get(std::string_view description, Make make) {
        const std::scoped_lock held(lock_);
        if (const auto found = formatters_.find(description); found != formatters_.end()) return found->second;
        if (formatters_.size() == maximumCount) formatters_.clear();
        return formatters_.emplace(description, make()).first->second;
    }

private:
    std::mutex lock_;
    std::map<std::string, std::shared_ptr<const Formatter>, std::less<>> formatters_;
};

}  // namespace vellark
