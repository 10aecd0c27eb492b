#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vellark {

namespace CaptureRules {

/// A file or page that an HTML text loads or points to.
struct HTMLResourceReference {
    std::string reference;  ///< the attribute's value, without white space at its ends
    std::string kind;       ///< name of the tag that holds it

    bool operator==(const HTMLResourceReference&) const = default;
};

/// The references of images, scripts, frames, media, style sheets and embedded objects, in the page's order. Empty ones
/// are left out, repeats stay. What stands inside "script", "template", "noscript" and "textarea" is not looked at, and
/// nothing behind a construct at which the parser fails.
[[nodiscard]] std::vector<HTMLResourceReference> htmlResourceReferences(std::string_view html);

}  // namespace CaptureRules

}  // namespace vellark
