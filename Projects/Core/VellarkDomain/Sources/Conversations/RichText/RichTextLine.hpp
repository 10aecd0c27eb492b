#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// What one line of a message can open. Each test reads one line and says no at its first byte for most of them.
/// "Content" is a line without the white space at its start; a character is a whole grapheme cluster, so that a "#"
/// with a combining mark is no number sign.
namespace RichTextLine {

/// The line without the white space at its start.
[[nodiscard]] std::string_view content(std::string_view line);

[[nodiscard]] bool isBlank(std::string_view line);

/// True when the first character is this one, of ASCII.
[[nodiscard]] bool beginsWith(std::string_view text, char character);

/// Columns before the first character that is neither a blank, which counts 1, nor a tab, which counts 4.
[[nodiscard]] std::size_t indentWidth(std::string_view line);

/// An opening fence of at least three "`" or "~".
struct Fence {
    char marker = '`';
    std::size_t length = 0;
    std::string language;  ///< lower-case; empty when the line names none
};
[[nodiscard]] std::optional<Fence> fence(std::string_view content);

/// Whether the line closes the fence: its marker at least as often, and only white space behind it.
[[nodiscard]] bool closes(const Fence& fence, std::string_view content);

/// 1 to 6 for that many "#" before white space or the end; otherwise 0.
[[nodiscard]] int headingLevel(std::string_view content);
[[nodiscard]] std::string_view headingTitle(std::string_view content, int level);

/// At least three of one of "-", "*", "_", and white space.
[[nodiscard]] bool isRule(std::string_view content);

/// 1 for a line of "=", 2 for one of "-", at least two and indented by at most three; otherwise 0.
[[nodiscard]] int setextLevel(std::string_view line);

struct Item {
    std::size_t indent = 0;
    std::optional<std::int64_t> number;
    std::string_view content;  ///< never empty
};
[[nodiscard]] std::optional<Item> listItem(std::string_view line);

/// The start of a patch's hunk: "@@ -" and a number.
[[nodiscard]] bool isHunk(std::string_view line);
[[nodiscard]] bool startsDiff(std::string_view line, std::optional<std::string_view> next);

/// Whether a line that is not blank goes on with a patch, and whether the line behind a blank one does.
[[nodiscard]] bool belongsToDiff(std::string_view line);
[[nodiscard]] bool continuesDiffBehindBlank(std::string_view line);

/// Whether two lines open a table, going by their characters alone.
[[nodiscard]] bool isTableStart(std::string_view line, std::optional<std::string_view> next);
[[nodiscard]] bool hasBar(std::string_view line);

/// The cells of a table's line. "\|" parts none; its backslash stays.
[[nodiscard]] std::vector<std::string_view> cells(std::string_view line);

/// Whether a paragraph looks like the start of a JSON record that is cut off, commented or otherwise not quite JSON.
[[nodiscard]] bool looksLikeJSON(std::string_view text);

}  // namespace RichTextLine

}  // namespace vellark
