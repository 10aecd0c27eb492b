#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// Character references of HTML: the 2,231 names of the HTML5 standard, and the numeric ones. Read as Python's
/// `html.unescape` reads them, in text and in attribute values alike.
namespace HTMLEntities {

/// One named reference, its name as it stands behind "&". Most names end in ";"; the 106 oldest are there without it
/// too.
struct Entity {
    std::string_view name;
    std::string_view text;  ///< one or two scalars in UTF-8
};

/// Number of names.
[[nodiscard]] std::size_t count();

/// The names in the order of their bytes; `index` must be below `count()`.
[[nodiscard]] Entity at(std::size_t index);

/// The text of a name: "amp" and "amp;" give "&", "hearts;" gives "♥", "hearts" nothing.
[[nodiscard]] std::optional<std::string_view> find(std::string_view name);

/// The entity of the longest name without ";" that the text begins with: "notit" gives that of "not".
[[nodiscard]] std::optional<Entity> findLongestPrefix(std::string_view text);

/// Appends the text with its references resolved. What is no reference stays as it stands; a reference to no scalar
/// (a surrogate, or above U+10FFFF) gives U+FFFD, one to a control character or noncharacter nothing, and 128 to 159
/// what they mean in windows-1252. The text must be well-formed.
void appendUnescaped(std::string& result, std::string_view text);

}  // namespace HTMLEntities

}  // namespace vellark
