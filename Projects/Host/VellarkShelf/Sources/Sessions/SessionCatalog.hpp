#pragma once

#include <VellarkDomain/Conversations/Assembly/ConversationAssembly.hpp>
#include <VellarkDomain/Conversations/Records/AgentConversation.hpp>
#include <VellarkFoundation/Files/Environment.hpp>

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// All session records on this machine: where they lie, which sessions they hold, and what was said in them.
namespace SessionCatalog {

/// Where an agent keeps its data.
struct Home {
    std::string agent;
    std::string path;  ///< absolute
    bool isDefault = true;

    bool operator==(const Home&) const = default;
};

/// The homes of all agents that can be read: what the user has set for the agent's key (a leading "~" stands for the
/// home folder), otherwise what the agent's own variable says, otherwise the default below the home folder. Values that
/// are not absolute count as not set.
[[nodiscard]] std::vector<Home> homes(const Environment& environment,
                                      const std::map<std::string, std::string, std::less<>>& chosen = {});

/// The sessions of all homes. Files that have not changed since the last call are not read again; what the cache in the
/// data folder holds is brought up to date. An empty data folder means no cache. Each subagent's session knows the call
/// and the record file of its parent, as far as these were found.
[[nodiscard]] std::vector<ConversationSession> sessions(std::span<const Home> homes, const std::string& dataFolder);

/// What was said in one conversation.
struct Story {
    std::vector<ConversationAssembly::Part> parts;  ///< for ConversationAssembly::feed; mains first, then the runs
    bool omittedEarlier = false;                    ///< a record was too long to be told from its beginning
    bool isPartial = false;                         ///< a record could not be read (any more)
};

/// Reads the records of the conversation's own sessions and of its subagents. `sessions` is what `sessions()` gave.
[[nodiscard]] Story story(const AgentConversation& conversation, std::span<const ConversationSession> sessions);

/// The whole of a clipped text, secrets blanked; nothing when the record does not hold it any more.
[[nodiscard]] std::optional<std::string> wholeText(const ConversationTextLocation& location);

}  // namespace SessionCatalog

}  // namespace vellark
