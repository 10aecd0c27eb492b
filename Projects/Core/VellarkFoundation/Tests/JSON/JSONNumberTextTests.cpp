#include "Support/PythonPeer.hpp"
#include "Support/RandomInput.hpp"
#include <VellarkFoundation/JSON/JSONNumberText.hpp>

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>

namespace vellark {
namespace {

TEST(JSONNumberText, writesDoublesAsCPython) {
    testing::RandomNumbers random(2);
    std::vector<double> values = {0.0, -0.0, 1e16, 9999999999999998.0, 1e-4, 9.999e-5, 5e-324, 1e22, 1e23, 0.1, 100.0};
    while (values.size() < 100'000) {
        values.push_back(std::bit_cast<double>(random.bits()));
    }
    // Random bits are nearly all far from 1: add the range in which people write numbers.
    while (values.size() < 200'000) {
        const double scale = std::pow(10, static_cast<double>(random.below(24)) - 6);
        values.push_back(static_cast<double>(random.below(2'000'000)) / 1000 * scale);
    }
    std::vector<std::string> cases;
    for (const double value : values) {
        const auto bits = std::bit_cast<std::uint64_t>(value);
        std::string bytes;
        for (int shift = 56; shift >= 0; shift -= 8) {
            bytes += static_cast<char>(bits >> shift);
        }
        cases.push_back(std::move(bytes));
    }
    const auto answers = testing::PythonPeer::answers(R"(
import math, struct
def answer(case):
    value = struct.unpack('>d', case)[0]
    return repr(value).encode() if math.isfinite(value) else b'')",
                                                      cases);
    if (!answers) GTEST_SKIP() << "no python3";
    for (std::size_t index = 0; index < cases.size(); ++index) {
        ASSERT_EQ(JSONNumberText::pythonRepr(values[index]).value_or(""), (*answers)[index]) << values[index];
    }
}

TEST(JSONNumberText, readsLiteralsAsCPython) {
    testing::RandomNumbers random(3);
    const std::vector<std::string> wholes = {"0",
                                             "1",
                                             "9",
                                             "10",
                                             "4503599627370497",
                                             "9007199254740993",
                                             "9223372036854775807",
                                             "9223372036854775808",
                                             "922337203685477580"};
    const std::vector<std::string> digits = {"0", "00", "5", "7", "49999999999999999", "50000000000000001", "08"};
    const std::vector<std::string> exponents = {
        "e0",  "E1",   "e+2",  "e-1",   "e-2",  "e-3",   "e15",
        "E16", "e-16", "e-17", "e-324", "e308", "e-400", "e-0000000000000000000019"};
    std::vector<std::string> literals;
    while (literals.size() < 100'000) {
        std::string literal = (random.below(3) == 0 ? "-" : "") + random.oneOf(wholes);
        if (literal.back() != '0') literal += std::to_string(random.below(1000));
        if (random.below(2) == 0) {
            literal += ".";
            for (std::size_t count = 1 + random.below(3); count > 0; --count) {
                literal += random.oneOf(digits);
            }
        }
        if (random.below(2) == 0) literal += random.oneOf(exponents);
        literals.push_back(std::move(literal));
    }
    const auto answers = testing::PythonPeer::answers(R"(
import decimal, json, math
decimal.getcontext().prec = 1000
def answer(case):
    value = json.loads(case)
    exact = decimal.Decimal(case.decode())
    whole = exact == exact.to_integral_value() and -2**63 <= exact < 2**63
    text = json.dumps(value) if math.isfinite(value) else ''
    return f'{text} {int(exact) if whole else None}'.encode())",
                                                      literals);
    if (!answers) GTEST_SKIP() << "no python3";
    for (std::size_t index = 0; index < literals.size(); ++index) {
        const auto integer = JSONNumberText::exactInteger(literals[index]);
        const std::string ours = JSONNumberText::pythonText(literals[index]).value_or("") + " " +
                                 (integer ? std::to_string(*integer) : "None");
        ASSERT_EQ(ours, (*answers)[index]) << literals[index];
    }
}

TEST(JSONNumberText, namesBothEndsOfTheRange) {
    const std::string zeros(400, '0');
    EXPECT_EQ(JSONNumberText::nearestDouble("1e400"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(JSONNumberText::nearestDouble("-1" + zeros), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(JSONNumberText::nearestDouble("0." + zeros + "1"), 0.0);
    EXPECT_TRUE(std::signbit(JSONNumberText::nearestDouble("-1e-400")));
    EXPECT_EQ(JSONNumberText::pythonText("-1" + zeros), "-1" + zeros) << "an integer stays exact";
    EXPECT_EQ(JSONNumberText::pythonText("1.0e400"), std::nullopt);
    EXPECT_EQ(JSONNumberText::pythonRepr(std::nan("")), std::nullopt);
}

}  // namespace
}  // namespace vellark
