#pragma once

#include <cstddef>
#include <string_view>

/// Where sums, totals and due dates may begin: what SummaryExpression asks for the expressions of FactPattern, and what
/// keeps most lines off them. Each walks a text once, however many answers it gives.
namespace vellark::FactCandidates {

/// A sum of money begins at its first digit, its currency sign or its currency code.
[[nodiscard]] std::size_t amount(std::string_view text, std::size_t from, std::size_t hint = 0);

/// Sums, and numbers that are grouped or have at least four digits.
[[nodiscard]] std::size_t value(std::string_view text, std::size_t from, std::size_t hint = 0);

[[nodiscard]] std::size_t totalWord(std::string_view text, std::size_t from, std::size_t hint = 0);
[[nodiscard]] std::size_t totalWordAtStart(std::string_view text, std::size_t from, std::size_t hint = 0);
[[nodiscard]] std::size_t deadlineWord(std::string_view text, std::size_t from, std::size_t hint = 0);

/// The last place of a word that a date may stand before; `npos` without one.
[[nodiscard]] std::size_t deadlineBehindDate(std::string_view text);

/// A deadline word, or a date before the last such word, whose place is the hint.
[[nodiscard]] std::size_t deadline(std::string_view text, std::size_t from, std::size_t lastWord);

}  // namespace vellark::FactCandidates
