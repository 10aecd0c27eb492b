#pragma once

#include <VellarkDomain/Documents/Summary/SummaryExpression.hpp>

#include <string>
#include <string_view>

/// Inline markup of Markdown, as far as a digest must get rid of it.
namespace vellark::SummaryInline {

/// Embeds, links and emphasis, one rule behind the other; each sees what the one before has left.
[[nodiscard]] std::string withoutMarkup(std::string text);

/// The text of a heading line, its marks at both ends and its markup gone. Empty when there is none.
[[nodiscard]] std::string headingText(std::string_view line);

/// The matches of `struck`: text between "~~" and "~~".
[[nodiscard]] const SummaryExpression& struck();

}  // namespace vellark::SummaryInline
