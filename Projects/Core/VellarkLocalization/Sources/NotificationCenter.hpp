#pragma once

#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// Observers by the name of what they wait for. Safe to use from any thread, also from within a callback.
class NotificationCenter {
public:
    using Callback = std::function<void()>;
    enum class Observer : std::uint64_t {};

    /// The center on which this library posts.
    [[nodiscard]] static NotificationCenter& shared();

    /// Calls back at each post of the name from now on, until the observer is removed.
    Observer addObserver(std::string_view name, Callback callback);

    /// A post that runs on another thread may still make its call; no later one does. An unknown observer is ignored.
    void removeObserver(Observer observer);

    /// Calls the observers of the name on this thread, in the order in which they were added, with no lock held. Those
    /// that are added meanwhile wait for the next post; those that are removed before their turn are not called.
    void post(std::string_view name);

private:
    struct Registration {
        Observer observer;
        std::string name;
        Callback callback;
    };

    [[nodiscard]] std::vector<Observer> observersOf(std::string_view name);
    [[nodiscard]] Callback callbackOf(Observer observer);

    std::mutex lock_;
    std::uint64_t addedCount_ = 0;
    std::vector<Registration> registrations_;
};

}  // namespace vellark
