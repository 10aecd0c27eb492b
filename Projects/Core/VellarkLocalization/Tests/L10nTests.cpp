#include <VellarkLocalization/L10n.hpp>
#include <VellarkLocalization/LocalizationController.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vellark {
namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr Date secondOfJanuary{1767323045};  // 2026-01-02T03:04:05Z

// Some releases of CLDR write no-break spaces where others write plain ones.
std::string plainSpaces(std::string text) {
    for (const std::string_view space : {"\u00A0", "\u202F"}) {
        for (auto at = text.find(space); at != std::string::npos; at = text.find(space)) {
            text.replace(at, space.size(), " ");
        }
    }
    return text;
}

TEST(L10n, numbersInTheWaysOfTheirLocales) {
    struct Row {
        const char* locale;
        const char* number;
        const char* small;
        const char* decimal;
    };
    const Row rows[] = {
        {"en", "1,234,567", "1,234", "-1,234.50"},
        {"ko_KR", "1,234,567", "1,234", "-1,234.50"},
        {"de", "1.234.567", "1.234", "-1.234,50"},
        {"de-CH", "1’234’567", "1’234", "-1’234.50"},
        {"fr", "1 234 567", "1 234", "-1 234,50"},
        {"es", "1.234.567", "1234", "-1234,50"},
        {"ru", "1 234 567", "1 234", "-1 234,50"},
        {"vi", "1.234.567", "1.234", "-1.234,50"},
        {"hi", "12,34,567", "1,234", "-1,234.50"},
        {"en@numbers=thai", "๑,๒๓๔,๕๖๗", "๑,๒๓๔", "-๑,๒๓๔.๕๐"},
        {"zh_Hant_HK@rg=krzzzz", "1,234,567", "1,234", "-1,234.50"},
        {"no such locale", "1,234,567", "1,234", "-1,234.50"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(plainSpaces(L10n::number(1'234'567, row.locale)), row.number) << row.locale;
        EXPECT_EQ(plainSpaces(L10n::number(1234, row.locale)), row.small) << row.locale;
        EXPECT_EQ(plainSpaces(L10n::decimal(-1234.5, 2, row.locale)), row.decimal) << row.locale;
    }
    EXPECT_EQ(L10n::number(std::numeric_limits<std::int64_t>::min(), "en"), "-9,223,372,036,854,775,808");
}

TEST(L10n, decimalsHaveAFixedLength) {
    struct Row {
        double value;
        int precision;
        const char* text;
    };
    const Row rows[] = {
        {0.5, 0, "0"},
        {1.5, 0, "2"},
        {2.5, 0, "2"},
        {2.5, -3, "2"},
        {0.125, 2, "0.12"},
        {3, 4, "3.0000"},
        {1e21, 0, "1,000,000,000,000,000,000,000"},
        {-0.0, 1, "-0.0"},
        {infinite, 1, "∞"},
        {std::nan(""), 2, "NaN"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(L10n::decimal(row.value, row.precision, "en"), row.text);
    }
    EXPECT_EQ(L10n::decimal(1, 5000, "en").size(), 2U + 999U);
}

TEST(L10n, argumentsOfEveryKind) {
    LocalizationController::shared().apply("de");
    EXPECT_EQ(L10n::argument(1234), "1.234");
    EXPECT_EQ(L10n::argument(std::uint64_t{18'446'744'073'709'551'615U}), "18.446.744.073.709.551.615");
    EXPECT_EQ(L10n::argument(short{-7}), "-7");
    EXPECT_EQ(L10n::argument(1234.5678901), "1.234,56789");
    EXPECT_EQ(L10n::argument(0.5F), "0,5");
    EXPECT_EQ(L10n::argument(true), "true");
    EXPECT_EQ(L10n::argument("1234"), "1234");
    EXPECT_EQ(L10n::argument(std::string("x")), "x");
    EXPECT_EQ(L10n::text("파일 {0}개 수정", {.arguments = {L10n::argument(1234)}, .count = 1234}),
              "1.234 Dateien bearbeitet");
    LocalizationController::shared().apply("");
}

TEST(L10n, datesInTheWaysOfTheirLocales) {
    struct Row {
        const char* locale;
        const char* timeZone;
        const char* date;
        const char* dateTime;
    };
    const Row rows[] = {
        {"en_US", "UTC", "Jan 2, 2026", "Jan 2, 2026, 3:04 AM"},
        {"en_GB", "UTC", "2 Jan 2026", "2 Jan 2026, 03:04"},
        {"ko_KR", "Asia/Seoul", "2026. 1. 2.", "2026. 1. 2. 오후 12:04"},
        {"ja", "UTC", "2026/01/02", "2026/01/02 3:04"},
        {"de", "America/Los_Angeles", "01.01.2026", "01.01.2026, 19:04"},
        {"fr", "UTC", "2 janv. 2026", "2 janv. 2026, 03:04"},
        {"es", "UTC", "2 ene 2026", "2 ene 2026, 3:04"},
        {"ru", "UTC", "2 янв. 2026 г.", "2 янв. 2026 г., 03:04"},
        {"zh-Hans", "UTC", "2026年1月2日", "2026年1月2日 03:04"},
        {"th_TH", "UTC", "2 ม.ค. 2569", "2 ม.ค. 2569 03:04"},  // Buddhist years
        {"en_US", "No/Zone", "Jan 2, 2026", "Jan 2, 2026, 3:04 AM"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(plainSpaces(L10n::date(secondOfJanuary, row.locale, row.timeZone)), row.date) << row.locale;
        EXPECT_EQ(plainSpaces(L10n::dateTime(secondOfJanuary, row.locale, row.timeZone)), row.dateTime) << row.locale;
    }
    EXPECT_EQ(L10n::dateTime("2026-01-02T12:04:05+09:00", "de", "UTC"), "02.01.2026, 03:04");
    EXPECT_EQ(L10n::dateTime("2026-01-02", "de", "UTC"), "2026-01-02");
    EXPECT_EQ(L10n::dateTime("\xFF", "de", "UTC"), "\uFFFD");
    for (const double moment : {infinite, -infinite, std::nan("")}) {
        EXPECT_EQ(L10n::dateTime(Date{moment}, "en", "UTC"), "");
    }
    EXPECT_NE(L10n::dateTime(Date{1e300}, "en", "UTC"), "");
}

TEST(L10n, timestamps) {
    const std::pair<const char*, std::optional<double>> rows[] = {
        {"2026-01-02T03:04:05Z", 1767323045},
        {"2026-01-02T03:04:05.5Z", 1767323045.5},
        {"2026-01-02T03:04:05.1234569Z", 1767323045.123456},
        {"2026-01-02T12:04:05+09:00", 1767323045},
        {"2026-01-01T21:34:05-0530", 1767323045},
        {"1969-12-31T23:59:59.75Z", -0.25},
        {"2024-02-29T00:00:00Z", 1709164800},
        {"0001-01-01T00:00:00Z", -62135596800},
        {"9999-12-31T23:59:59-23:59", 253402387139},
        {"2025-02-29T00:00:00Z", {}},
        {"2026-13-01T00:00:00Z", {}},
        {"2026-00-10T00:00:00Z", {}},
        {"0000-01-01T00:00:00Z", {}},
        {"2026-01-02T24:00:00Z", {}},
        {"2026-01-02T03:60:05Z", {}},
        {"2026-01-02T03:04:60Z", {}},
        {"2026-01-02T03:04:05", {}},
        {"2026-01-02T03:04:05.Z", {}},
        {"2026-01-02T03:04:05,5Z", {}},
        {"2026-01-02T03:04:05+24:00", {}},
        {"2026-01-02T03:04:05+09:60", {}},
        {"2026-01-02T03:04:05+09", {}},
        {"2026-01-02T03:04:05z", {}},
        {"2026-01-02t03:04:05Z", {}},
        {"2026-01-02 03:04:05Z", {}},
        {" 2026-01-02T03:04:05Z", {}},
        {"2026-01-02T03:04:05Z ", {}},
        {"2026-1-2T03:04:05Z", {}},
        {"２０２６-01-02T03:04:05Z", {}},
        {"+2026-01-02T03:04:05Z", {}},
        {"20260102T030405Z", {}},
        {"", {}},
    };
    for (const auto& [text, seconds] : rows) {
        const auto date = L10n::timestamp(text);
        ASSERT_EQ(date.has_value(), seconds.has_value()) << text;
        if (seconds) {
            EXPECT_EQ(date->secondsSince1970, *seconds) << text;
        }
    }
    const std::string whole = "2026-01-02T03:04:05Z";
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(L10n::timestamp(whole.substr(0, length)).has_value()) << length;
    }
    const auto withFraction = [](std::size_t digits) {
        return "2026-01-02T03:04:05." + std::string(digits, '0') + "Z";
    };
    EXPECT_TRUE(L10n::timestamp(withFraction(128 - 21)).has_value());
    EXPECT_FALSE(L10n::timestamp(withFraction(129 - 21)).has_value());
}

TEST(L10n, shortRelativeCountsWholeUnits) {
    struct Row {
        double elapsed;
        const char* locale;
        const char* text;
    };
    const Row rows[] = {
        {0, "en", "now"},
        {-3, "en", "now"},
        {-86'399, "en", "now"},
        {0.99, "en", "now"},
        {1, "en", "1 sec. ago"},
        {59.9, "en", "59 sec. ago"},
        {60, "en", "1 min. ago"},
        {3599, "en", "59 min. ago"},
        {3600, "en", "1 hr. ago"},
        {86'399.9, "en", "23 hr. ago"},
        {86'400, "en", "Jan 1, 2026"},
        {-86'400, "en", "Jan 3, 2026"},
        {0, "ko", "지금"},
        {5, "ko", "5초 전"},
        {300, "ko", "5분 전"},
        {7200, "ko", "2시간 전"},
        {7200, "ja", "2 時間前"},
        {7200, "de", "vor 2 Std."},
        {300, "fr", "il y a 5 min"},
        {5, "es", "hace 5 s"},
        {120, "ru", "2 мин. назад"},
        {0, "vi", "bây giờ"},
        {300, "zh-Hant", "5 分鐘前"},
        {0, "th", "ขณะนี้"},
    };
    for (const Row& row : rows) {
        const Date date{secondOfJanuary.secondsSince1970 - row.elapsed};
        EXPECT_EQ(plainSpaces(L10n::shortRelative(date, secondOfJanuary, row.locale, "UTC")), row.text)
            << row.locale << " " << row.elapsed;
    }
    EXPECT_EQ(L10n::shortRelative(Date{std::nan("")}, secondOfJanuary, "en"), "");
    EXPECT_EQ(L10n::shortRelative(Date{infinite}, Date{infinite}, "en"), "");
    EXPECT_EQ(L10n::shortRelative(secondOfJanuary, Date{-infinite}, "en", "UTC"), "Jan 2, 2026");
}

TEST(L10n, durations) {
    struct Row {
        double seconds;
        const char* language;
        const char* locale;
        const char* text;
    };
    const Row rows[] = {
        {1, "en", "en", "1 sec"},        {12345, "en", "en", "12,345 sec"}, {0, "en", "en", "0.00 sec"},
        {0.254, "en", "en", "0.25 sec"}, {1.5, "de", "de", "1,50 Sek."},    {-2, "en", "en", "-2.00 sec"},
        {90, "ko", "ko", "90초"},        {2.5, "ja", "fr", "2,50秒"},       {std::nan(""), "en", "en", "NaN sec"},
        {infinite, "en", "en", "∞ sec"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(L10n::duration(row.seconds, row.language, row.locale), row.text);
    }
}

TEST(L10n, catalogues) {
    EXPECT_EQ(L10n::availableCatalogLanguages(), (std::vector<std::string>{"de", "en", "es", "fr", "ja", "ko", "ru"}));
    ASSERT_NE(L10n::catalog("de"), nullptr);
    EXPECT_EQ(L10n::catalog("de")->messages.at("나중에 볼 것"), "Später prüfen");
    EXPECT_EQ(L10n::catalog("pt"), nullptr);
}

}  // namespace
}  // namespace vellark
