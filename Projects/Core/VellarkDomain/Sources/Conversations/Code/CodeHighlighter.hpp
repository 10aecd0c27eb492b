#pragma once

#include <VellarkDomain/Conversations/Code/CodeBlock.hpp>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// Colours code without grammars: one pass over the bytes with a small description per language, a JSON printer, and a
/// test of the first bytes of each line for patches. Any bytes are taken.
namespace CodeHighlighter {

/// Bytes of a block that are coloured at most.
inline constexpr std::size_t headBytes = 40'000;

/// Line feeds in the coloured head at most.
inline constexpr std::size_t headLines = 400;

/// A block in a language, named as in the info string of a fence, case and all: "swift", "py", "ts", "sh", "json" and
/// their other names; an unknown or empty name gives uncoloured lines. Without a name, text that is JSON or that begins
/// like a patch is taken for that; so it is with the names "json" and "diff".
///
///     code("sh", "echo a#b # c")    keyword "echo", plain " a#b ", comment "# c"
[[nodiscard]] CodeBlock code(std::string_view language, std::string_view text);

/// The block of a JSON object, or of an array of two entries or more, re-indented by two blanks for each of the first
/// 16 levels. Nothing for all other text: what is not strictly JSON, is nested more than 64 deep, or is a shorter list,
/// such as the reference "[1]".
[[nodiscard]] std::optional<CodeBlock> json(std::string_view text);

/// The block of a patch: each line is one token, by what it begins with.
[[nodiscard]] CodeBlock diff(std::string_view text);

/// Number of leading bytes to colour: all when the text has at most `headBytes` bytes and fewer than `headLines` line
/// feeds; otherwise up to the last line that fits, or, where one line fills the head, up to the start of a scalar.
[[nodiscard]] std::size_t highlightCut(std::string_view text);

}  // namespace CodeHighlighter

}  // namespace vellark
