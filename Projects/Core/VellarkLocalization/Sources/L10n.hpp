#pragma once

#include <VellarkFoundation/Time/Date.hpp>
#include <VellarkLocalization/LocalizationCatalog.hpp>

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// Source text in the language of the user. The keys are the Korean source sentences, so that a text without any
/// translation shows its source. No call fails (but for a bundle that is nowhere, see LocalizationBundle), any thread
/// may call, and a change of language takes effect with the next call.
///
///     L10n::text("나중에 볼 것")                                                    "Review later"
///     L10n::text("파일 {0}개 수정", {.arguments = {L10n::argument(2)}, .count = 2})   "Edited 2 files"
///     L10n::display("Edited 1,234 files")                                       "파일 1,234개 수정", under Korean
///
/// Ill-formed UTF-8 in an argument counts as U+FFFD. A locale is an ICU identifier and a language a code of
/// AppLanguages::supportedCodes; where none is given, the current one holds.
namespace L10n {

struct TextOptions {
    std::vector<std::string> arguments;        ///< for "{0}", "{1}" and so on
    std::optional<std::int64_t> count;         ///< chooses the plural form
    std::optional<std::string_view> language;  ///< in place of the current one
};

using OptionalText = std::optional<std::string_view>;

/// The translation of a key: with a count the plural form that the language asks for, or else the form "other", or the
/// plain message; without one the plain message, or else the English one; in the end the key itself. Placeholders are
/// filled with the arguments; one without an argument stays as it is.
[[nodiscard]] std::string text(std::string_view key, const TextOptions& options = {});

/// A finished text that was made earlier, perhaps in another language, in the language of now: a key, the translation
/// of a key, or a sentence that was made from an external key with arguments. Any other text comes back unchanged, and
/// so does a sentence of more than 8192 bytes.
[[nodiscard]] std::string display(std::string_view text, OptionalText language = std::nullopt);

/// A value as an argument of `text`: numbers as the current locale writes them, truth values as "true" and "false",
/// text as it is.
[[nodiscard]] std::string argument(std::int64_t value);
[[nodiscard]] std::string argument(std::uint64_t value);
[[nodiscard]] std::string argument(double value);
[[nodiscard]] std::string argument(std::string_view value);

template <std::same_as<bool> Truth>
[[nodiscard]] std::string argument(Truth value) {
    return value ? "true" : "false";
}

template <std::signed_integral Integer>
[[nodiscard]] std::string argument(Integer value) {
    return argument(static_cast<std::int64_t>(value));
}

template <std::unsigned_integral Integer>
requires(!std::same_as<Integer, bool>) [[nodiscard]] std::string argument(Integer value) {
    return argument(static_cast<std::uint64_t>(value));
}

/// A whole number, grouped as the locale groups.
[[nodiscard]] std::string number(std::int64_t value, OptionalText locale = std::nullopt);

/// A number with exactly `precision` fraction digits, half rounded to even; a negative precision counts as 0.
[[nodiscard]] std::string decimal(double value, int precision, OptionalText locale = std::nullopt);

/// A day, or a day and time, in the locale's form and calendar. The time zone is an identifier such as "Asia/Seoul";
/// without one, the process's own holds. "" for a date that is not finite.
[[nodiscard]] std::string date(Date date, OptionalText locale = std::nullopt, OptionalText timeZone = std::nullopt);
[[nodiscard]] std::string dateTime(Date date, OptionalText locale = std::nullopt, OptionalText timeZone = std::nullopt);

/// The same for a text that `timestamp` reads; any other text comes back as it is.
[[nodiscard]] std::string dateTime(std::string_view text, OptionalText locale = std::nullopt,
                                   OptionalText timeZone = std::nullopt);
[[nodiscard]] inline std::string dateTime(const char* text, OptionalText locale = std::nullopt,
                                          OptionalText timeZone = std::nullopt) {
    return dateTime(std::string_view(text), locale, timeZone);
}

/// The moment of a text such as "2026-01-02T03:04:05.678Z": see MomentText for the grammar.
[[nodiscard]] std::optional<Date> timestamp(std::string_view text);

/// How long before `now` the date is: "now", "5 sec. ago", "3 hr. ago"; a date in the future counts as now. From 86,400
/// seconds on, in both directions, the day instead.
[[nodiscard]] std::string shortRelative(Date date, Date now, OptionalText locale = std::nullopt,
                                        OptionalText timeZone = std::nullopt);

/// A length of time in seconds: whole ones without, all others and those below 1 with two fraction digits.
[[nodiscard]] std::string duration(double seconds, OptionalText language = std::nullopt,
                                   OptionalText locale = std::nullopt);

/// The catalogue of a language; a null pointer when there is none. It stands as long as the process.
[[nodiscard]] const LocalizationCatalog* catalog(std::string_view language);

/// The languages that have a catalogue, ascending.
[[nodiscard]] std::vector<std::string> availableCatalogLanguages();

/// The contents of the regular files in a subdirectory of the module's bundle, sorted by file name.
[[nodiscard]] std::vector<std::string> resourceFiles(std::string_view subdirectory);

}  // namespace L10n

}  // namespace vellark
