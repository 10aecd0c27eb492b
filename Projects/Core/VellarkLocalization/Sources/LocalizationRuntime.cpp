#include <VellarkLocalization/AppLanguage.hpp>
#include <VellarkLocalization/LocalizationEnvironment.hpp>
#include <VellarkLocalization/LocalizationRuntime.hpp>

#include <utility>

namespace vellark {

LocalizationRuntime& LocalizationRuntime::shared() {
    static LocalizationRuntime runtime;
    return runtime;
}

LocalizationRuntime::LocalizationRuntime() {
    const Environment environment = Environment::ofProcess();
    std::string language = AppLanguages::resolve("", LocalizationEnvironment::preferredLanguages(environment));
    std::string locale = AppLanguages::locale(language, LocalizationEnvironment::systemLocale(environment));
    store({.language = std::move(language), .locale = std::move(locale)});
}

void LocalizationRuntime::store(Snapshot snapshot) {
    const std::scoped_lock held(lock_);
    current_.store(&*known_.insert(std::move(snapshot)).first, std::memory_order_release);
}

}  // namespace vellark
