#pragma once

#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace vellark {

/// Environment variables. Copies are cheap, as they share what they look into.
class Environment {
public:
    /// No variables.
    Environment() = default;

    /// The variables of a process, of which each entry is "name=value" and a null pointer ends the list, as in
    /// `environ`. They are looked at where they are, so they must outlive the value and stay unchanged.
    explicit Environment(const char* const* entries) : entries_(entries) {}

    /// The variables of this process, looked at where they are.
    [[nodiscard]] static Environment ofProcess();

    /// These variables, which are copied.
    Environment(std::initializer_list<std::pair<const std::string, std::string>> variables);

    /// The variable's value. Nothing when it is not set, and when its value is no well-formed UTF-8. Of equal names the
    /// first counts, as `getenv` has it.
    [[nodiscard]] std::optional<std::string_view> value(std::string_view name) const;

private:
    const char* const* entries_ = nullptr;
    std::shared_ptr<const std::map<std::string, std::string, std::less<>>> variables_;
};

}  // namespace vellark
