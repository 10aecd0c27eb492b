#pragma once

#include <VellarkDomain/Conversations/Records/ConversationEntry.hpp>
#include <VellarkDomain/Conversations/Records/ConversationSession.hpp>

#include <cstddef>
#include <map>
#include <optional>
#include <string>

namespace vellark {

/// What was said in one session.
namespace SessionTranscript {

/// Entries of one session that are kept, the latest ones: a record of any length fits into the memory of a command.
inline constexpr std::size_t mostEntries = 20'000;

/// Names of the subagents that have records of their own, by the call that started them: their reports stand there.
using SubagentCalls = std::map<std::string, std::string, std::less<>>;

/// The entries of a session in the order of its record, every text clean. Partial when the record cannot be read.
[[nodiscard]] ConversationTranscript read(const ConversationSession& session, const SubagentCalls& subagents);

/// The whole text at a place of a record, secrets blanked; nothing when there is none.
[[nodiscard]] std::optional<std::string> wholeText(const ConversationTextLocation& location);

}  // namespace SessionTranscript

}  // namespace vellark
