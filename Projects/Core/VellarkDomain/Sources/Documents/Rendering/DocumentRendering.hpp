#pragma once

#include <VellarkDomain/Documents/Rendering/DocumentContentFormat.hpp>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace vellark {

/// What a renderer is asked for. The renderer itself stands outside this library.
struct DocumentRenderRequest {
    std::string text;  ///< the document's text, UTF-8
    DocumentContentFormat format;
    std::optional<std::string> frontmatterLabel;  ///< what stands above the front matter when it is shown
    bool allowsRemoteImages = false;              ///< whether images may be fetched from other machines

    bool operator==(const DocumentRenderRequest&) const = default;
};

/// What a renderer gives back.
struct RenderedDocument {
    std::string html;
    std::string styleSheet;
    std::vector<std::string> notices;             ///< what the reader should know, such as a cut
    std::optional<std::string> language;          ///< the language that the code was coloured as
    std::optional<std::string> sourceWebsiteURL;  ///< an address that `DocumentWebsiteURL::validated` let pass

    bool operator==(const RenderedDocument&) const = default;
};

/// Sizes that a renderer must keep to, in bytes. Hostile documents cost no more than these.
namespace DocumentRenderLimits {

inline constexpr std::size_t sourceBytes = 524'288;      ///< text that is rendered at once
inline constexpr std::size_t requestBytes = 4'194'304;   ///< a request on its way to the renderer
inline constexpr std::size_t outputBytes = 6'291'456;    ///< the finished page
inline constexpr std::size_t highlightBytes = 65'536;    ///< source text that is coloured; longer text stays plain
inline constexpr std::size_t fallbackBytes = 65'536;     ///< plain text that is shown where rendering fails
inline constexpr std::size_t resourceBytes = 4'194'304;  ///< one fetched image or other resource

}  // namespace DocumentRenderLimits

}  // namespace vellark
