#pragma once

#include <VellarkDomain/Conversations/Records/ConversationAuthor.hpp>
#include <VellarkDomain/Conversations/Records/ConversationTextLocation.hpp>
#include <VellarkDomain/Documents/DateCoding.hpp>
#include <VellarkFoundation/Time/Date.hpp>

#include <optional>
#include <string>
#include <vector>

namespace vellark {

/// A subagent as its conversation lists it. Its name is its identity.
struct ConversationParticipant {
    std::string name;
    std::optional<std::string> role;        ///< raw value of its role
    std::optional<std::string> resumeID;    ///< thread to resume it by
    std::optional<std::string> resumePath;  ///< record file for the resume
    std::optional<std::string> cwd;         ///< directory for the resume

    [[nodiscard]] const std::string& id() const { return name; }

    bool operator==(const ConversationParticipant&) const = default;
};

template <class Fields>
void describe(Fields& fields, ConversationParticipant& participant) {
    fields.required("name", participant.name);
    fields.optional("role", participant.role);
    fields.optional("resumeID", participant.resumeID);
    fields.optional("resumePath", participant.resumePath);
    fields.optional("cwd", participant.cwd);
}

/// One run of a subagent. Its thread is its identity.
struct ConversationRun {
    std::string name;
    std::optional<std::string> role;
    std::optional<std::string> task;
    std::string threadID;
    std::string path;  ///< of the record file
    std::optional<std::vector<std::string>> documentSessions;
    std::optional<std::string> delegationID;
    std::optional<std::string> parentThreadID;
    Date startedAt;
    Date updatedAt;
    bool finished = false;
    bool failed = false;
    bool interrupted = false;

    [[nodiscard]] const std::string& id() const { return threadID; }

    bool operator==(const ConversationRun&) const = default;
};

template <class Fields>
void describe(Fields& fields, ConversationRun& run) {
    fields.required("name", run.name);
    fields.optional("role", run.role);
    fields.optional("task", run.task);
    fields.required("threadID", run.threadID);
    fields.required("path", run.path);
    fields.optional("documentSessions", run.documentSessions);
    fields.optional("delegationID", run.delegationID);
    fields.optional("parentThreadID", run.parentThreadID);
    fields.required("startedAt", run.startedAt);
    fields.required("updatedAt", run.updatedAt);
    fields.required("finished", run.finished);
    fields.required("failed", run.failed);
    fields.required("interrupted", run.interrupted);
}

/// One row of the conversation list: a root session with its continuations and subagents.
struct AgentConversation {
    std::string id;           ///< the root's agent and thread, joined by ":"
    std::string agent;        ///< key of the root's agent
    std::string title;        ///< at most 80 characters
    std::string instruction;  ///< the whole instruction; empty when there is none
    std::optional<ConversationTextLocation> instructionLocation;
    bool afterCompaction = false;
    std::optional<std::string> cwd;
    Date startedAt;       ///< earliest start of all members
    Date updatedAt;       ///< latest update of all members
    std::string preview;  ///< latest preview; empty when there is none
    std::optional<ConversationAuthor> previewAuthor;
    std::vector<ConversationParticipant> subagents;
    std::vector<ConversationRun> runs;
    std::vector<std::string> documentSessions;  ///< of all members, without repeats
    std::string threadID;                       ///< of the root
    std::string resumeID;                       ///< thread to resume the conversation by
    std::optional<std::string> cwdForResume;
    std::optional<std::string> resumePath;
    std::optional<std::string> configHome;
    bool isRunning = false;
    bool isUnread = false;
    std::optional<std::string> pinnedDocumentID;

    bool operator==(const AgentConversation&) const = default;
};

template <class Fields>
void describe(Fields& fields, AgentConversation& conversation) {
    fields.required("id", conversation.id);
    fields.required("agent", conversation.agent);
    fields.required("title", conversation.title);
    fields.required("instruction", conversation.instruction);
    fields.optional("instructionLocation", conversation.instructionLocation);
    fields.required("afterCompaction", conversation.afterCompaction);
    fields.optional("cwd", conversation.cwd);
    fields.required("startedAt", conversation.startedAt);
    fields.required("updatedAt", conversation.updatedAt);
    fields.required("preview", conversation.preview);
    fields.optional("previewAuthor", conversation.previewAuthor);
    fields.required("subagents", conversation.subagents);
    fields.required("runs", conversation.runs);
    fields.required("documentSessions", conversation.documentSessions);
    fields.required("threadID", conversation.threadID);
    fields.required("resumeID", conversation.resumeID);
    fields.optional("cwdForResume", conversation.cwdForResume);
    fields.optional("resumePath", conversation.resumePath);
    fields.optional("configHome", conversation.configHome);
    fields.required("isRunning", conversation.isRunning);
    fields.required("isUnread", conversation.isUnread);
    fields.optional("pinnedDocumentID", conversation.pinnedDocumentID);
}

}  // namespace vellark
