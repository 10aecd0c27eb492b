#pragma once

#include <span>
#include <string>
#include <string_view>

namespace vellark {

/// Two lower-case hexadecimal digits for each byte.
inline std::string hexadecimalDigest(std::span<const unsigned char> bytes) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    text.reserve(2 * bytes.size());
    for (const unsigned char byte : bytes) {
        text.push_back(digits[byte >> 4]);
        text.push_back(digits[byte & 0x0F]);
    }
    return text;
}

}  // namespace vellark
