#include <VellarkLocalization/AppLanguage.hpp>
#include <VellarkLocalization/LocalizationEnvironment.hpp>

#include <gtest/gtest.h>

#include <vector>

namespace vellark {
namespace {

TEST(AppLanguage, resolvesSelectionsAndPreferences) {
    struct Row {
        const char* selection;
        std::vector<std::string> preferred;
        const char* language;
    };
    const Row rows[] = {
        {"ko", {"de"}, "ko"},
        {"zh-HK", {}, "zh-HK"},
        {"pt", {"de"}, "en"},
        {"KO", {"de"}, "en"},
        {"", {}, "en"},
        {"", {"zh_TW"}, "zh-Hant"},
        {"", {"zh-Hant-HK"}, "zh-HK"},
        {"", {"zh-Hans-HK"}, "zh-Hans"},
        {"", {"zh-MO"}, "zh-HK"},
        {"", {"yue-Hant"}, "zh-HK"},
        {"", {"yue-Hans"}, "zh-Hans"},
        {"", {"zh"}, "zh-Hans"},
        {"", {"ZH_SG"}, "zh-Hans"},
        {"", {"pt-BR"}, "en"},
        {"", {"pt-BR", "fr_CH", "de"}, "fr"},
        {"", {"", "-", "_-_"}, "en"},
        {"", {"--RU__ru"}, "ru"},
        {"", {"\u212Ao-KR"}, "ko"},  // the Kelvin sign is a K in lower case
        {"", {"k\xFFo", "vi"}, "vi"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(AppLanguages::resolve(row.selection, row.preferred), row.language)
            << ::testing::PrintToString(row.preferred);
    }
}

TEST(AppLanguage, localesKeepTheSystemsConventions) {
    struct Row {
        const char* language;
        const char* system;
        const char* locale;
    };
    const Row rows[] = {
        {"ko", "en_US", "ko_US"},
        {"ko", "en-US", "ko_US"},
        {"ko", "de_Latn_AT_PHONEBOOK", "ko_AT"},
        {"ko", "de", "ko"},
        {"ko", "", "ko"},
        {"es", "es_419", "es_419"},
        {"zh-Hant", "ko_KR@calendar=gregorian", "zh_Hant_KR@calendar=gregorian"},
        {"en", "th_TH@numbers=thai;calendar=buddhist", "en_TH@calendar=buddhist;numbers=thai"},
        {"zh-HK", "ko_KR", "zh_Hant_HK@rg=krzzzz"},
        {"zh-HK", "es_419", "zh_Hant_HK@rg=419zzzz"},
        {"zh-HK", "en_HK", "zh_Hant_HK"},
        {"zh-HK", "ko", "zh_Hant_HK"},
        {"zh-HK", "en_US@rg=dezzzz", "zh_Hant_HK@rg=dezzzz"},
        {"zh-HK", "en_US@numbers=latn;calendar=roc", "zh_Hant_HK@calendar=roc;numbers=latn;rg=uszzzz"},
        {"ko", "not a locale at all, and far too long to be one", "ko"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(AppLanguages::locale(row.language, row.system), row.locale) << row.language << " " << row.system;
    }
}

TEST(AppLanguage, environmentNamesLanguagesAndLocale) {
    using Languages = std::vector<std::string>;
    struct Row {
        Environment environment;
        Languages preferred;
        const char* locale;
    };
    const Row rows[] = {
        {{}, {}, "en_US"},
        {{{"LANG", "ko_KR.UTF-8"}}, {"ko_KR"}, "ko_KR"},
        {{{"LANG", "C.UTF-8"}}, {}, "en_US"},
        {{{"LANG", "POSIX"}}, {}, "en_US"},
        {{{"LANG", ".UTF-8"}}, {}, "en_US"},
        {{{"LANG", "de_DE@euro"}, {"LC_MESSAGES", "fr_FR.UTF-8"}}, {"fr_FR"}, "de_DE"},
        {{{"LANG", "de_DE"}, {"LC_TIME", "en_GB.UTF-8"}}, {"de_DE"}, "en_GB"},
        {{{"LANG", "de_DE"}, {"LC_ALL", ""}}, {"de_DE"}, "de_DE"},
        {{{"LANG", "de_DE"}, {"LC_ALL", "C"}}, {}, "en_US"},
        {{{"LANGUAGE", ":ru:C:pt_BR.UTF-8:"}, {"LANG", "th_TH"}}, {"ru", "pt_BR", "th_TH"}, "th_TH"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(LocalizationEnvironment::preferredLanguages(row.environment), row.preferred);
        EXPECT_EQ(LocalizationEnvironment::systemLocale(row.environment), row.locale);
    }
}

TEST(AppLanguage, codesAndNames) {
    const auto codes = AppLanguages::supportedCodes();
    EXPECT_EQ(std::vector(codes.begin(), codes.end()),
              (std::vector<std::string_view>{"ko", "en", "ja", "es", "de", "fr", "th", "ru", "mn", "vi", "zh-Hans",
                                             "zh-Hant", "zh-HK"}));
    EXPECT_EQ(AppLanguages::nativeName(AppLanguage::system), "System language");
    EXPECT_EQ(AppLanguages::nativeName(AppLanguage::mn), "Монгол");
    EXPECT_EQ(AppLanguages::nativeName(AppLanguage::zhHK), "繁體中文（香港）");
}

}  // namespace
}  // namespace vellark
