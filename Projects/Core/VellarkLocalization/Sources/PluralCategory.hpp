#pragma once

#include <VellarkFoundation/Records/Enumeration.hpp>

#include <cstdint>
#include <string_view>

namespace vellark {

/// The form that a counted word takes. Catalogues name the forms by these texts.
enum class PluralCategory { one, few, many, other };

template <>
inline constexpr auto caseTable<PluralCategory> = std::to_array<CaseName<PluralCategory>>({
    {PluralCategory::one, "one"},
    {PluralCategory::few, "few"},
    {PluralCategory::many, "many"},
    {PluralCategory::other, "other"},
});

namespace PluralCategories {

/// The form for a whole number in a language, by the cardinal rules of CLDR. The sign does not count. Languages without
/// forms, and those that are not known, give `other`.
///
///     cardinal(21, "ru")         one, as in "21 файл"
///     cardinal(0, "fr")          one
///     cardinal(1'000'000, "es")  many, as in "1.000.000 de archivos"
[[nodiscard]] PluralCategory cardinal(std::int64_t count, std::string_view language);

}  // namespace PluralCategories

}  // namespace vellark
