#pragma once

#include <VellarkDomain/Documents/Summary/SummaryExpression.hpp>

#include <optional>
#include <string>
#include <string_view>

/// Values inside facts: where they stand, and whether a text states them.
namespace vellark::FactValues {

/// The first place where the value stands as written and is no part of a longer number.
[[nodiscard]] std::optional<ByteRange> writtenRange(std::string_view value, std::string_view text);

/// The text, or the sentence in it that holds the value, cut down to about 120 characters around it.
[[nodiscard]] std::string fitted(std::string_view text, std::string_view value);

/// Longest fact that is shown whole, in characters.
inline constexpr std::size_t factLength = 120;

}  // namespace vellark::FactValues
