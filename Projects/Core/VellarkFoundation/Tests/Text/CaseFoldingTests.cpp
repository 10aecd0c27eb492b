#include "Support/PythonPeer.hpp"
#include <VellarkFoundation/Text/CaseFolding.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

TEST(CaseFolding, foldsWords) {
    const std::pair<std::string, std::string> rows[] = {
        {"", ""},
        {"Az@[`{09", "az@[`{09"},
        {"Straße", "strasse"},
        {"ẞ", "ss"},
        {"\u212A\u017F", "ks"},
        {"ΣΊΣΥΦΟΣ ς", "σίσυφοσ σ"},
        {"İI", "i\u0307i"},
        {"ﬃ", "ffi"},
        {"Ꭰꭰ", "ᎠᎠ"},
        {"\U00010400", "\U00010428"},
        {"e\u0301É", "e\u0301é"},
        {"a\xff\xe3\x81", "a\uFFFD\uFFFD"},
    };
    for (const auto& [text, folded] : rows) {
        EXPECT_EQ(CaseFolding::fold(text), folded) << text;
    }
}

TEST(CaseFolding, foldsEveryScalarAsCPython) {
    std::vector<std::string> scalars;
    for (char32_t scalar = 0; scalar <= 0x10FFFF; ++scalar) {
        if (scalar % 64 == 0) scalars.emplace_back();
        UTF8::append(scalars.back(), scalar);
    }
    // Python 3.14 knows letters of Unicode 16, which are younger than the table.
    const auto answers = testing::PythonPeer::answers(R"(
if sys.version_info >= (3, 14): sys.exit(77)
def answer(case): return case.decode().casefold().encode())",
                                                      scalars);
    if (!answers) GTEST_SKIP() << "no python3 of a fitting version";
    for (std::size_t index = 0; index < scalars.size(); ++index) {
        ASSERT_EQ(CaseFolding::fold(scalars[index]), (*answers)[index]) << "around scalar " << index * 64;
    }
}

}  // namespace
}  // namespace vellark
