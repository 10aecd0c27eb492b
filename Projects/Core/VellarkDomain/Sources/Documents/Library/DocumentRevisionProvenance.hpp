#pragma once

#include <optional>
#include <string>

namespace vellark {

/// Who and what produced a revision, as far as it is known. Texts are kept as the capturing side wrote them.
struct DocumentRevisionProvenance {
    std::optional<std::string> certainty;  ///< how sure the attribution is
    std::optional<std::string> agent;
    std::optional<std::string> profile;  ///< of the agent
    std::optional<std::string> session;
    std::optional<std::string> agentId;    ///< of the subagent
    std::optional<std::string> toolUseId;  ///< the tool call that wrote the content
    std::optional<std::string> model;
    std::optional<std::string> cwd;  ///< working directory
    std::optional<std::string> gitBranch;
    std::optional<std::string> op;         ///< the operation
    std::optional<std::string> timestamp;  ///< of the operation
    std::optional<std::string> via;        ///< route of the capture
    std::optional<std::string> agentVersion;
    std::optional<std::string> entrypoint;  ///< of the agent
    std::optional<bool> contested;          ///< two sources disagreed
    std::optional<std::string> evidence;    ///< what the attribution rests on
    std::optional<std::string> host;        ///< application that the agent ran in
    std::optional<std::string> agentName;   ///< of the subagent
    std::optional<bool> userEdit;           ///< the user's own change
    std::optional<std::string> provider;    ///< of the model
    std::optional<bool> local;              ///< the model ran on this machine

    // What the interface shows of it.
    [[nodiscard]] const std::optional<std::string>& hostApp() const { return host; }
    [[nodiscard]] const std::optional<std::string>& modelVendor() const { return provider; }
    [[nodiscard]] const std::optional<std::string>& modelBadge() const { return model; }

    bool operator==(const DocumentRevisionProvenance&) const = default;
};

template <class Fields>
void describe(Fields& fields, DocumentRevisionProvenance& provenance) {
    fields.optional("certainty", provenance.certainty);
    fields.optional("agent", provenance.agent);
    fields.optional("profile", provenance.profile);
    fields.optional("session", provenance.session);
    fields.optional("agentId", provenance.agentId);
    fields.optional("toolUseId", provenance.toolUseId);
    fields.optional("model", provenance.model);
    fields.optional("cwd", provenance.cwd);
    fields.optional("gitBranch", provenance.gitBranch);
    fields.optional("op", provenance.op);
    fields.optional("timestamp", provenance.timestamp);
    fields.optional("via", provenance.via);
    fields.optional("agentVersion", provenance.agentVersion);
    fields.optional("entrypoint", provenance.entrypoint);
    fields.optional("contested", provenance.contested);
    fields.optional("evidence", provenance.evidence);
    fields.optional("host", provenance.host);
    fields.optional("agentName", provenance.agentName);
    fields.optional("userEdit", provenance.userEdit);
    fields.optional("provider", provenance.provider);
    fields.optional("local", provenance.local);
}

}  // namespace vellark
