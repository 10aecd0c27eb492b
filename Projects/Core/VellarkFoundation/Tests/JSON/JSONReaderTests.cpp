#include <VellarkFoundation/JSON/JSONReader.hpp>
#include <VellarkFoundation/JSON/PythonJSONWriter.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

struct Row {
    const char* name;
    std::string text;
    bool fragments = false;
};

std::string nested(std::size_t depth) {
    return std::string(depth, '[') + std::string(depth, ']');
}

TEST(JSONReader, accepts) {
    const Row rows[] = {
        {"object", "{}"},
        {"blanks around", " \t\r\n[1] \n"},
        {"byte order mark", "\xEF\xBB\xBF{}"},
        {"escaped zero", R"(["\u0000"])"},
        {"surrogate pair", R"(["\ud834\udd1e"])"},
        {"512 containers", nested(512)},
        {"underflow is zero", "[1e-400]"},
        {"exponent beyond an int, zero mantissa", "[0e99999999999999]"},
        {"exponent beyond an int, negative", "[1e-99999999999999, \"1e99999999999999\"]"},
        {"zero-padded exponent", "[1e000000000000000000000000000001]"},
        {"long integer", "[" + std::string(100'000, '7') + "]"},
        {"fragment text", "\"a\"", true},
        {"fragment number", " 1 ", true},
        {"fragment null", "null", true},
    };
    for (const Row& row : rows) {
        EXPECT_TRUE(JSONReader::read(row.text, {.fragments = row.fragments}).has_value()) << row.name;
    }
}

TEST(JSONReader, refuses) {
    const Row rows[] = {
        {"nothing", ""},
        {"blanks", "  "},
        {"fragment at the top", "1"},
        {"text at the top", "\"a\""},
        {"two values", "{} {}"},
        {"zero byte behind", std::string("{}\0", 3)},
        {"two byte order marks", "\xEF\xBB\xBF\xEF\xBB\xBF{}"},
        {"trailing comma in array", "[1,]"},
        {"trailing comma in object", "{\"a\":1,}"},
        {"comment", "[1/*x*/]"},
        {"not a number", "[NaN]"},
        {"infinity", "[-Infinity]"},
        {"beyond a double", "[1e400]"},
        {"far beyond a double", "[1e99999999999999]"},
        {"leading zero", "[01]"},
        {"plus sign", "[+1]"},
        {"point without digits", "[1.]"},
        {"single quotes", "['a']"},
        {"raw line feed", "[\"a\nb\"]"},
        {"raw escape character", "[\"\x1b\"]"},
        {"unknown escape", R"(["\x41"])"},
        {"lone high surrogate", R"(["\ud800"])"},
        {"lone low surrogate", R"(["\udc00"])"},
        {"surrogates in the wrong order", R"(["\udd1e\ud834"])"},
        {"byte FF", "[\"\xff\"]"},
        {"overlong", "[\"\xc0\x80\"]"},
        {"encoded surrogate", "[\"\xed\xa0\x80\"]"},
        {"above U+10FFFF", "[\"\xf4\x90\x80\x80\"]"},
        {"cut sequence", "[\"\xe3\x81\"]"},
        {"ill-formed in a dropped place", "{} \xff"},
        {"UTF-16", std::string("[\0]\0", 4)},
        {"513 containers", nested(513)},
        {"a million brackets", std::string(1'000'000, '[')},
        {"a million objects",
         [] {
             std::string text;
             for (int index = 0; index < 1'000'000; ++index)
                 text += "{\"a\":";
             return text;
         }()},
        {"open string", "[\"a"},
        {"open object", "{\"a\":1"},
    };
    for (const Row& row : rows) {
        EXPECT_FALSE(JSONReader::read(row.text, {.fragments = row.fragments}).has_value()) << row.name;
    }
}

TEST(JSONReader, everyPrefixOfAValueIsRefused) {
    const std::string text = R"({"a": [1, -2.5e3, "x\u00e9\ud834\udd1e"], "b": {"c": null, "d": [true, false]}})";
    ASSERT_TRUE(JSONReader::read(text).has_value());
    for (std::size_t length = 0; length < text.size(); ++length) {
        EXPECT_FALSE(JSONReader::read(text.substr(0, length)).has_value()) << length;
    }
}

TEST(JSONReader, errorsNameTheByte) {
    EXPECT_EQ(JSONReader::read("[1, x]").error().byteOffset, 4U);
    EXPECT_EQ(JSONReader::read("\xEF\xBB\xBF{} x").error().byteOffset, 6U);
}

std::string rewritten(std::string_view text, std::span<const JSONSelection> keep = {}) {
    const auto value = JSONReader::read(text, {.fragments = true, .keep = keep});
    return value ? PythonJSONWriter::write(*value).value_or("unwritable") : "refused";
}

TEST(JSONReader, keepsNumbersAndOrder) {
    const std::pair<const char*, const char*> rows[] = {
        {"[123456789012345678901234567890, -0, 0, -1]", "[123456789012345678901234567890, 0, 0, -1]"},
        {"[1.0, 1E2, -0.0, 1e16, 123456789.125]", "[1.0, 100.0, -0.0, 1e+16, 123456789.125]"},
        {"[0.1, 0.0001, 0.00001, 5e-324, 1.7976931348623157e308]",
         "[0.1, 0.0001, 1e-05, 5e-324, 1.7976931348623157e+308]"},
        {"[9007199254740993.0, 1234567890123456.7]", "[9007199254740992.0, 1234567890123456.8]"},
        {R"({"b": 1, "a": 2, "b": {"c": 3}})", R"({"b": {"c": 3}, "a": 2})"},
    };
    for (const auto& [text, expected] : rows) {
        EXPECT_EQ(rewritten(text), expected);
    }
}

TEST(JSONReader, lastOfManyEqualKeysCounts) {
    std::string text = "{";
    for (int index = 0; index < 1000; ++index) {
        text += "\"k" + std::to_string(index % 100) + "\": " + std::to_string(index) + ", ";
    }
    const auto value = JSONReader::read(text + "\"z\": 0}");
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(value->object()->members().size(), 101U);
    EXPECT_EQ(value->object()->members().front(), (JSONMember{"k0", JSONNumber{"900"}}));
}

TEST(JSONReader, selectionDropsWhatIsNotAskedFor) {
    static constexpr JSONSelection inner[] = {{"x"}};
    static constexpr JSONSelection keep[] = {{"a"}, {"b", inner}};
    const std::pair<const char*, const char*> rows[] = {
        {R"({"a": {"x": 1, "y": 2}, "b": {"x": 1, "y": 2}, "c": 3})", R"({"a": {"x": 1, "y": 2}, "b": {"x": 1}})"},
        {R"({"c": [{"a": [1, {"b": 2}]}, "s", null, true, 1.5], "a": []})", R"({"a": []})"},
        {R"({"b": [{"y": 2}], "a": null})", R"({"b": [{"y": 2}], "a": null})"},
        {R"({"b": "text", "c": "\n\u00e9"})", R"({"b": "text"})"},
        {R"({"b": {"y": {"x": 1}, "x": {"y": 2}}})", R"({"b": {"x": {"y": 2}}})"},
        {R"([{"c": 1}])", R"([{"c": 1}])"},
        {R"({"c": {"a": 1}, "c": 2})", "{}"},
        {R"({"c": "\ud800"})", "refused"},
        {R"({"c": 1e999})", "refused"},
    };
    for (const auto& [text, expected] : rows) {
        EXPECT_EQ(rewritten(text, keep), expected) << text;
    }
}

}  // namespace
}  // namespace vellark
