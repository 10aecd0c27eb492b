#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// Finished sentences held against the templates that may have made them.
namespace TemplateMatcher {

/// Longest text that a placeholder can stand for, in scalars.
inline constexpr std::size_t maximumCaptureScalars = 2048;

/// Byte offsets at which a text may end for a template: its end and, when it closes with a line end, the place before
/// that line end.
struct Ends {
    std::size_t beforeLineEnd = 0;
    std::size_t end = 0;

    bool operator==(const Ends&) const = default;
};

[[nodiscard]] Ends endsOf(std::string_view text);

/// What each placeholder stands for when the text is the literals with something in between: exactly what the ICU
/// expression "^literal(.{0,2048}?)literal(.{0,2048}?)...$" captures, but in time linear in the text whatever it holds.
/// There are at least two literals; the text is well-formed UTF-8. The views are parts of the text.
///
///     captures({"Played the ", " sound"}, "Played the Calm Glass sound")   {"Calm Glass"}
///     captures({"", " of ", ""}, "1 of 2 of 3")                            {"1", "2 of 3"}
///     captures({"from ", ""}, "from a\nb")                                 nothing: no placeholder spans lines
[[nodiscard]] std::optional<std::vector<std::string_view>> captures(std::span<const std::string> literals,
                                                                    std::string_view text);

}  // namespace TemplateMatcher

}  // namespace vellark
