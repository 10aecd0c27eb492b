#pragma once

#include <VellarkDomain/Conversations/Records/AgentConversation.hpp>
#include <VellarkDomain/Conversations/Records/ConversationEntry.hpp>
#include <VellarkDomain/Conversations/Records/ConversationSession.hpp>
#include <VellarkDomain/Conversations/Tasks/ConversationTask.hpp>
#include <VellarkDomain/Settings/AppSettings.hpp>
#include <VellarkFoundation/Files/Environment.hpp>
#include <VellarkShelf/Data/DataDirectory.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// The conversations on this machine: what the readers find of the agents' records, as far as the user lets them be
/// read, grouped.
class ConversationShelf {
public:
    ConversationShelf(const AppSettings& settings, const DataDirectory& directory, const Environment& environment,
                      Date now);

    /// Nothing when the user has switched the reading of session records off.
    [[nodiscard]] const std::optional<std::vector<AgentConversation>>& conversations() const { return conversations_; }

    /// Those whose identifier, or whose thread's, begins so.
    [[nodiscard]] std::vector<const AgentConversation*> find(std::string_view id) const;

    /// What was said, in the order of time, and who was asked to do what.
    struct Story {
        std::string instruction;  ///< the whole of it
        std::vector<ConversationEntry> entries;
        std::vector<ConversationTask> tasks;
        bool omittedEarlier = false;
    };

    [[nodiscard]] Story story(const AgentConversation& conversation) const;

private:
    std::vector<ConversationSession> sessions_;
    std::optional<std::vector<AgentConversation>> conversations_;
};

/// The name of the machine's time zone, such as "Europe/Berlin": of `TZ`, or of the file that the system's clock goes
/// by; "UTC" when neither tells.
[[nodiscard]] std::string localTimeZone(const Environment& environment);

}  // namespace vellark
