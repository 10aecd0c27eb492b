#pragma once

#include <VellarkDomain/Conversations/Records/AgentConversation.hpp>
#include <VellarkDomain/Conversations/Records/ConversationSession.hpp>
#include <VellarkFoundation/Time/Date.hpp>

#include <cstddef>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace vellark {

/// Makes the conversation list of the sessions that were read.
namespace ConversationGrouping {

/// An unfinished session counts as running for so many seconds after its last update.
inline constexpr double runningWindow = 120;

/// How many threads up a session looks for its root. A deeper chain falls apart into several groups.
inline constexpr std::size_t mostSteps = 16;

/// Against what the sessions are judged. Conversations are known by their identifiers, agent and thread joined by ":".
struct Context {
    Date now;
    std::map<std::string, Date> viewed = {};         ///< when the user last saw a conversation
    Date baseline = {};                              ///< the same for conversations that stand not in `viewed`
    std::map<std::string, std::string> pinned = {};  ///< identifier of the document pinned to a conversation
    bool showsSubagents = false;                     ///< subagents' threads get conversations of their own too
};

/// The conversations of the sessions, latest update first, equal ones by identifier.
///
/// Sessions of one thread, their subagents and their continuations are one conversation, as far as threads lead to a
/// parent that was read. What has not been updated for the time of ConversationRetention is left out, and so is a group
/// that lacks a session of its own root: threads on a loop, and those far below in a chain that is too deep. The cost
/// is that of sorting, at any depth and width.
[[nodiscard]] std::vector<AgentConversation> conversations(std::span<const ConversationSession> sessions,
                                                           const Context& context);

}  // namespace ConversationGrouping

}  // namespace vellark
