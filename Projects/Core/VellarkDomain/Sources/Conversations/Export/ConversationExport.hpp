#pragma once

#include <VellarkDomain/Conversations/Records/AgentConversation.hpp>
#include <VellarkDomain/Conversations/Records/ConversationEntry.hpp>
#include <VellarkFoundation/Time/Date.hpp>

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace vellark {

/// A conversation as one Markdown document in the user's language.
namespace ConversationExport {

/// Longest document, in bytes; entries that do not fit any more are left out with a note.
inline constexpr std::size_t maximumBytes = 0x1F'F000;

struct Request {
    const AgentConversation& conversation;
    std::string_view instruction;  ///< the whole of it
    std::span<const ConversationEntry> entries;
    std::string_view agentName;
    Date exportedAt;
    bool omittedEarlier = false;  ///< entries from before the first one exist
    std::string_view timeZone;    ///< an IANA name; an unknown one acts as UTC
};

/// The document: title, origin, instruction, and the entries under a heading for each day. Every text of the entries is
/// redacted, whatever the reader of the record did; titles and names are escaped, so that they mark nothing up.
[[nodiscard]] std::string markdown(const Request& request);

}  // namespace ConversationExport

}  // namespace vellark
