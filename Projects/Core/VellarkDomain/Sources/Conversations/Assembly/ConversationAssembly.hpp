#pragma once

#include <VellarkDomain/Conversations/Records/ConversationEntry.hpp>
#include <VellarkDomain/Conversations/Records/ConversationSession.hpp>

#include <vector>

namespace vellark {

/// Makes one feed of the transcripts of a conversation's sessions, so that a root session and its subagents read as one
/// story.
namespace ConversationAssembly {

/// One session's share of a conversation.
struct Part {
    ConversationSession session;
    std::vector<ConversationEntry> entries;  ///< in the order of the record
    bool isRoot = false;                     ///< the conversation's root, or a continuation of it
};

/// The entries of all parts by time; equal times keep the order of the parts, and inside a part that of the record. An
/// entry without a time stays with the one before it, or at the session's start. A finished subagent that left no
/// report gets its last message as one. Tool activity in a row is folded as by `merged`.
[[nodiscard]] std::vector<ConversationEntry> feed(std::vector<Part> parts);

/// Neighbouring activities of one topic become one, which keeps the first one's identity, author and time and takes the
/// others' work and to-do changes in.
[[nodiscard]] std::vector<ConversationEntry> merged(std::vector<ConversationEntry> entries);

}  // namespace ConversationAssembly

}  // namespace vellark
