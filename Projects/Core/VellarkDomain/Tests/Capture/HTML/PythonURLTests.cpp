#include "Capture/Differential.hpp"
#include <VellarkDomain/Capture/HTML/PythonURL.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

TEST(PythonURL, splits) {
    using Parts = PythonURL::Parts;
    EXPECT_EQ(PythonURL::split(" HTTP://u@h:80/a\nb?q?#f#g"), (Parts{"http", "u@h:80", "/ab", "q?", "f#g"}));
    EXPECT_EQ(PythonURL::split("./a b.png"), (Parts{"", "", "./a b.png", "", ""}));
    EXPECT_EQ(PythonURL::split("1a:b"), (Parts{"", "", "1a:b", "", ""}));
    EXPECT_EQ(PythonURL::split("\xFF"), (Parts{"", "", "\uFFFD", "", ""}));
    EXPECT_EQ(PythonURL::split("//[::1"), std::nullopt);
    EXPECT_EQ(PythonURL::split("//a\uFF0Fb"), std::nullopt);
}

constexpr std::string_view splitModel = R"(
import urllib.parse
if not hasattr(urllib.parse, '_check_bracketed_host'): sys.exit(77)
def answer(case):
    try: return '\0'.join(urllib.parse.urlsplit(case.decode())).encode()
    except ValueError: return b'refused'
)";

std::string splitText(const std::string& text) {
    const auto parts = PythonURL::split(text);
    if (!parts) return "refused";
    std::string result;
    for (const std::string* part : {&parts->scheme, &parts->netloc, &parts->path, &parts->query}) {
        result += *part + '\0';
    }
    return result + parts->fragment;
}

TEST(PythonURL, splitsAsPythonDoes) {
    std::vector<std::string> cases;
    for (char32_t scalar = 1; scalar < 0x30000; ++scalar) {
        if (scalar >= 0xD800 && scalar <= 0xDFFF) continue;
        if (scalar >= 0x3400 && scalar < 0xF900 && scalar % 64 != 0) continue;
        if (scalar >= 0x20000 && scalar % 64 != 0) continue;
        std::string text = "//a";
        UTF8::append(text, scalar);
        cases.push_back(text + "b");
    }
    constexpr std::string_view tokens[] = {":",  "/",   "//",  "?",  "#",  "[",  "]",    "@",    "http",   "a", "Z",
                                           "1",  "+",   ".",   "%",  "\t", "\n", " ",    "\x01", "::1",    "é", "1:2",
                                           "[v", "v1.", "//[", "\\", "℀",  "＃", "ffff", "256",  "1.2.3.4"};
    testing::appendAllSequences(cases, tokens, 3);
    testing::Generator generator(2);
    for (int count = 0; count < 60'000; ++count) {
        cases.push_back(generator.join(tokens, 4 + generator.below(6)));
    }
    constexpr std::string_view groups[] = {":",     ":", ":",       "::",       "1", "ab",    "0",          "fFfF",
                                           "12345", "g", "1.2.3.4", "01.2.3.4", "%", "1.2.3", "255.0.0.256"};
    for (int count = 0; count < 60'000; ++count) {
        cases.push_back("//[" + generator.join(groups, 1 + generator.below(17)) + "]");
    }
    testing::expectSameAsPython(splitModel, cases, splitText);
}

TEST(PythonURL, quotesAndUnquotesAsPythonDoes) {
    constexpr std::string_view tokens[] = {"%",      "%%",        "%4",  "%41", "%e2",       "%82", "%AC", "%ff",
                                           "%c0%80", "%ED%A0%80", "a",   "G",   "/",         "~",   "é",   "한",
                                           "\x7F",   "+",         "%2F", "%00", "%F0%9F%98", "😀"};
    std::vector<std::string> cases;
    testing::appendAllSequences(cases, tokens, 3);
    testing::Generator generator(3);
    for (int count = 0; count < 100'000; ++count) {
        cases.push_back(generator.join(tokens, 4 + generator.below(8)));
    }
    testing::expectSameAsPython(
        "from urllib.parse import quote, unquote\n"
        "def answer(case): return (unquote(case.decode()) + '\\0' + quote(case.decode())).encode()",
        cases, [](const std::string& text) { return PythonURL::unquote(text) + '\0' + PythonURL::quote(text); });
}

}  // namespace
}  // namespace vellark
