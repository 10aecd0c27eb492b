#include <VellarkLocalization/Formats/DurationTemplate.hpp>
#include <VellarkLocalization/Messages/MessageTemplate.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

TEST(MessageTemplate, fillsOnlyPlaceholdersWithinBounds) {
    struct Row {
        const char* text;
        std::vector<std::string> arguments;
        const char* result;
    };
    const Row rows[] = {
        {"{0} of {1}", {"3", "5"}, "3 of 5"},
        {"{1}{0}{1}", {"a", "b"}, "bab"},
        {"{0}", {"{0}"}, "{0}"},
        {"{0} {1}", {"{1}", "x"}, "{1} x"},
        {"{2}", {"a", "b"}, "{2}"},
        {"{0}", {}, "{0}"},
        {"{00} {01}", {"a"}, "a {01}"},
        {"{+0} {-0} { 0} {0 } {} {a}", {"x"}, "{+0} {-0} { 0} {0 } {} {a}"},
        {"{a{0}", {"x"}, "{ax"},
        {"{{0}}", {"x"}, "{x}"},
        {"{0", {"x"}, "{0"},
        {"}{", {"x"}, "}{"},
        {"{٠}", {"x"}, "{٠}"},
        {"{99999999999999999999999999}", {"x"}, "{99999999999999999999999999}"},
        {"{18446744073709551616}", {"x"}, "{18446744073709551616}"},
        {"<{0}>", {"\xC3("}, "<\uFFFD(>"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(MessageTemplate::filled(row.text, row.arguments), row.result) << row.text;
    }
}

TEST(MessageTemplate, comesApart) {
    using MessageTemplate::Parsed;
    EXPECT_EQ(MessageTemplate::parse("a{1}{0}b"), (Parsed{{"a", "", "b"}, {1, 0}}));
    EXPECT_EQ(MessageTemplate::parse("{7}"), (Parsed{{"", ""}, {7}}));
    EXPECT_EQ(MessageTemplate::parse("a {x} {1000}"), (Parsed{{"a {x} {1000}"}, {}}));
}

TEST(MessageTemplate, readsWholeQuantities) {
    const std::pair<const char*, std::optional<std::int64_t>> rows[] = {
        {"0", 0},
        {"1,234", 1234},
        {"1.234.567", 1234567},
        {"1\u00A0234", 1234},
        {"1\u202F234", 1234},
        {"1\u2009234", 1234},
        {"1'234", 1234},
        {"1’234", 1234},
        {"١٬٢٣٤", 1234},
        {"１２", 12},
        {"๔๒", 42},
        {" 7 ", 7},
        {"9223372036854775807", INT64_MAX},
        {"009223372036854775807", INT64_MAX},
        {"9223372036854775808", std::nullopt},
        {"99999999999999999999", std::nullopt},
        {"", std::nullopt},
        {".", std::nullopt},
        {"-5", std::nullopt},
        {"5 files", std::nullopt},
        {"½", std::nullopt},
        {"②", std::nullopt},
        {"五", std::nullopt},
        {"\xFF", std::nullopt},
    };
    for (const auto& [text, quantity] : rows) {
        EXPECT_EQ(MessageTemplate::integerQuantity(text), quantity) << text;
    }
}

TEST(DurationTemplate, isNoFormatOfTheCLibrary) {
    struct Row {
        const char* text;
        double seconds;
        const char* locale;
        const char* result;
    };
    const Row rows[] = {
        {"%.0f sec", 1234, "en", "1,234 sec"},   {"%.2f Sek.", 1234.5, "de", "1.234,50 Sek."},
        {"%.2f %.0f", 1, "en", "1.00 %.0f"},     {"%% %%.0f %.0f%", 5, "en", "% %.0f 5%"},
        {"%s%n%d %.1f", 5, "en", "%s%n%d %.1f"}, {"", 5, "en", ""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(DurationTemplate::filled(row.text, row.seconds, row.locale), row.result);
    }
}

}  // namespace
}  // namespace vellark
