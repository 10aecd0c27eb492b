#include "Capture/Differential.hpp"
#include "Support/RandomInput.hpp"
#include <VellarkDomain/Capture/Rules/CaptureCredentialNames.hpp>
#include <VellarkFoundation/Unicode/Regex.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

// The expressions that the scanners stand for.
constexpr std::string_view sshKeyPattern = R"(\A(?:id_(?:rsa|ed25519|ecdsa|dsa)(?:[-_.][^\n]*)?)\z)";
constexpr std::string_view credentialPattern =
    R"(\A(?:(?:[^\n]*[-_.])?(?:secrets?|credentials?|tokens?|auth|api[-_]?key|service[-_]account))"
    R"((?:[-_.](?:dev|development|prod|production|staging|stage|test|testing|local|qa|ci|preview|sandbox))?)\z)";

void expectSame(const std::vector<std::string>& texts, std::string_view pattern, bool (*scan)(std::string_view)) {
    const Regex expression(pattern);
    int matches = 0;
    int failures = 0;
    for (const std::string& text : texts) {
        const bool expected = containsMatch(expression, text);
        matches += expected ? 1 : 0;
        if (scan(text) == expected || ++failures > 5) continue;
        ADD_FAILURE() << ::testing::PrintToString(text) << " should " << (expected ? "" : "not ") << "match";
    }
    EXPECT_GT(matches, 100) << "too few of the texts match";
}

TEST(CaptureCredentialNames, scansWhatTheExpressionMatches) {
    const std::vector<std::string> pieces = {
        "-",    "-",       "_",       ".",      "\n",      "secret",  "credential", "token",      "auth",   "api",
        "key",  "service", "account", "s",      "dev",     "develop", "ment",       "prod",       "uction", "stag",
        "ing",  "stage",   "test",    "local",  "qa",      "ci",      "preview",    "sandbox",    "x",      "é",
        "\xff", "\r",      "secrets", "\u2028", "api_key", "한",      " ",          "production", "apikey"};
    std::vector<std::string> texts = testing::randomTexts(31, 150'000, 6, pieces);
    const std::vector<std::string> words = {"-",   "_",   ".",    "\n",      "secret",  "tokens",
                                            "api", "key", "auth", "api-key", "service", "service_account",
                                            "dev", "ci",  "s",    "stage",   "testing", ""};
    testing::appendAllSequences(texts, words, 4);
    expectSame(texts, credentialPattern, CaptureRules::credentialName);
}

TEST(CaptureCredentialNames, scansTheKeysThatTheExpressionMatches) {
    const std::vector<std::string> pieces = {"id", "_", "id_", "rsa", "ed25519", "ec",  "dsa",  "ecdsa",
                                             "-",  ".", "\n",  "\r",  "x",       "pub", "\xff", "é"};
    std::vector<std::string> texts = testing::randomTexts(32, 50'000, 6, pieces);
    testing::appendAllSequences(texts, std::vector<std::string>{"id_", "rsa", "ecdsa", "ed25519", "_", ".", "\n", "x"},
                                5);
    expectSame(texts, sshKeyPattern, CaptureRules::sshKeyName);
}

}  // namespace
}  // namespace vellark
