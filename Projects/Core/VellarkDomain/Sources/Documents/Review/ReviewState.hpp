#pragma once

#include <VellarkFoundation/Records/Enumeration.hpp>

namespace vellark {

/// Where a document stands in the user's review.
enum class ReviewState { unread, read, later, excluded };

template <>
inline constexpr auto caseTable<ReviewState> = std::to_array<CaseName<ReviewState>>({
    {ReviewState::unread, "unread"},
    {ReviewState::read, "read"},
    {ReviewState::later, "later"},
    {ReviewState::excluded, "excluded"},
});

}  // namespace vellark
