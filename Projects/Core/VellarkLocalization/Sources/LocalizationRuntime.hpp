#pragma once

#include <atomic>
#include <compare>
#include <mutex>
#include <set>
#include <string>

namespace vellark {

/// The language and locale that the process speaks now. One object, shared by all threads.
class LocalizationRuntime {
public:
    struct Snapshot {
        std::string language;  ///< a code of AppLanguages::supportedCodes
        std::string locale;    ///< an ICU identifier

        auto operator<=>(const Snapshot&) const = default;
    };

    /// At its first use it speaks the system's language.
    [[nodiscard]] static LocalizationRuntime& shared();

    /// What holds at this moment. Stays valid, and unchanged, as long as the process.
    [[nodiscard]] const Snapshot& snapshot() const { return *current_.load(std::memory_order_acquire); }

    void store(Snapshot snapshot);

private:
    LocalizationRuntime();

    // Every pair of language and locale that was ever current is kept. They are few, and so a reader needs neither a
    // lock nor a count of users: texts are looked up far more often than languages change.
    std::mutex lock_;
    std::set<Snapshot> known_;
    std::atomic<const Snapshot*> current_ = nullptr;
};

}  // namespace vellark
