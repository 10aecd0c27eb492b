#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vellark {

/// How many columns text takes up in a terminal: two for each wide character of East Asian scripts and each emoji, none
/// for marks and format characters by themselves, one for all others. Terminals differ in rare cases; this is what
/// Unicode's East_Asian_Width and Emoji_Presentation say.
namespace DisplayWidth {

///     columns("회의록")    6
///     columns("é")         1, also as two scalars
///     columns("👩‍👩‍👧")         2
[[nodiscard]] std::size_t columns(std::string_view text);

/// The text, or as much of its beginning as leaves room for "…", in at most `limit` columns.
[[nodiscard]] std::string fitted(std::string_view text, std::size_t limit);

/// `fitted`, and filled up with blanks to exactly `width` columns.
[[nodiscard]] std::string padded(std::string_view text, std::size_t width);

/// The text as a terminal may get it: control characters, which could move the cursor or change colours, and characters
/// that turn the direction of writing become blanks.
[[nodiscard]] std::string harmless(std::string_view text);

}  // namespace DisplayWidth

}  // namespace vellark
