#pragma once

#include <VellarkDomain/Conversations/Records/ConversationAuthor.hpp>
#include <VellarkDomain/Conversations/Records/ConversationTextLocation.hpp>
#include <VellarkDomain/Documents/DateCoding.hpp>
#include <VellarkFoundation/Time/Date.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vellark {

/// One session record of one agent, as a reader of the agent's files found it. It is a subagent's when it has a parent
/// thread that it does not continue. No text in it holds a secret: readers clean texts before they come here.
struct ConversationSession {
    std::string id;
    std::string agent;                          ///< the agent's key, such as "claude"
    std::string threadID;                       ///< the agent's own identifier of the session
    std::optional<std::string> parentThreadID;  ///< the thread that spawned or preceded this one
    std::optional<std::string> name;            ///< display name of a subagent
    std::optional<std::string> role;            ///< raw value of its role
    std::optional<std::string> task;            ///< what a subagent was asked to do
    std::optional<std::string> delegationID;    ///< call that started it; the `callID` of an entry
    std::string path;                           ///< of the record file
    std::vector<std::int64_t> fingerprint;      ///< equal values mean an unchanged file
    std::optional<std::string> cwd;
    Date startedAt;
    Date updatedAt;
    std::optional<std::string> instruction;  ///< the first real instruction, clipped
    std::optional<ConversationTextLocation> instructionLocation;
    bool afterCompaction = false;        ///< the instruction was found only behind a compaction
    std::optional<std::string> preview;  ///< the latest line
    std::optional<ConversationAuthor> previewAuthor;
    bool finished = false;
    bool failed = false;
    bool interrupted = false;
    std::vector<std::string> documentSessions;  ///< identifiers that tie captured documents to this session
    std::optional<std::string> configHome;      ///< the agent's configuration home when it is not the default
    std::optional<std::string> parentPath;      ///< record file of the parent thread
    bool continuation = false;                  ///< carries the parent thread on as the same conversation

    bool operator==(const ConversationSession&) const = default;
};

template <class Fields>
void describe(Fields& fields, ConversationSession& session) {
    fields.required("id", session.id);
    fields.required("agent", session.agent);
    fields.required("threadID", session.threadID);
    fields.optional("parentThreadID", session.parentThreadID);
    fields.optional("name", session.name);
    fields.optional("role", session.role);
    fields.optional("task", session.task);
    fields.optional("delegationID", session.delegationID);
    fields.required("path", session.path);
    fields.required("fingerprint", session.fingerprint);
    fields.optional("cwd", session.cwd);
    fields.required("startedAt", session.startedAt);
    fields.required("updatedAt", session.updatedAt);
    fields.optional("instruction", session.instruction);
    fields.optional("instructionLocation", session.instructionLocation);
    fields.required("afterCompaction", session.afterCompaction);
    fields.optional("preview", session.preview);
    fields.optional("previewAuthor", session.previewAuthor);
    fields.required("finished", session.finished);
    fields.required("failed", session.failed);
    fields.required("interrupted", session.interrupted);
    fields.required("documentSessions", session.documentSessions);
    fields.optional("configHome", session.configHome);
    fields.optional("parentPath", session.parentPath);
    fields.required("continuation", session.continuation);
}

}  // namespace vellark
