#include "Support/PythonPeer.hpp"
#include "Support/RandomInput.hpp"
#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <gtest/gtest.h>

#include <functional>

// CPython's str and posixpath as the model. Ill-formed bytes are compared with the text that Python makes of them.

namespace vellark {
namespace {

// All white space, what only looks like it, line ends, cases that fold to several scalars, ill-formed bytes.
const std::vector<std::string> textPieces = {
    "\t",         "\n",           "\v",     "\f",     "\r",         "\r\n",
    "\x1c",       "\x1d",         "\x1e",   "\x1f",   " ",          "\u0085",
    "\u00A0",     "\u1680",       "\u2000", "\u2007", "\u200A",     "\u2028",
    "\u2029",     "\u202F",       "\u205F", "\u3000", "\u200B",     "\u180E",
    "\uFEFF",     "\u001A",       "\u007F", "a",      "Zz",         "\u0301",
    "\U0001F600", "한",           "ß",      "İ",      "ΐ",          "ﬃ",
    "ς",          "\u212A",       "\u017F", "Ꭰ",      "\U00010400", "\u2009\u2009",
    "\xff",       "\xe2\x80",     "\xc2",   "\xa0",   "\x85",       "\xf0\x9f\x98",
    "word",       "\xed\xa0\x80",
};

constexpr char itemEnd = '\xfe';  // in no UTF-8

std::string joined(const std::vector<std::string_view>& items) {
    std::string text;
    for (const std::string_view item : items) {
        text += UTF8::replacingInvalid(item) + itemEnd;
    }
    return text;
}

void compare(const std::vector<std::string>& cases, std::string_view script,
             const std::function<std::string(std::string_view)>& ours) {
    const auto answers = testing::PythonPeer::answers(script, cases);
    if (!answers) GTEST_SKIP() << "no python3 of a fitting version";
    for (std::size_t index = 0; index < cases.size(); ++index) {
        ASSERT_EQ(ours(cases[index]), (*answers)[index]) << testing::PythonPeer::hexadecimal(cases[index]);
    }
}

TEST(PythonTextPeer, strip) {
    compare(testing::randomTexts(11, 100'000, 6, textPieces),
            "def answer(case): return case.decode('utf-8', 'replace').strip().encode()",
            [](std::string_view text) { return UTF8::replacingInvalid(PythonText::strip(text)); });
}

TEST(PythonTextPeer, split) {
    compare(testing::randomTexts(12, 100'000, 8, textPieces),
            "def answer(case): return b''.join(p.encode() + b'\\xfe' for p in case.decode('utf-8', 'replace').split())",
            [](std::string_view text) { return joined(PythonText::split(text)); });
}

TEST(PythonTextPeer, splitlines) {
    compare(testing::randomTexts(13, 100'000, 8, textPieces),
            "def answer(case): return b''.join(p.encode() + b'\\xfe' for p in case.decode('utf-8', "
            "'replace').splitlines())",
            [](std::string_view text) { return joined(PythonText::splitlines(text)); });
}

TEST(PythonTextPeer, casefold) {
    compare(testing::randomTexts(14, 100'000, 8, textPieces),
            "def answer(case): return case.decode('utf-8', 'replace').casefold().encode()", PythonText::casefold);
}

TEST(PythonTextPeer, normpath) {
    compare(testing::randomTexts(15, 100'000, 10, {"/", "/", "//", ".", "..", "../", "a", "b/", "...", "é", " ", "~"}),
            "import posixpath\ndef answer(case): return posixpath.normpath(case)", PythonText::normpath);
}

TEST(PythonTextPeer, everySpace) {
    std::vector<std::string> scalars;
    for (char32_t scalar = 0; scalar < 0x11000; ++scalar) {
        if (scalar < 0xD800 || scalar > 0xDFFF) UTF8::append(scalars.emplace_back(), scalar);
    }
    compare(scalars, "def answer(case): return b'%d' % case.decode().isspace()", [](std::string_view text) {
        return std::string(PythonText::isSpace(UTF8::decode(text, 0).scalar) ? "1" : "0");
    });
}

}  // namespace
}  // namespace vellark
