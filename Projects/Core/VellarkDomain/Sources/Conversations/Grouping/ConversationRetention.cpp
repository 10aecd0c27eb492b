#include <VellarkDomain/Conversations/Grouping/ConversationRetention.hpp>

#include <algorithm>
#include <cmath>

namespace vellark::ConversationRetention {

namespace {

constexpr double secondsPerDay = 86'400;
constexpr double mostDays = window / secondsPerDay;

}  // namespace

Date cutoff(Date now) {
    return {now.secondsSince1970 - window};
}

bool isRetained(Date updatedAt, Date now) {
    return updatedAt >= cutoff(now);
}

int daysLeft(Date updatedAt, Date now) {
    const double seconds = updatedAt.secondsSince1970 + window - now.secondsSince1970;
    if (!(seconds > 0)) return 0;  // also for moments that are no number
    return static_cast<int>(std::min(std::ceil(seconds / secondsPerDay), mostDays));
}

}  // namespace vellark::ConversationRetention
