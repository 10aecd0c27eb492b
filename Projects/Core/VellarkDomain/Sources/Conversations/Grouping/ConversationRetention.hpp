#pragma once

#include <VellarkFoundation/Time/Date.hpp>

namespace vellark {

/// How long a conversation stays in the list.
namespace ConversationRetention {

/// From its last update on, in seconds: seven days.
inline constexpr double window = 604'800;

/// The earliest update that is still listed.
[[nodiscard]] Date cutoff(Date now);

/// Whether a conversation of this update is listed; the cut-off itself is.
[[nodiscard]] bool isRetained(Date updatedAt, Date now);

/// Days until it leaves the list, begun ones counted whole: 0 to 7.
[[nodiscard]] int daysLeft(Date updatedAt, Date now);

}  // namespace ConversationRetention

}  // namespace vellark
