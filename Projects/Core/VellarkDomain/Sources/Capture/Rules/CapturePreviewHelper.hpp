#pragma once

#include <cstddef>
#include <string_view>

namespace vellark {

namespace CaptureRules {

/// Largest page that is looked at, in bytes of UTF-8. A page that only shows pictures is small; anything larger is a
/// document in its own right.
inline constexpr std::size_t maximumPreviewHelperBytes = 524'288;

/// Version of the rules below, for whoever stores their answer.
inline constexpr int previewHelperPolicyVersion = 1;

/// True for a small HTML page that only lays out local pictures or videos for a look: a gallery, a contact sheet, a
/// preview page. Such a page is a tool and no document for the shelf.
///
/// It takes a telling name (in the file's name, the title, a heading or a caption), balanced markup without scripts,
/// forms or remote references, three distinct media files at least, each in a captioned figure or behind a link, and
/// next to no text. Whatever is unclear answers false.
[[nodiscard]] bool previewHelperHTML(std::string_view html, std::string_view sourcePath);

}  // namespace CaptureRules

}  // namespace vellark
