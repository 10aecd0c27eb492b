#pragma once

#include <VellarkDomain/Conversations/Records/ConversationActivity.hpp>
#include <VellarkDomain/Conversations/Records/ConversationAuthor.hpp>
#include <VellarkDomain/Conversations/Records/ConversationTextLocation.hpp>
#include <VellarkDomain/Conversations/Records/ConversationTodo.hpp>
#include <VellarkFoundation/Time/Date.hpp>

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace vellark {

/// One line of a transcript. Never stored: readers make it anew from the agent's record.
struct ConversationEntry {
    /// A task handed to a subagent.
    struct Delegation {
        std::string to;

        bool operator==(const Delegation&) const = default;
    };

    /// A message between agents.
    struct AgentMessage {
        std::string to;

        bool operator==(const AgentMessage&) const = default;
    };

    /// A plain turn.
    struct Message {
        bool operator==(const Message&) const = default;
    };

    /// The final report of a subagent.
    struct Report {
        bool operator==(const Report&) const = default;
    };

    /// A mark that the context was compacted.
    struct Compaction {
        bool operator==(const Compaction&) const = default;
    };

    using Kind = std::variant<Delegation, AgentMessage, ConversationActivity, Message, Report, Compaction>;

    std::string id;  ///< unique in the transcript
    Kind kind = Message();
    ConversationAuthor author;
    std::optional<Date> time;
    std::string text;
    bool isTruncated = false;                          ///< the text was clipped
    std::optional<ConversationTextLocation> location;  ///< of the whole text
    std::optional<std::string> topic;                  ///< the subagent to whose run this belongs
    std::optional<std::string> callID;                 ///< tool call behind a delegation
    std::vector<ConversationTodoUpdate> todos;         ///< to-do changes that came with it

    template <class Case>
    [[nodiscard]] bool is() const {
        return std::holds_alternative<Case>(kind);
    }

    /// Whether the main feed shows it: a subagent's own turns and tool tallies stay with the subagent.
    [[nodiscard]] bool isInMainFeed() const;

    bool operator==(const ConversationEntry&) const = default;
};

/// A hash over all fields; equal entries have equal hashes.
[[nodiscard]] std::size_t hashValue(const ConversationEntry& entry);

/// The entries that are shown of one conversation.
struct ConversationTranscript {
    std::vector<ConversationEntry> entries;
    bool omittedEarlier = false;  ///< entries from before the first one exist
    bool isPartial = false;

    static ConversationTranscript empty() { return {}; }

    bool operator==(const ConversationTranscript&) const = default;
};

[[nodiscard]] std::size_t hashValue(const ConversationTranscript& transcript);

}  // namespace vellark
