#include <VellarkLocalization/PluralCategory.hpp>

#include <algorithm>
#include <array>

namespace vellark::PluralCategories {

namespace {

using enum PluralCategory;

bool isMillions(std::uint64_t count) {
    return count != 0 && count % 1'000'000 == 0;
}

PluralCategory russian(std::uint64_t count) {
    const std::uint64_t units = count % 10;
    const std::uint64_t tens = count % 100;
    if (units == 1 && tens != 11) return one;
    if (units >= 2 && units <= 4 && !(tens >= 12 && tens <= 14)) return few;
    return many;
}

PluralCategory french(std::uint64_t count) {
    if (count < 2) return one;
    return isMillions(count) ? many : other;
}

PluralCategory spanish(std::uint64_t count) {
    if (count == 1) return one;
    return isMillions(count) ? many : other;
}

PluralCategory oneOrOther(std::uint64_t count) {
    return count == 1 ? one : other;
}

struct Rule {
    std::string_view language;
    PluralCategory (*category)(std::uint64_t count);
};

constexpr auto rules = std::to_array<Rule>({
    {"ru", russian},
    {"fr", french},
    {"es", spanish},
    {"en", oneOrOther},
    {"de", oneOrOther},
    {"mn", oneOrOther},
});

}  // namespace

PluralCategory cardinal(std::int64_t count, std::string_view language) {
    const auto magnitude = count < 0 ? 0 - static_cast<std::uint64_t>(count) : static_cast<std::uint64_t>(count);
    const auto rule = std::ranges::find(rules, language, &Rule::language);
    return rule == rules.end() ? other : rule->category(magnitude);
}

}  // namespace vellark::PluralCategories
