#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vellark {

namespace CaptureRules {

/// Longest title of a document, in scalars; what goes beyond is cut off.
inline constexpr std::size_t maximumTitleScalars = 200;

struct ContentTitleContext {
    std::string_view fallback;  ///< the title of a content that has none
    std::string_view kind;      ///< as the artifact's type has it: "html", "markdown", ...
};

/// The title that a content gives itself: the title of a page of kind "html", its white space made single blanks, or
/// else the first heading (see HeadingScanner), or else the fallback.
[[nodiscard]] std::string contentTitle(std::string_view content, const ContentTitleContext& context);

}  // namespace CaptureRules

}  // namespace vellark
