#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkLocalization/Formats/DurationTemplate.hpp>
#include <VellarkLocalization/Formats/LocaleFormats.hpp>
#include <VellarkLocalization/Formats/MomentText.hpp>
#include <VellarkLocalization/L10n.hpp>
#include <VellarkLocalization/LocalizationBundle.hpp>
#include <VellarkLocalization/LocalizationRuntime.hpp>
#include <VellarkLocalization/Messages/CatalogLibrary.hpp>

#include <cmath>

namespace vellark::L10n {

namespace {

constexpr double secondsOfDay = 86'400;

const CatalogLibrary& catalogs() {
    static const CatalogLibrary shared(CatalogLibrary::read(LocalizationBundle::directory()));
    return shared;
}

std::string_view languageOr(OptionalText language) {
    return language ? *language : LocalizationRuntime::shared().snapshot().language;
}

std::string_view localeOr(OptionalText locale) {
    return locale ? *locale : LocalizationRuntime::shared().snapshot().locale;
}

}  // namespace

std::string text(std::string_view key, const TextOptions& options) {
    return catalogs().text(key, options.arguments, options.count, languageOr(options.language));
}

std::string display(std::string_view text, OptionalText language) {
    return catalogs().display(text, languageOr(language));
}

std::string argument(std::int64_t value) {
    return LocaleFormats::number(value, localeOr(std::nullopt));
}

std::string argument(std::uint64_t value) {
    return LocaleFormats::number(value, localeOr(std::nullopt));
}

std::string argument(double value) {
    return LocaleFormats::number(value, localeOr(std::nullopt));
}

std::string argument(std::string_view value) {
    return std::string(value);
}

std::string number(std::int64_t value, OptionalText locale) {
    return LocaleFormats::number(value, localeOr(locale));
}

std::string decimal(double value, int precision, OptionalText locale) {
    return LocaleFormats::decimal(value, precision, localeOr(locale));
}

std::string date(Date date, OptionalText locale, OptionalText timeZone) {
    return LocaleFormats::date(date, localeOr(locale), timeZone.value_or(""));
}

std::string dateTime(Date date, OptionalText locale, OptionalText timeZone) {
    return LocaleFormats::dateTime(date, localeOr(locale), timeZone.value_or(""));
}

std::string dateTime(std::string_view text, OptionalText locale, OptionalText timeZone) {
    if (const auto moment = timestamp(text)) return dateTime(*moment, locale, timeZone);
    return UTF8::replacingInvalid(text);
}

std::optional<Date> timestamp(std::string_view text) {
    return MomentText::parse(text);
}

std::string shortRelative(Date date, Date now, OptionalText locale, OptionalText timeZone) {
    using LocaleFormats::TimeUnit;
    const double elapsed = now.secondsSince1970 - date.secondsSince1970;
    if (!(std::abs(elapsed) < secondsOfDay)) return L10n::date(date, locale, timeZone);
    const auto seconds = static_cast<std::int64_t>(std::max(elapsed, 0.0));
    if (seconds < 60) return LocaleFormats::ago(seconds, TimeUnit::second, localeOr(locale));
    if (seconds < 3600) return LocaleFormats::ago(seconds / 60, TimeUnit::minute, localeOr(locale));
    return LocaleFormats::ago(seconds / 3600, TimeUnit::hour, localeOr(locale));
}

std::string duration(double seconds, OptionalText language, OptionalText locale) {
    const bool isWhole = seconds >= 1 && std::floor(seconds) == seconds;
    const std::string translated = text(isWhole ? "%.0f초" : "%.2f초", {.language = language});
    return DurationTemplate::filled(translated, seconds, localeOr(locale));
}

const LocalizationCatalog* catalog(std::string_view language) {
    return catalogs().catalog(language);
}

std::vector<std::string> availableCatalogLanguages() {
    return catalogs().languages();
}

std::vector<std::string> resourceFiles(std::string_view subdirectory) {
    return LocalizationBundle::files(LocalizationBundle::directory(), subdirectory);
}

}  // namespace vellark::L10n
