#pragma once

#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindEvidence.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// What the opening of a text shows of its structure.
namespace DocumentKindOutline {

/// Reads the lines between "---" and "---" or "..." at the top of a text, at most 80 in all, and adds the values of its
/// telling keys to the evidence. The text behind them; the whole text when they do not begin or do not end.
[[nodiscard]] std::string_view readFrontMatter(std::string_view text, DocumentKindEvidence& evidence);

/// The first heading of level one, "# Title", and the number of task items, "- [ ] buy tea". Fenced code is skipped.
void readMarkdown(std::string_view text, DocumentKindEvidence& evidence);

/// The texts of all h1 elements of 1 to 200 scalars without markup inside.
[[nodiscard]] std::vector<std::string> htmlHeadings(std::string_view text);

/// A page's text: each tag, and each script or style without a "<" in it, is one blank.
[[nodiscard]] std::string htmlText(std::string_view text);

}  // namespace DocumentKindOutline

}  // namespace vellark
