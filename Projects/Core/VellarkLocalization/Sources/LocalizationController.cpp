#include <VellarkLocalization/AppLanguage.hpp>
#include <VellarkLocalization/LocalizationController.hpp>
#include <VellarkLocalization/LocalizationEnvironment.hpp>
#include <VellarkLocalization/LocalizationRuntime.hpp>
#include <VellarkLocalization/NotificationCenter.hpp>

#include <utility>

namespace vellark {

LocalizationController& LocalizationController::shared() {
    static LocalizationController controller;
    return controller;
}

LocalizationController::LocalizationController() {
    const LocalizationRuntime::Snapshot& snapshot = LocalizationRuntime::shared().snapshot();
    language_ = snapshot.language;
    locale_ = snapshot.locale;
}

void LocalizationController::apply(std::string_view selection, bool force) {
    const Environment environment = Environment::ofProcess();
    std::string language = AppLanguages::resolve(selection, LocalizationEnvironment::preferredLanguages(environment));
    std::string locale = AppLanguages::locale(language, LocalizationEnvironment::systemLocale(environment));
    if (!force && selection == selection_ && language == language_ && locale == locale_) return;

    selection_ = selection;
    language_ = std::move(language);
    locale_ = std::move(locale);
    LocalizationRuntime::shared().store({.language = language_, .locale = locale_});
    ++revision_;
    NotificationCenter::shared().post(vellarkLanguageChanged);
}

void LocalizationController::startObservingSystemLocale() {
    isObservingSystemLocale_ = true;
}

}  // namespace vellark
