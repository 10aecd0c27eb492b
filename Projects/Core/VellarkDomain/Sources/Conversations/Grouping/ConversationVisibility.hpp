#pragma once

#include <VellarkDomain/Capture/CaptureVisibilityPolicy.hpp>
#include <VellarkDomain/Settings/AppSettings.hpp>

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// Which sessions may be shown at all.
struct ConversationVisibility {
    std::vector<std::string> roots;                     ///< absolute folders whose sessions are hidden
    std::optional<CaptureVisibilityPolicy> policy;      ///< of what agents keep for themselves
    bool showsSubagents = false;                        ///< subagents' sessions get conversations of their own
    std::set<std::string, std::less<>> acceptedStores;  ///< keys of the agent stores that may be read

    /// No folder is hidden. It still accepts no store: stores are read only where the user switched them on.
    static ConversationVisibility everything() { return {}; }

    ConversationVisibility() = default;

    /// What the settings say. `home` is the user's home folder, for which "~" stands in them; folders that are not
    /// absolute then are left out.
    ConversationVisibility(const AppSettings& settings, std::string_view home);

    [[nodiscard]] bool accepts(std::string_view store) const { return acceptedStores.contains(store); }

    /// Whether a session that ran in the folder may be shown: not below a hidden folder and not in Codex's memories,
    /// "." and ".." resolved by the text. Nothing speaks against an unknown folder or a relative one.
    [[nodiscard]] bool allows(std::optional<std::string_view> cwd) const;

    bool operator==(const ConversationVisibility&) const = default;
};

}  // namespace vellark
