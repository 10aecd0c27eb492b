#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// Scripts with which shells complete the words of `vellark`.
namespace ShellCompletion {

struct Command {
    std::string name;
    std::string description;
    std::vector<std::string> options;  ///< with their dashes
    std::vector<std::string> values;   ///< what its argument may be, where that is known
};

/// The script for "bash", "zsh" or "fish"; nothing for another shell.
[[nodiscard]] std::optional<std::string> script(std::string_view shell, const std::vector<Command>& commands);

}  // namespace ShellCompletion

}  // namespace vellark
