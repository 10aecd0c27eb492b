#include <VellarkLocalization/NotificationCenter.hpp>

#include <algorithm>
#include <utility>

namespace vellark {

NotificationCenter& NotificationCenter::shared() {
    static NotificationCenter center;
    return center;
}

NotificationCenter::Observer NotificationCenter::addObserver(std::string_view name, Callback callback) {
    const std::scoped_lock held(lock_);
    const Observer observer{++addedCount_};
    registrations_.push_back({observer, std::string(name), std::move(callback)});
    return observer;
}

void NotificationCenter::removeObserver(Observer observer) {
    Callback removed;  // outlives the lock: what a callback owns may call back when it goes
    const std::scoped_lock held(lock_);
    const auto found = std::ranges::find(registrations_, observer, &Registration::observer);
    if (found == registrations_.end()) return;
    removed = std::move(found->callback);
    registrations_.erase(found);
}

std::vector<NotificationCenter::Observer> NotificationCenter::observersOf(std::string_view name) {
    const std::scoped_lock held(lock_);
    std::vector<Observer> observers;
    for (const Registration& registration : registrations_) {
        if (registration.name == name) observers.push_back(registration.observer);
    }
    return observers;
}

NotificationCenter::Callback NotificationCenter::callbackOf(Observer observer) {
    const std::scoped_lock held(lock_);
    const auto found = std::ranges::find(registrations_, observer, &Registration::observer);
    return found == registrations_.end() ? Callback() : found->callback;
}

void NotificationCenter::post(std::string_view name) {
    for (const Observer observer : observersOf(name)) {
        if (const Callback callback = callbackOf(observer)) callback();
    }
}

}  // namespace vellark
