#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace vellark {

/// One form of secret: what it looks like, as an ICU expression, and how many characters at its start stay readable.
/// The expressions are the definition; scanners find the same ranges without the engine's stack, and tests compare
/// them.
struct SecretPattern {
    std::string_view name;
    std::string_view expression;
    std::size_t kept = 0;
};

/// In the order in which they are looked for: what an earlier one has blanked, a later one no longer sees. Where an
/// expression has a group, the group alone is the secret.
inline constexpr std::array secretPatterns = {
    SecretPattern{"private key",
                  R"(-----BEGIN [A-Z0-9 ]*PRIVATE KEY(?: BLOCK)?-----[\s\S]*?)"
                  R"((?:-----END [A-Z0-9 ]*PRIVATE KEY(?: BLOCK)?-----|\z))",
                  0},
    SecretPattern{"payment key", R"((?<![A-Za-z0-9])(?:sk|rk|pk)_(?:live|test)_[A-Za-z0-9]{8,})", 8},
    SecretPattern{"AI service key", R"((?<![A-Za-z0-9])(?:sk|pk|rk)-(?:ant-|proj-|live-|test-)?[A-Za-z0-9_\-]{16,})",
                  6},
    SecretPattern{"webhook secret", R"((?<![A-Za-z0-9])whsec_[A-Za-z0-9+/=]{16,})", 6},
    SecretPattern{"GitHub token", R"((?<![A-Za-z0-9])gh[pousr]_[A-Za-z0-9]{20,})", 4},
    SecretPattern{"GitHub fine-grained token", R"((?<![A-Za-z0-9])github_pat_[A-Za-z0-9_]{20,})", 11},
    SecretPattern{"Slack token", R"((?<![A-Za-z0-9])xox[abposr]-[A-Za-z0-9-]{10,})", 5},
    SecretPattern{"npm token", R"((?<![A-Za-z0-9])npm_[A-Za-z0-9]{20,})", 4},
    SecretPattern{"Google OAuth token", R"((?<![A-Za-z0-9])ya29\.[A-Za-z0-9_\-]{20,})", 5},
    SecretPattern{"Google client secret", R"((?<![A-Za-z0-9])GOCSPX-[A-Za-z0-9_\-]{16,})", 7},
    SecretPattern{"AWS access key", R"((?<![A-Za-z0-9])AKIA[0-9A-Z]{16}(?![A-Za-z0-9]))", 4},
    SecretPattern{"Google API key", R"((?<![A-Za-z0-9])AIza[0-9A-Za-z_\-]{30,})", 4},
    SecretPattern{"GitLab token", R"((?<![A-Za-z0-9])glpat-[A-Za-z0-9_\-]{16,})", 6},
    SecretPattern{"Hugging Face token", R"((?<![A-Za-z0-9])hf_[A-Za-z0-9]{24,})", 3},
    SecretPattern{"JSON web token", R"((?<![A-Za-z0-9])eyJ[A-Za-z0-9_\-]{8,}\.[A-Za-z0-9_\-]{8,}\.[A-Za-z0-9_\-]{8,})",
                  3},
    SecretPattern{"authorization header",
                  R"((?i:\b(?:proxy-)?authorization)[\x22\x27]?[ \t]*[:=][ \t]*[\x22\x27]?(?:[A-Za-z]+[ \t]+)?)"
                  R"(((?=[A-Za-z0-9._~+/\-]*[0-9=+/])[A-Za-z0-9._~+/\-]{8,}=*))",
                  0},
    SecretPattern{"bearer value",
                  R"(\b(?:Bearer|Basic|Token)[ \t]+((?=[A-Za-z0-9._~+/\-]*[0-9=])[A-Za-z0-9._~+/\-]{16,}=*))", 0},
    SecretPattern{"password in an address", R"(://[^/\s:@]*:([^@\s/]+)@)", 0},
};

inline constexpr std::size_t secretPatternCount = secretPatterns.size();

}  // namespace vellark
