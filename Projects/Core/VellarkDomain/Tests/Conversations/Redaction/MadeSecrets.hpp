#pragma once

#include "Support/RandomInput.hpp"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vellark::testing {

/// A secret of one pattern's form.
struct MadeSecret {
    std::string text;    ///< the whole, with what stays readable
    std::string secret;  ///< what must not be readable afterwards
};

inline std::string randomOf(RandomNumbers& random, std::string_view alphabet, std::size_t length) {
    std::string text;
    while (text.size() < length)
        text += alphabet[random.below(alphabet.size())];
    return text;
}

/// A secret of the pattern with this index, from the shortest allowed to much longer ones.
inline MadeSecret madeSecret(RandomNumbers& random, std::size_t pattern) {
    constexpr std::string_view alphanumeric = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    const auto token = [&](std::string_view start, std::size_t least) {
        const std::string run = randomOf(random, alphanumeric, least + random.below(30));
        return MadeSecret{std::string(start) + run, run};
    };
    const std::vector<std::string> kinds = {"p", "o", "u", "s", "r"};
    switch (pattern) {
        case 0: {
            const std::string body = randomOf(random, alphanumeric, 64) + "\n" + randomOf(random, alphanumeric, 40);
            const std::string label = random.below(2) != 0 ? "RSA PRIVATE KEY" : "PGP PRIVATE KEY BLOCK";
            const std::string end = random.below(4) != 0 ? "\n-----END " + label + "-----" : "";
            return {"-----BEGIN " + label + "-----\n" + body + end, body};
        }
        case 1:
            return token(random.below(2) != 0 ? "sk_live_" : "rk_test_", 8);
        case 2:
            return token(random.below(2) != 0 ? "sk-ant-" : "pk-", 16);
        case 3:
            return token("whsec_", 16);
        case 4:
            return token("gh" + random.oneOf(kinds) + "_", 20);
        case 5:
            return token("github_pat_", 20);
        case 6:
            return token("xoxb-", 10);
        case 7:
            return token("npm_", 20);
        case 8:
            return token("ya29.", 20);
        case 9:
            return token("GOCSPX-", 16);
        case 10: {
            const std::string run = randomOf(random, "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789", 16);
            return {"AKIA" + run, run};
        }
        case 11:
            return token("AIza", 30);
        case 12:
            return token("glpat-", 16);
        case 13:
            return token("hf_", 24);
        case 14: {
            const std::string run = randomOf(random, alphanumeric, 20) + "." + randomOf(random, alphanumeric, 30) +
                                    "." + randomOf(random, alphanumeric, 43);
            return {"eyJ" + run, run};
        }
        case 15: {
            const std::string run = "9" + randomOf(random, alphanumeric, 12 + random.below(20));
            return {(random.below(2) != 0 ? "Authorization: Basic " : "\"proxy-authorization\":\"") + run, run};
        }
        case 16: {
            const std::string run = "9" + randomOf(random, alphanumeric, 20 + random.below(20));
            return {"Bearer " + run, run};
        }
        default: {
            const std::string run = randomOf(random, alphanumeric, 6 + random.below(20));
            return {"postgres://user:" + run + "@host/db", run};
        }
    }
}

/// What stands before and behind a secret: prose, JSON, shell lines, addresses, headers, environment files.
inline const std::vector<std::pair<std::string, std::string>> secretSettings = {
    {"I used the key ", " and it worked."},
    {"{\"key\": \"", "\"}"},
    {"curl -H 'X: ", "' https://example.org"},
    {"https://example.org/?q=", "&r=1"},
    {"열쇠는 ", " 입니다"},
    {"VALUE=", "\n"},
    {"(", ")"},
    {"line\n", "\nline"},
    {"export A=\"", "\""},
    {"> ", "…"},
};

}  // namespace vellark::testing
