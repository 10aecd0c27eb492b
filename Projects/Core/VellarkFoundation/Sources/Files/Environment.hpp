#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// Environment variables by name.
using Environment = std::map<std::string, std::string, std::less<>>;

/// The variable's value; nothing when it is not set.
[[nodiscard]] inline std::optional<std::string_view> valueOf(const Environment& environment, std::string_view name) {
    const auto found = environment.find(name);
    if (found == environment.end()) return std::nullopt;
    return found->second;
}

/// The environment that ends with a null pointer, as `environ` does. Entries without "=" and entries that are not
/// well-formed UTF-8 are left out: they count as unset. Of equal names the first counts, as `getenv` has it.
[[nodiscard]] Environment makeEnvironment(const char* const* entries);

}  // namespace vellark
