#pragma once

#include <cstddef>
#include <string_view>

/// Where matches of the summary's expressions may begin: the functions that SummaryExpression asks. Each walks a text
/// once, however many answers it gives.
namespace vellark::SummaryCandidates {

[[nodiscard]] inline std::size_t lastRoundBracket(std::string_view text) {
    return text.rfind(')');
}
[[nodiscard]] inline std::size_t lastAngleBracket(std::string_view text) {
    return text.rfind('>');
}

// Markup. The hint is the last closing bracket of the text, where there is one.
[[nodiscard]] std::size_t embed(std::string_view text, std::size_t from, std::size_t lastBracket);
[[nodiscard]] std::size_t wikiLink(std::string_view text, std::size_t from, std::size_t);
[[nodiscard]] std::size_t inlineLink(std::string_view text, std::size_t from, std::size_t lastBracket);
[[nodiscard]] std::size_t linkToken(std::string_view text, std::size_t from, std::size_t lastBracket);
[[nodiscard]] std::size_t tag(std::string_view text, std::size_t from, std::size_t lastBracket);
[[nodiscard]] std::size_t underscore(std::string_view text, std::size_t from, std::size_t);
[[nodiscard]] std::size_t struck(std::string_view text, std::size_t from, std::size_t);
[[nodiscard]] std::size_t wikiAlias(std::string_view text, std::size_t from, std::size_t);

/// Code spans, links, struck text and mathematics.
[[nodiscard]] std::size_t markedText(std::string_view text, std::size_t from, std::size_t);

/// A star that no other star touches.
[[nodiscard]] std::size_t loneStar(std::string_view text, std::size_t from, std::size_t);

// Expressions that match at the start only.
[[nodiscard]] std::size_t lineMark(std::string_view text, std::size_t from, std::size_t);
[[nodiscard]] std::size_t itemMark(std::string_view text, std::size_t from, std::size_t);
[[nodiscard]] std::size_t headingMark(std::string_view text, std::size_t from, std::size_t);
[[nodiscard]] std::size_t sectionNumber(std::string_view text, std::size_t from, std::size_t);

}  // namespace vellark::SummaryCandidates
