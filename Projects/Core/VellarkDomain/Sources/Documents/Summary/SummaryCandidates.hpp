#pragma once

#include <cstddef>
#include <string_view>

/// Where matches of the summary's expressions may begin: the functions that SummaryExpression asks. Each walks a text
/// once, however many answers it gives.
namespace vellark::SummaryCandidates {

[[nodiscard]] std::size_t struck(std::string_view text, std::size_t from, std::size_t);
[[nodiscard]] std::size_t wikiAlias(std::string_view text, std::size_t from, std::size_t);

/// Code spans, links, struck text and mathematics.
[[nodiscard]] std::size_t markedText(std::string_view text, std::size_t from, std::size_t);

/// A star that no other star touches.
[[nodiscard]] std::size_t loneStar(std::string_view text, std::size_t from, std::size_t);

/// A heading's mark at the start.
[[nodiscard]] std::size_t headingMark(std::string_view text, std::size_t from, std::size_t);

}  // namespace vellark::SummaryCandidates
