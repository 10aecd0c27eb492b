#pragma once

#include <optional>
#include <string>

namespace vellark {

/// What a connector can do.
struct ConnectorCapabilities {
    bool automaticSetup = false;
    bool nativeHooks = false;
    bool fileWatch = false;
    bool sessionState = false;
    bool sessionRecovery = false;
    bool preciseTerminalFocus = false;
    bool universalIngress = false;
    bool profileAttribution = false;

    bool operator==(const ConnectorCapabilities&) const = default;
};

template <class Fields>
void describe(Fields& fields, ConnectorCapabilities& capabilities) {
    fields.withDefault("automaticSetup", capabilities.automaticSetup, false);
    fields.withDefault("nativeHooks", capabilities.nativeHooks, false);
    fields.withDefault("fileWatch", capabilities.fileWatch, false);
    fields.withDefault("sessionState", capabilities.sessionState, false);
    fields.withDefault("sessionRecovery", capabilities.sessionRecovery, false);
    fields.withDefault("preciseTerminalFocus", capabilities.preciseTerminalFocus, false);
    fields.withDefault("universalIngress", capabilities.universalIngress, false);
    fields.withDefault("profileAttribution", capabilities.profileAttribution, false);
}

/// The state of one agent or application as the settings show it.
struct ConnectorStatus {
    std::string id;
    std::string title;
    bool installed = false;
    bool connected = false;
    std::string detail;  ///< a sentence
    std::optional<std::string> lastDocumentAt;
    std::optional<std::string> lastActivityAt;
    std::optional<ConnectorCapabilities> capabilities;
    std::optional<std::string> connectionMethod;
    std::optional<bool> cliInstalled;
    std::optional<bool> appInstalled;
    std::optional<bool> processDetected;
    std::optional<bool> hookConnected;
    std::optional<std::string> documentationURL;
    std::optional<std::string> agentHome;
    std::optional<std::string> sourceProfileID;
    std::optional<std::string> sourceProfileLabel;
    std::optional<std::string> sourceKind;
    std::optional<std::string> profileIdentityOrigin;
    std::optional<bool> profileIdentityVerified;

    bool operator==(const ConnectorStatus&) const = default;
};

template <class Fields>
void describe(Fields& fields, ConnectorStatus& status) {
    fields.required("id", status.id);
    fields.required("title", status.title);
    fields.required("installed", status.installed);
    fields.required("connected", status.connected);
    fields.required("detail", status.detail);
    fields.optional("lastDocumentAt", status.lastDocumentAt);
    fields.optional("lastActivityAt", status.lastActivityAt);
    fields.optional("capabilities", status.capabilities);
    fields.optional("connectionMethod", status.connectionMethod);
    fields.optional("cliInstalled", status.cliInstalled);
    fields.optional("appInstalled", status.appInstalled);
    fields.optional("processDetected", status.processDetected);
    fields.optional("hookConnected", status.hookConnected);
    fields.optional("documentationURL", status.documentationURL);
    fields.optional("agentHome", status.agentHome);
    fields.optional("sourceProfileID", status.sourceProfileID);
    fields.optional("sourceProfileLabel", status.sourceProfileLabel);
    fields.optional("sourceKind", status.sourceKind);
    fields.optional("profileIdentityOrigin", status.profileIdentityOrigin);
    fields.optional("profileIdentityVerified", status.profileIdentityVerified);
}

/// How an operation of the host ended.
struct OperationResult {
    bool ok = false;
    std::string message;

    bool operator==(const OperationResult&) const = default;
};

template <class Fields>
void describe(Fields& fields, OperationResult& result) {
    fields.required("ok", result.ok);
    fields.required("message", result.message);
}

}  // namespace vellark
