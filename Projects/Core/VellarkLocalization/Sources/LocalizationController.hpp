#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vellark {

/// The notification that NotificationCenter::shared posts when the language, the locale or the selection has changed.
inline constexpr std::string_view vellarkLanguageChanged = "com.brindle.vellark.languageChanged";

/// Applies the user's selection of a language to the whole process and announces it. It belongs to one thread, the
/// host's main one.
///
///     NotificationCenter::shared().addObserver(vellarkLanguageChanged, [] { redraw(); });
///     LocalizationController::shared().apply(settings.language);
class LocalizationController {
public:
    [[nodiscard]] static LocalizationController& shared();

    LocalizationController(const LocalizationController&) = delete;
    LocalizationController& operator=(const LocalizationController&) = delete;

    [[nodiscard]] std::int64_t revision() const { return revision_; }  ///< number of changes so far
    [[nodiscard]] const std::string& selection() const { return selection_; }
    [[nodiscard]] const std::string& language() const { return language_; }
    [[nodiscard]] const std::string& locale() const { return locale_; }

    /// Selects a language by the raw value of AppLanguage; "" follows the system, whose preferred languages and locale
    /// are read anew from the environment. When nothing changes by it nothing happens, unless it is forced. Observers
    /// are called before it returns, on this thread, when every text is already in the new language.
    void apply(std::string_view selection, bool force = false);

    /// Asks for a forced `apply` of the current selection whenever the system's locale changes. Where locales come from
    /// the environment, which announces no change, a host that knows of one calls `apply` itself; the wish is then only
    /// noted. Further calls do nothing.
    void startObservingSystemLocale();

    [[nodiscard]] bool isObservingSystemLocale() const { return isObservingSystemLocale_; }

private:
    LocalizationController();

    std::int64_t revision_ = 0;
    std::string selection_;
    std::string language_;
    std::string locale_;
    bool isObservingSystemLocale_ = false;
};

}  // namespace vellark
