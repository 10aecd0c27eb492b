#include "Capture/Differential.hpp"
#include <VellarkDomain/Capture/HTML/HTMLEntities.hpp>
#include <VellarkDomain/Capture/HTML/PythonHTMLTitle.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

TEST(HTMLEntities, findsEveryNameOfItsTable) {
    ASSERT_EQ(HTMLEntities::count(), 2'231U);
    for (std::size_t index = 0; index < HTMLEntities::count(); ++index) {
        const HTMLEntities::Entity entity = HTMLEntities::at(index);
        EXPECT_EQ(HTMLEntities::find(entity.name), entity.text) << entity.name;
    }
    EXPECT_EQ(HTMLEntities::find("hearts;"), "♥");
    for (const char* const name : {"", "h", "hearts", "heartz;", "Zzz;", "{a;", "@mp;"}) {
        EXPECT_EQ(HTMLEntities::find(name), std::nullopt) << name;
    }
}

TEST(HTMLEntities, replacesIllFormedText) {
    EXPECT_EQ(PythonHTMLTitle::unescape("\xFF&amp;\xE2\x82"), "\uFFFD&\uFFFD");
}

// Python refuses decimal references of more than 4,300 digits with an error; here they are too large like any other.
TEST(HTMLEntities, readsNumbersOfAnyLength) {
    EXPECT_EQ(PythonHTMLTitle::unescape("&#" + std::string(5'000, '9') + ";a"), "\uFFFDa");
    EXPECT_EQ(PythonHTMLTitle::unescape("&#" + std::string(5'000, '0') + "65;a"), "Aa");
}

TEST(HTMLEntities, unescapesAsPythonDoes) {
    std::vector<std::string> cases;
    std::vector<std::string> names;
    for (std::size_t index = 0; index < HTMLEntities::count(); ++index) {
        names.emplace_back(HTMLEntities::at(index).name);
        cases.push_back("&" + names.back());
        cases.push_back("&" + names.back() + "x;");
    }
    constexpr std::string_view bases[] = {"&#", "&#x", "&#X"};
    testing::Generator generator(1);
    for (int number = 0; number < 0x300; ++number) {
        cases.push_back("&#" + std::to_string(number) + (number % 2 == 0 ? ";" : ""));
    }
    constexpr std::string_view tokens[] = {
        "&",    "&#",   ";", "#",  "x",   "0",   "9",   "1F",    "D800",     "110000",
        "FFFE", "fdd0", "a", " ",  "amp", "lt",  "no",  "&not",  "notin;",   "\n",
        "\r",   "<",    "é", "한", "&&",  "128", "159", "&ampx", "\xC2\xA0", "CounterClockwiseContourIntegral"};
    for (int count = 0; count < 100'000; ++count) {
        std::string text = generator.join(tokens, 1 + generator.below(7));
        if (generator.chance(3))
            text += std::string(generator.pick(bases)) + std::to_string(generator.below(1'200'000)) + ";";
        if (generator.chance(3))
            text += "&" + generator.pick(names).substr(0, 1 + generator.below(8)) + generator.join(tokens, 1);
        cases.push_back(std::move(text));
    }
    testing::expectSameAsPython("import html\ndef answer(case): return html.unescape(case.decode()).encode()", cases,
                                [](const std::string& text) { return PythonHTMLTitle::unescape(text); });
}

}  // namespace
}  // namespace vellark
