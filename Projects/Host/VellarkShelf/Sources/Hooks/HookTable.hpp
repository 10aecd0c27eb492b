#pragma once

#include <string_view>

namespace vellark {

/// Where and in which form a source's hooks are written down.
struct HookRow {
    std::string_view source;
    std::string_view file;  ///< below the agent's folder; "" for an agent without hooks that we know of
    std::string_view form;  ///< the text with "{command}" where the helper's command goes, in that file's syntax
    std::string_view note;
};

/// The row of a source. Sources that are not listed report files by themselves, or are made to by a script.
[[nodiscard]] const HookRow& hookRow(std::string_view source);

}  // namespace vellark
