#pragma once

#include <VellarkFoundation/Records/Enumeration.hpp>

#include <optional>
#include <span>
#include <string_view>

namespace vellark {

/// What sort of file an artifact is, as the user chooses among them. Stored as its id, the case's raw text.
enum class ArtifactCategory { documents, plans, images, videos, pdfs, code, other };

template <>
inline constexpr auto caseTable<ArtifactCategory> = std::to_array<CaseName<ArtifactCategory>>({
    {ArtifactCategory::documents, "documents"},
    {ArtifactCategory::plans, "plans"},
    {ArtifactCategory::images, "images"},
    {ArtifactCategory::videos, "videos"},
    {ArtifactCategory::pdfs, "pdfs"},
    {ArtifactCategory::code, "code"},
    {ArtifactCategory::other, "other"},
});

/// What is known of the categories. Extensions are lower-case, without the point; look-ups take the text as given.
namespace ArtifactCategories {

/// What the interface shows: a key of the catalogues, but for "PDF", which is the same in all languages.
[[nodiscard]] std::string_view titleKey(ArtifactCategory category);

/// The name of the category's picture.
[[nodiscard]] std::string_view symbol(ArtifactCategory category);

/// Whether the category counts in a record that does not mention it.
[[nodiscard]] bool isEnabledByDefault(ArtifactCategory category);

/// The category's extensions in ascending order; documents and plans have the same, `other` has none.
[[nodiscard]] std::span<const std::string_view> fileExtensions(ArtifactCategory category);

[[nodiscard]] bool isMarkdownExtension(std::string_view text);
[[nodiscard]] bool isHTMLExtension(std::string_view text);

/// The first of documents, images, videos, pdfs and code that has the extension, otherwise `other`; never `plans`, as
/// no extension makes a plan.
[[nodiscard]] ArtifactCategory category(std::string_view forExtension);

/// `documents` for a Markdown or HTML extension, `code` for one of code, nothing for all others. Lowers the text first.
[[nodiscard]] std::optional<ArtifactCategory> safeTextCategory(std::string_view forExtension);

/// Whether such a file opens as it is and not as text: documents, images, videos, PDFs, office files, "txt" and "json".
/// Lowers the text first.
[[nodiscard]] bool opensOriginal(std::string_view extension);

/// The name of the office application behind the extension, such as "Word" for "docx"; nothing for all others.
[[nodiscard]] std::optional<std::string_view> quickLookTitle(std::string_view forExtension);

}  // namespace ArtifactCategories

}  // namespace vellark
