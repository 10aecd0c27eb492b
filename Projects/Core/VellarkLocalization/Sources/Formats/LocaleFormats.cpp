#include <VellarkLocalization/Formats/FormatterCache.hpp>
#include <VellarkLocalization/Formats/LocaleFormats.hpp>

#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/numberformatter.h>
#include <unicode/reldatefmt.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

// ICU's const operations may run on several threads at once, so number and date formats are shared without a lock. The
// relative formats share one number format under the hood: they are used one at a time.

namespace vellark::LocaleFormats {

namespace {

using icu::number::LocalizedNumberFormatter;
using icu::number::NumberFormatter;
using icu::number::Precision;

icu::Locale icuLocale(std::string_view identifier) {
    const icu::Locale locale(std::string(identifier).c_str());
    return locale.isBogus() ? icu::Locale::getRoot() : locale;
}

std::string utf8(const icu::UnicodeString& text) {
    std::string result;
    return text.toUTF8String(result);
}

std::shared_ptr<const LocalizedNumberFormatter> numberFormatter(std::string_view locale) {
    static FormatterCache<LocalizedNumberFormatter> cache;
    return cache.get(locale, [&] {
        return std::make_shared<const LocalizedNumberFormatter>(NumberFormatter::withLocale(icuLocale(locale)));
    });
}

std::shared_ptr<const LocalizedNumberFormatter> decimalFormatter(int precision, std::string_view locale) {
    static FormatterCache<LocalizedNumberFormatter> cache;
    return cache.get(std::to_string(precision).append(" ").append(locale), [&] {
        return std::make_shared<const LocalizedNumberFormatter>(NumberFormatter::withLocale(icuLocale(locale))
                                                                    .precision(Precision::fixedFraction(precision))
                                                                    .roundingMode(UNUM_ROUND_HALFEVEN));
    });
}

// A formatter finishes itself during its first uses. ICU guards that by atomics of its own, which a race detector
// cannot see into; one call at a time costs a few nanoseconds and leaves no doubt.
std::mutex formatting;

// The formatted number, or plain digits should ICU fail.
template <class Value, class Format>
std::string formatted(Value value, const LocalizedNumberFormatter& formatter, Format format) {
    const std::scoped_lock held(formatting);
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString text = format(formatter, status).toString(status);
    if (U_SUCCESS(status)) return utf8(text);
    std::array<char, 64> digits{};
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    return {digits.data(), written.ptr};
}

std::string formattedDouble(double value, const LocalizedNumberFormatter& formatter) {
    return formatted(value, formatter,
                     [&](const auto& from, auto& status) { return from.formatDouble(value, status); });
}

std::unique_ptr<icu::TimeZone> icuTimeZone(std::string_view identifier) {
    if (identifier.empty()) return std::unique_ptr<icu::TimeZone>(icu::TimeZone::createDefault());
    const auto name = icu::UnicodeString::fromUTF8({identifier.data(), static_cast<std::int32_t>(identifier.size())});
    return std::unique_ptr<icu::TimeZone>(icu::TimeZone::createTimeZone(name));
}

std::string formattedDate(Date date, icu::DateFormat::EStyle timeStyle, std::string_view locale,
                          std::string_view timeZone) {
    if (!std::isfinite(date.secondsSince1970)) return "";
    std::unique_ptr<icu::TimeZone> zone = icuTimeZone(timeZone);
    icu::UnicodeString zoneName;
    zone->getID(zoneName);

    static FormatterCache<icu::DateFormat> cache;
    const std::string description =
        std::to_string(timeStyle).append(" ").append(utf8(zoneName)).append(" ").append(locale);
    const auto formatter = cache.get(description, [&] {
        std::shared_ptr<icu::DateFormat> made(
            icu::DateFormat::createDateTimeInstance(icu::DateFormat::kMedium, timeStyle, icuLocale(locale)));
        if (made) made->adoptTimeZone(zone.release());
        return made;
    });
    if (!formatter) return "";
    const std::scoped_lock held(formatting);
    icu::UnicodeString text;
    return utf8(formatter->format(date.secondsSince1970 * 1000, text));
}

constexpr URelativeDateTimeUnit icuUnit(TimeUnit unit) {
    switch (unit) {
        case TimeUnit::second:
            return UDAT_REL_UNIT_SECOND;
        case TimeUnit::minute:
            return UDAT_REL_UNIT_MINUTE;
        case TimeUnit::hour:
            return UDAT_REL_UNIT_HOUR;
    }
    return UDAT_REL_UNIT_SECOND;
}

}  // namespace

std::string number(std::int64_t value, std::string_view locale) {
    return formatted(value, *numberFormatter(locale),
                     [&](const auto& from, auto& status) { return from.formatInt(value, status); });
}

std::string number(std::uint64_t value, std::string_view locale) {
    return formatted(value, *numberFormatter(locale),
                     [&](const auto& from, auto& status) { return from.formatDecimal(std::to_string(value), status); });
}

std::string number(double value, std::string_view locale) {
    return formattedDouble(value, *numberFormatter(locale));
}

std::string decimal(double value, int precision, std::string_view locale) {
    return formattedDouble(value, *decimalFormatter(std::clamp(precision, 0, maximumPrecision), locale));
}

std::string date(Date date, std::string_view locale, std::string_view timeZone) {
    return formattedDate(date, icu::DateFormat::kNone, locale, timeZone);
}

std::string dateTime(Date date, std::string_view locale, std::string_view timeZone) {
    return formattedDate(date, icu::DateFormat::kShort, locale, timeZone);
}

std::string ago(std::int64_t count, TimeUnit unit, std::string_view locale) {
    static FormatterCache<icu::RelativeDateTimeFormatter> cache;
    const auto formatter = cache.get(locale, [&]() -> std::shared_ptr<const icu::RelativeDateTimeFormatter> {
        UErrorCode status = U_ZERO_ERROR;
        auto made = std::make_shared<const icu::RelativeDateTimeFormatter>(icuLocale(locale), nullptr, UDAT_STYLE_SHORT,
                                                                           UDISPCTX_CAPITALIZATION_NONE, status);
        if (U_FAILURE(status)) made.reset();
        return made;
    });
    if (!formatter) return "";
    const std::scoped_lock held(formatting);
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString text;
    formatter->format(-static_cast<double>(count), icuUnit(unit), text, status);
    return U_SUCCESS(status) ? utf8(text) : "";
}

}  // namespace vellark::LocaleFormats
