#pragma once

#include <VellarkDomain/Agents/AgentSourceProfile.hpp>
#include <VellarkDomain/Agents/AgentTerminalLocation.hpp>

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

// The file in which a watcher of agents tells the shelf which sessions are alive. Moments are texts as the watcher
// wrote them.

namespace vellark {

/// One agent session as it was last observed.
struct AgentSessionObservation {
    std::string id;
    std::string source;  ///< the agent's source identifier
    std::string projectRoot;
    std::string cwd;
    std::string state;  ///< "running", "idle", "ended"; any other word is an unknown state
    bool isSubagent = false;
    std::optional<std::string> model;
    std::optional<std::string> parentID;
    std::string observedAt;
    std::optional<std::string> liveness;  ///< "unknown" when the connection could not be verified
    std::optional<AgentTerminalLocation> terminalLocation;
    std::optional<std::string> sourceProfileID;
    std::optional<std::string> sourceProfileLabel;
    std::optional<std::string> sourceKind;
    std::optional<std::string> profileIdentityOrigin;
    std::optional<bool> profileIdentityVerified;
    std::optional<std::string> evidence;            ///< what showed the session to be alive
    std::optional<std::string> endEvidence;         ///< what showed it to have ended
    std::optional<std::string> livenessObservedAt;  ///< time of the last probe
    bool probeComplete = false;                     ///< the probe ran to its end
    std::optional<std::string> failureKind;
    std::optional<std::int32_t> processID;
    std::optional<std::string> processStart;  ///< tells a reused process number

    [[nodiscard]] bool connectionUnverified() const { return liveness == "unknown"; }

    /// Last path component of the project's folder.
    [[nodiscard]] std::string projectName() const;

    /// The state in the user's language.
    [[nodiscard]] std::string stateLabel() const;

    bool operator==(const AgentSessionObservation&) const = default;
};

template <class Fields>
void describe(Fields& fields, AgentSessionObservation& session) {
    fields.required("id", session.id);
    fields.required("source", session.source);
    fields.required("projectRoot", session.projectRoot);
    fields.required("cwd", session.cwd);
    fields.required("state", session.state);
    fields.required("isSubagent", session.isSubagent);
    fields.optional("model", session.model);
    fields.optional("parentID", session.parentID);
    fields.required("observedAt", session.observedAt);
    fields.optional("liveness", session.liveness);
    fields.optional("terminalLocation", session.terminalLocation);
    fields.optional("sourceProfileID", session.sourceProfileID);
    fields.optional("sourceProfileLabel", session.sourceProfileLabel);
    fields.optional("sourceKind", session.sourceKind);
    fields.optional("profileIdentityOrigin", session.profileIdentityOrigin);
    fields.optional("profileIdentityVerified", session.profileIdentityVerified);
    fields.optional("evidence", session.evidence);
    fields.optional("endEvidence", session.endEvidence);
    fields.optional("livenessObservedAt", session.livenessObservedAt);
    fields.withDefault("probeComplete", session.probeComplete, false);
    fields.optional("failureKind", session.failureKind);
    fields.optional("processID", session.processID);
    fields.optional("processStart", session.processStart);
}

/// Which agent sessions are alive on this machine. Every key may be absent: an older watcher lacks newer ones.
struct AgentActivitySummary {
    std::int64_t runningSessionCount = 0;
    std::int64_t openSessionCount = runningSessionCount;  ///< the running ones where a watcher did not tell
    std::int64_t idleSessionCount = 0;
    std::int64_t unknownSessionCount = 0;
    std::int64_t endedSessionCount = 0;
    std::int64_t childSessionCount = 0;
    std::vector<AgentSessionObservation> sessions;
    std::vector<std::string> observedSources;
    std::optional<std::string> updatedAt;
    std::optional<std::map<std::string, std::string>> lastObservedAtBySource;
    std::int64_t unverifiedSessionCount = 0;
    std::optional<bool> available;
    std::int64_t detectedProcessCount = 0;
    std::vector<AgentSourceProfile> profiles;
    std::optional<bool> countsComplete;

    /// Whether the watcher has anything to say: its own word, otherwise whether it ever wrote.
    [[nodiscard]] bool isAvailable() const { return available.value_or(!sessions.empty() || updatedAt); }

    bool operator==(const AgentActivitySummary&) const = default;
};

template <class Fields>
void describe(Fields& fields, AgentActivitySummary& summary) {
    fields.withDefault("runningSessionCount", summary.runningSessionCount, 0);
    fields.withDefault("openSessionCount", summary.openSessionCount, summary.runningSessionCount);
    fields.withDefault("idleSessionCount", summary.idleSessionCount, 0);
    fields.withDefault("unknownSessionCount", summary.unknownSessionCount, 0);
    fields.withDefault("endedSessionCount", summary.endedSessionCount, 0);
    fields.withDefault("childSessionCount", summary.childSessionCount, 0);
    fields.withDefault("sessions", summary.sessions, std::vector<AgentSessionObservation>());
    fields.withDefault("observedSources", summary.observedSources, std::vector<std::string>());
    fields.optional("updatedAt", summary.updatedAt);
    fields.optional("lastObservedAtBySource", summary.lastObservedAtBySource);
    fields.withDefault("unverifiedSessionCount", summary.unverifiedSessionCount, 0);
    fields.optional("available", summary.available);
    fields.withDefault("detectedProcessCount", summary.detectedProcessCount, 0);
    fields.withDefault("profiles", summary.profiles, std::vector<AgentSourceProfile>());
    fields.optional("countsComplete", summary.countsComplete);
}

}  // namespace vellark
