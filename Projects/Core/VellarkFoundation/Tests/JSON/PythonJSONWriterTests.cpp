#include "Support/PythonPeer.hpp"
#include "Support/RandomInput.hpp"
#include <VellarkFoundation/JSON/JSONReader.hpp>
#include <VellarkFoundation/JSON/PythonJSONWriter.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

using namespace std::string_literals;

// What Python's json does, less what it takes beyond the standard: NaN, infinities, halves of surrogate pairs. Behind
// the text stands, after a byte that no text holds, the one with sorted keys.
constexpr const char* pythonModel = R"(
import json, math
if hasattr(sys, 'set_int_max_str_digits'): sys.set_int_max_str_digits(0)
def refuse(text): raise ValueError(text)
def real(text): return float(text) if math.isfinite(float(text)) else refuse(text)
def members(pairs):
    json.dumps(pairs, ensure_ascii=False).encode()
    return dict(pairs)
def answer(case):
    try:
        text = case.decode().removeprefix('\ufeff')
        value = json.loads(text, parse_constant=refuse, parse_float=real, object_pairs_hook=members)
        json.dumps(value, ensure_ascii=False).encode()
    except ValueError:
        return b'refused'
    return json.dumps(value).encode() + b'\xff' + json.dumps(value, sort_keys=True).encode())";

std::string rewritten(std::string_view text) {
    const auto value = JSONReader::read(text, {.fragments = true});
    if (!value) return "refused";
    return PythonJSONWriter::write(*value).value_or("unwritable") + "\xff" +
           PythonJSONWriter::write(*value, {.sortKeys = true}).value_or("unwritable");
}

std::vector<std::string> generatedTexts() {
    testing::RandomJSON json(
        4, {R"("a")", R"("b")", R"("\u00e9")", R"("é")", R"("\ud834\udd1e")", R"("\uffff")", R"("")", R"("a\u0000b")"},
        {"null",
         "true",
         "false",
         "0",
         "-0",
         "-0.0",
         "12345678901234567890123",
         "1E2",
         "1e-5",
         "123456.789e10",
         "5e-324",
         "0.1",
         "1e16",
         "\"\"",
         R"("\"\\\/\b\f\n\r\t\u007f\u001f")",
         "\"\x7f/~ \"",
         "\"é𝄞한\uFFFD\"",
         R"("\ud800\udc00\uDBFF\uDFFF")",
         R"("plain text of some length, with no escape at all in it")",
         "[]",
         "{}"});
    testing::RandomNumbers random(5);
    const std::string intruders = "{}[]\",:\\u0129aeE+-. \t\n\x01\x7f\xc3\xa9\xed\xa0\xf0\xff/*NnIt\0"s;
    std::vector<std::string> texts;
    while (texts.size() < 100'000) {
        std::string text = json.value(4);
        if (random.below(20) == 0) text.insert(0, "\xEF\xBB\xBF");
        for (std::size_t damage = random.below(3); damage > 0 && !text.empty(); --damage) {
            const std::size_t place = random.below(text.size());
            const char intruder = intruders[random.below(intruders.size())];
            switch (random.below(4)) {
                case 0:
                    text.erase(place, 1);
                    break;
                case 1:
                    text.insert(place, 1, intruder);
                    break;
                case 2:
                    text[place] = intruder;
                    break;
                default:
                    text.resize(place);
                    break;
            }
        }
        texts.push_back(std::move(text));
    }
    return texts;
}

TEST(PythonJSONWriter, readsAndWritesAsCPython) {
    const auto texts = generatedTexts();
    const auto answers = testing::PythonPeer::answers(pythonModel, texts);
    if (!answers) GTEST_SKIP() << "no python3";
    std::size_t refusedCount = 0;
    for (std::size_t index = 0; index < texts.size(); ++index) {
        const std::string ours = rewritten(texts[index]);
        ASSERT_EQ(ours, (*answers)[index]) << texts[index];
        if (ours == "refused") ++refusedCount;
    }
    EXPECT_GT(refusedCount, texts.size() / 5) << "damage that no longer damages tests nothing";
    EXPECT_LT(refusedCount, texts.size() * 4 / 5);
}

TEST(PythonJSONWriter, writesEveryScalarAsCPython) {
    std::vector<std::string> texts;
    for (char32_t scalar = 0; scalar <= 0x10FFFF; ++scalar) {
        if (scalar % 256 == 0) texts.emplace_back();
        if (scalar < 0xD800 || scalar > 0xDFFF) UTF8::append(texts.back(), scalar);
    }
    const auto answers =
        testing::PythonPeer::answers("import json\ndef answer(case): return json.dumps(case.decode()).encode()", texts);
    if (!answers) GTEST_SKIP() << "no python3";
    for (std::size_t index = 0; index < texts.size(); ++index) {
        ASSERT_EQ(PythonJSONWriter::write(texts[index]), (*answers)[index]) << "from scalar " << index * 256;
    }
}

TEST(PythonJSONWriter, refusesWhatHasNoForm) {
    EXPECT_EQ(PythonJSONWriter::write(JSONArray{JSONNumber{"1"}, JSONArray{JSONNumber{"1e999"}}}), std::nullopt);
    EXPECT_EQ(PythonJSONWriter::write("a\xff\xe3\x81z"), R"("a\ufffd\ufffdz")") << "a text always has one";
}

}  // namespace
}  // namespace vellark
