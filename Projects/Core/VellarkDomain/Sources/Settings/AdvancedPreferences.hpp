#pragma once

#include <map>
#include <string>
#include <vector>

namespace vellark {

/// How agents' sessions are found and shown.
struct AdvancedPreferences {
    using Texts = std::map<std::string, std::string>;

    double sessionIdleTimeoutSeconds = 7200;
    bool autoConnectInstalledAgents = true;
    bool showsSubagents = false;
    bool showsConversationDocuments = true;
    std::vector<std::string> hiddenSessionRoots;
    Texts agentHomes;              ///< configuration home by agent key
    Texts projectParentOverrides;  ///< parent project by project root
    std::vector<std::string> dismissedWorktreeSuggestions;
    bool agentConversations = true;

    bool operator==(const AdvancedPreferences&) const = default;
};

template <class Fields>
void describe(Fields& fields, AdvancedPreferences& advanced) {
    using Texts = AdvancedPreferences::Texts;
    fields.withDefault("sessionIdleTimeoutSeconds", advanced.sessionIdleTimeoutSeconds, 7200.0);
    fields.withDefault("autoConnectInstalledAgents", advanced.autoConnectInstalledAgents, true);
    fields.withDefault("showsSubagents", advanced.showsSubagents, false);
    fields.withDefault("showsConversationDocuments", advanced.showsConversationDocuments, true);
    fields.withDefault("hiddenSessionRoots", advanced.hiddenSessionRoots, std::vector<std::string>());
    fields.withDefault("agentHomes", advanced.agentHomes, Texts());
    fields.withDefault("projectParentOverrides", advanced.projectParentOverrides, Texts());
    fields.withDefault("dismissedWorktreeSuggestions", advanced.dismissedWorktreeSuggestions,
                       std::vector<std::string>());
    fields.withDefault("agentConversations", advanced.agentConversations, true);
}

}  // namespace vellark
