#include <VellarkLocalization/LocalizationEnvironment.hpp>

#include <initializer_list>
#include <string_view>

namespace vellark::LocalizationEnvironment {

namespace {

// "ko_KR.UTF-8@modifier" gives "ko_KR"; "" when the value names no language.
std::string_view languageOf(std::string_view value) {
    value = value.substr(0, value.find_first_of(".@"));
    return value == "C" || value == "POSIX" ? std::string_view() : value;
}

std::string_view firstNonEmpty(const Environment& environment, std::initializer_list<std::string_view> names) {
    for (const std::string_view name : names) {
        if (const auto value = environment.value(name); value && !value->empty()) return *value;
    }
    return {};
}

}  // namespace

std::vector<std::string> preferredLanguages(const Environment& environment) {
    std::vector<std::string> languages;
    const auto add = [&](std::string_view value) {
        if (const std::string_view language = languageOf(value); !language.empty()) languages.emplace_back(language);
    };
    std::string_view list = environment.value("LANGUAGE").value_or("");
    while (!list.empty()) {
        const std::size_t end = list.find(':');
        add(list.substr(0, end));
        list.remove_prefix(end == std::string_view::npos ? list.size() : end + 1);
    }
    add(firstNonEmpty(environment, {"LC_ALL", "LC_MESSAGES", "LANG"}));
    return languages;
}

std::string systemLocale(const Environment& environment) {
    const std::string_view locale = languageOf(firstNonEmpty(environment, {"LC_ALL", "LC_TIME", "LANG"}));
    return std::string(locale.empty() ? "en_US" : locale);
}

}  // namespace vellark::LocalizationEnvironment
