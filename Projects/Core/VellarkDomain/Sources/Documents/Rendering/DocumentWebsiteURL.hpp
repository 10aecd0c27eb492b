#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// Addresses of websites that may be attached to a document and opened from it.
namespace DocumentWebsiteURL {

/// Longest address, in bytes.
inline constexpr std::size_t maximumBytes = 2'048;

/// The address itself when it is a plain web address, byte for byte as it was given; nothing is repaired, decoded or
/// escaped, so whatever differs from its own written form is refused.
///
///     validated("HTTPS://example.com:8443/a?b#c")   accepted
///     validated("https://name@example.com/")        refused: names and passwords mislead about the host
///     validated("https://example.com:0/")           refused: no such port
///     validated("https://예시.kr/")                  refused: hosts are ASCII here
///     validated("file:///etc/hosts")                refused: neither http nor https
[[nodiscard]] std::optional<std::string> validated(std::optional<std::string_view> text);

}  // namespace DocumentWebsiteURL

}  // namespace vellark
