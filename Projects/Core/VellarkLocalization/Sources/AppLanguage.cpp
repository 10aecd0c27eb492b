#include <VellarkFoundation/Unicode/UnicodeCase.hpp>
#include <VellarkLocalization/AppLanguage.hpp>
#include <VellarkLocalization/L10n.hpp>

#include <unicode/locid.h>
#include <unicode/strenum.h>

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <vector>

namespace vellark::AppLanguages {

namespace {

// The names that do not depend on the current language, in the order of the cases.
constexpr std::array<std::string_view, caseTable<AppLanguage>.size()> nativeNames = {
    "",    "한국어",  "English", "日本語",     "Español",  "Deutsch",          "Français",
    "ไทย", "Русский", "Монгол",  "Tiếng Việt", "简体中文", "繁體中文（台灣）", "繁體中文（香港）"};

constexpr auto codes = [] {
    std::array<std::string_view, caseTable<AppLanguage>.size() - 1> list;
    std::ranges::transform(caseTable<AppLanguage>.begin() + 1, caseTable<AppLanguage>.end(), list.begin(),
                           &CaseName<AppLanguage>::name);
    return list;
}();

bool isSupported(std::string_view code) {
    return std::ranges::find(codes, code) != codes.end();
}

// "zh_Hant-TW" gives "zh", "hant", "tw".
std::vector<std::string> partsOf(std::string_view identifier) {
    std::vector<std::string> parts(1);
    for (const char byte : UnicodeCase::lower(identifier)) {
        if (byte != '-' && byte != '_') {
            parts.back() += byte;
        } else if (!parts.back().empty()) {
            parts.emplace_back();
        }
    }
    if (parts.back().empty()) parts.pop_back();
    return parts;
}

// Script before region, and Hong Kong's region before the script that it shares with Taiwan.
std::string_view chineseCode(const std::vector<std::string>& parts) {
    const auto holds = [&](std::string_view part) { return std::ranges::find(parts, part) != parts.end(); };
    if (holds("hans")) return "zh-Hans";
    if (holds("hk") || holds("mo")) return "zh-HK";
    if (parts.front() == "yue") return "zh-HK";
    if (holds("hant") || holds("tw")) return "zh-Hant";
    return "zh-Hans";
}

std::optional<std::string> codeOfPreferred(std::string_view identifier) {
    const std::vector<std::string> parts = partsOf(identifier);
    if (parts.empty()) return std::nullopt;
    const std::string& language = parts.front();
    if (language == "zh" || language == "yue") return std::string(chineseCode(parts));
    if (isSupported(language)) return language;
    return std::nullopt;
}

using Keywords = std::vector<std::pair<std::string, std::string>>;

Keywords keywordsOf(const icu::Locale& locale) {
    Keywords keywords;
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::StringEnumeration> names(locale.createKeywords(status));
    if (U_FAILURE(status) || !names) return keywords;
    while (const char* name = names->next(nullptr, status)) {
        std::string value = locale.getKeywordValue<std::string>(name, status);
        if (U_FAILURE(status)) break;
        keywords.emplace_back(name, std::move(value));
    }
    return keywords;
}

}  // namespace

std::span<const std::string_view> supportedCodes() {
    return codes;
}

std::string resolve(std::string_view selection, std::span<const std::string> preferredLanguages) {
    if (!selection.empty()) return std::string(isSupported(selection) ? selection : "en");
    for (const std::string& preferred : preferredLanguages) {
        if (auto code = codeOfPreferred(preferred)) return *std::move(code);
    }
    return "en";
}

std::string locale(std::string_view language, std::string_view systemLocale) {
    const icu::Locale spoken(std::string(language == "zh-HK" ? "zh-Hant-HK" : language).c_str());
    const icu::Locale system(std::string(systemLocale).c_str());
    const std::string_view systemRegion = system.getCountry();
    const bool hasOwnRegion = *spoken.getCountry() != '\0';

    std::string identifier = spoken.getLanguage();
    if (*spoken.getScript() != '\0') identifier.append("_").append(spoken.getScript());
    const std::string_view region = hasOwnRegion ? std::string_view(spoken.getCountry()) : systemRegion;
    if (!region.empty()) identifier.append("_").append(region);

    Keywords keywords = keywordsOf(system);
    if (hasOwnRegion && !systemRegion.empty() && systemRegion != region &&
        std::ranges::find(keywords, "rg", &Keywords::value_type::first) == keywords.end()) {
        keywords.emplace_back("rg", UnicodeCase::lower(systemRegion) + "zzzz");
    }
    std::ranges::sort(keywords);
    char separator = '@';
    for (const auto& [name, value] : keywords) {
        identifier.append(1, separator).append(name).append("=").append(value);
        separator = ';';
    }
    return identifier;
}

std::string nativeName(AppLanguage language) {
    if (language == AppLanguage::system) return L10n::text("시스템 언어");
    return std::string(nativeNames[static_cast<std::size_t>(language)]);
}

}  // namespace vellark::AppLanguages
