#pragma once

#include <VellarkDomain/Conversations/Records/ConversationSession.hpp>
#include <VellarkShelf/Sessions/SessionReaders.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vellark {

/// Work that one record hands to a subagent whose record is another file. The caller's record knows call, name and
/// task, the subagent's knows neither; both are brought together when all files have been read.
struct SessionDelegation {
    std::string callID;
    std::string threadID;  ///< of the subagent; "" while the record does not tell
    std::string name;
    std::string role;
    std::string task;
    bool isBack = false;  ///< the work has come back
    bool failed = false;

    bool operator==(const SessionDelegation&) const = default;
};

template <class Fields>
void describe(Fields& fields, SessionDelegation& delegation) {
    fields.required("callID", delegation.callID);
    fields.required("threadID", delegation.threadID);
    fields.required("name", delegation.name);
    fields.required("role", delegation.role);
    fields.required("task", delegation.task);
    fields.required("isBack", delegation.isBack);
    fields.required("failed", delegation.failed);
}

/// What the list of conversations needs of one record file. No text in it holds a secret.
struct SessionSummary {
    std::string path;
    std::vector<std::int64_t> fingerprint;
    std::optional<ConversationSession> session;  ///< nothing when the file holds no conversation
    std::vector<SessionDelegation> delegations;

    [[nodiscard]] static SessionSummary read(const SessionAgent& agent, const std::string& path,
                                             const std::optional<std::string>& configHome, const RecordFile& file);

    bool operator==(const SessionSummary&) const = default;
};

template <class Fields>
void describe(Fields& fields, SessionSummary& summary) {
    fields.required("path", summary.path);
    fields.required("fingerprint", summary.fingerprint);
    fields.optional("session", summary.session);
    fields.required("delegations", summary.delegations);
}

/// The name that a subagent is shown by: its own, its type when that says something, or its task.
[[nodiscard]] std::string subagentName(const SessionEvent::Delegation& delegation);

}  // namespace vellark
