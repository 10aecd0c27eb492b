#include "Support/PythonPeer.hpp"
#include "Support/RandomInput.hpp"
#include <VellarkFoundation/Text/UTF8.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

// The first and last bytes of every row of the table of well-formed sequences, and their neighbours.
const std::vector<std::string> nastyBytes = [] {
    std::vector<std::string> bytes;
    for (const int byte : {0x00, 0x41, 0x7F, 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBF, 0xC0, 0xC1, 0xC2, 0xDF,
                           0xE0, 0xE1, 0xEC, 0xED, 0xEE, 0xEF, 0xF0, 0xF1, 0xF3, 0xF4, 0xF5, 0xFF}) {
        bytes.emplace_back(1, static_cast<char>(byte));
    }
    return bytes;
}();

std::vector<std::string> nastyTexts() {
    std::vector<std::string> texts{""};
    for (std::size_t start = 0, length = 1; length <= 3; ++length) {
        for (const std::size_t end = texts.size(); start < end; ++start) {
            for (const std::string& byte : nastyBytes) {
                texts.push_back(texts[start] + byte);
            }
        }
    }
    // Long ones too, as validation passes over words of eight bytes.
    auto pieces = nastyBytes;
    for (const char* piece : {"abc", "é", "한국어", "漢字", "\U0001F600", "\U0010FFFF", "\uFFFD", "plain text, long"}) {
        pieces.insert(pieces.end(), 4, piece);
    }
    for (std::string& text : testing::randomTexts(1, 100'000, 14, pieces)) {
        texts.push_back(std::move(text));
    }
    return texts;
}

// A sequence is well-formed when encoding the scalar of its payload bits gives the same bytes.
bool isSequence(std::string_view bytes) {
    const auto lead = static_cast<unsigned char>(bytes[0]);
    char32_t scalar = bytes.size() == 1 ? lead : lead & (0x7FU >> bytes.size());
    for (const char byte : bytes.substr(1)) {
        scalar = (scalar << 6) | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    std::string encoded;
    UTF8::append(encoded, scalar);
    return encoded == bytes;
}

bool plainIsValid(std::string_view text) {
    std::size_t offset = 0;
    while (offset < text.size()) {
        std::size_t length = 1;
        while (length <= 4 && !(offset + length <= text.size() && isSequence(text.substr(offset, length))))
            ++length;
        if (length > 4) return false;
        offset += length;
    }
    return true;
}

TEST(UTF8, validatesAsThePlainDecoder) {
    for (const std::string& text : nastyTexts()) {
        ASSERT_EQ(UTF8::isValid(text), plainIsValid(text)) << testing::PythonPeer::hexadecimal(text);
    }
}

TEST(UTF8, replacesMaximalSubpartsAsCPython) {
    const auto texts = nastyTexts();
    const auto answers = testing::PythonPeer::answers(R"(
def answer(case):
    text = case.decode('utf-8', 'replace')
    return b'%d %d ' % (len(text), text.isascii()) + text.encode())",
                                                      texts);
    if (!answers) GTEST_SKIP() << "no python3";
    for (std::size_t index = 0; index < texts.size(); ++index) {
        const std::string& text = texts[index];
        const std::string ours = std::to_string(UTF8::scalarCount(text)) + (UTF8::isASCII(text) ? " 1 " : " 0 ") +
                                 UTF8::replacingInvalid(text);
        ASSERT_EQ(ours, (*answers)[index]) << testing::PythonPeer::hexadecimal(text);
    }
}

TEST(UTF8, walksBackOverTheSameScalars) {
    for (const std::string& text : nastyTexts()) {
        std::vector<std::size_t> forward;
        for (auto scalar = Scalars(text).begin(); scalar != Scalars(text).end(); ++scalar) {
            forward.push_back(scalar.offset());
        }
        std::size_t offset = text.size();
        while (!forward.empty()) {
            offset = UTF8::previousOffset(text, offset);
            ASSERT_EQ(offset, forward.back()) << testing::PythonPeer::hexadecimal(text);
            forward.pop_back();
        }
    }
}

TEST(UTF8, everyScalarComesBack) {
    for (char32_t scalar = 0; scalar <= 0x110000; ++scalar) {
        std::string text;
        UTF8::append(text, scalar);
        const bool isScalar = scalar <= 0x10FFFF && (scalar < 0xD800 || scalar > 0xDFFF);
        const UTF8::Decoded decoded = UTF8::decode(text, 0);
        ASSERT_EQ(decoded.scalar, isScalar ? scalar : UTF8::replacementScalar);
        ASSERT_EQ(decoded.byteCount, text.size());
        ASSERT_TRUE(decoded.wellFormed);
    }
}

}  // namespace
}  // namespace vellark
