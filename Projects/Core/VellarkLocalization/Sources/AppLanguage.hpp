#pragma once

#include <VellarkFoundation/Records/Enumeration.hpp>

#include <span>
#include <string>
#include <string_view>

namespace vellark {

/// The languages that a user can select. Settings store the raw value; the empty one follows the system.
enum class AppLanguage { system, ko, en, ja, es, de, fr, th, ru, mn, vi, zhHans, zhHant, zhHK };

template <>
inline constexpr auto caseTable<AppLanguage> = std::to_array<CaseName<AppLanguage>>({
    {AppLanguage::system, ""},
    {AppLanguage::ko, "ko"},
    {AppLanguage::en, "en"},
    {AppLanguage::ja, "ja"},
    {AppLanguage::es, "es"},
    {AppLanguage::de, "de"},
    {AppLanguage::fr, "fr"},
    {AppLanguage::th, "th"},
    {AppLanguage::ru, "ru"},
    {AppLanguage::mn, "mn"},
    {AppLanguage::vi, "vi"},
    {AppLanguage::zhHans, "zh-Hans"},
    {AppLanguage::zhHant, "zh-Hant"},
    {AppLanguage::zhHK, "zh-HK"},
});

/// What follows from a selection of language.
namespace AppLanguages {

/// The codes that catalogues exist for: all raw values but the empty one, in the order of the cases.
[[nodiscard]] std::span<const std::string_view> supportedCodes();

/// The code of the language to speak. A selection is taken when it is supported and gives "en" when it is not; an empty
/// one takes the first preferred language that is supported, and "en" when none is.
///
///     resolve("de", {"ko_KR"})              "de"
///     resolve("pt", {"ko_KR"})              "en"
///     resolve("", {"pt-BR", "zh_TW"})       "zh-Hant"
///     resolve("", {"yue-Hant"})             "zh-HK"
///
/// Preferred languages may be written with "-" or "_" and in any case; of a region only the Chinese ones count.
[[nodiscard]] std::string resolve(std::string_view selection, std::span<const std::string> preferredLanguages);

/// The ICU identifier of a locale that speaks `language` and keeps the system's conventions: the language and script of
/// `language`, the region of the system's locale, then that locale's keywords by name.
///
///     locale("ko", "en_US")                           "ko_US"
///     locale("zh-Hant", "ko_KR@calendar=gregorian")   "zh_Hant_KR@calendar=gregorian"
///     locale("zh-HK", "ko-KR")                        "zh_Hant_HK@rg=krzzzz"
///
/// Hong Kong is what makes the last one a language of its own, so that the system's region moves to the keyword "rg",
/// unless there is one already. A system locale that ICU cannot read counts as one without a region.
[[nodiscard]] std::string locale(std::string_view language, std::string_view systemLocale);

/// The language's name in the language itself. The name of `system` is in the current language.
[[nodiscard]] std::string nativeName(AppLanguage language);

}  // namespace AppLanguages

}  // namespace vellark
