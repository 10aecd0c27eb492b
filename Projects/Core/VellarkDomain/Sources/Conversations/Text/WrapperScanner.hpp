#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// The elements in which agents wrap what no user wrote. Both routines do one pass of replacing and give nothing when
/// there was nothing to replace; both are linear in the text.
namespace WrapperScanner {

/// Whether a wrapper has this name.
[[nodiscard]] bool isWrapperName(std::string_view name);

/// The text without whole elements: an opening tag with a wrapper's name, up to the next closing tag of the same name.
[[nodiscard]] std::optional<std::string> withoutElements(std::string_view text);

/// The text without single opening or closing tags of wrappers that have their lines to themselves, with the white
/// space around them.
[[nodiscard]] std::optional<std::string> withoutDanglingTags(std::string_view text);

}  // namespace WrapperScanner

}  // namespace vellark
