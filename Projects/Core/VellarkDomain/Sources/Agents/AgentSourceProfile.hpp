#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// One source of documents: which agent, which kind of client, which installation or account. The helper writes the
/// same fields into a signal; documents and sessions carry them on.
struct AgentSourceProfile {
    std::string source;                             ///< of CaptureSignal's sources, or one that only the library makes
    std::optional<std::string> sourceProfileID;     ///< within the source; 64 hexadecimal digits from the helper
    std::optional<std::string> sourceProfileLabel;  ///< name of the account or installation, as it was supplied
    std::optional<std::string> sourceKind;          ///< "cli", "desktop", "manual", "cowork"; any other is unknown
    std::optional<std::string> profileIdentityOrigin;  ///< "source-location" or "local-ingress"
    std::optional<bool> profileIdentityVerified;       ///< whether the label is known to be the account's name

    /// What profiles are grouped by. Lengths, in bytes, stand in front of the parts, so that no two pairs share a key:
    ///
    ///     key("claude", std::nullopt)    "6:claude:legacy"
    ///     key("claude", "abc")           "6:claude:profile:3:abc"
    [[nodiscard]] static std::string key(std::string_view source, std::optional<std::string_view> profileID);

    /// The source's name as it is shown; a source that nobody knows is shown as it is called.
    [[nodiscard]] static std::string providerTitle(std::string_view source);

    /// The key of this profile.
    [[nodiscard]] std::string id() const { return key(source, sourceProfileID); }

    /// Whether the label is there to be shown as the account's name: verified, and more than white space.
    [[nodiscard]] bool hasVerifiedAccountName() const;

    // Texts for the interface, in the user's language.
    [[nodiscard]] std::string kindTitle() const;
    [[nodiscard]] std::string accountTitle() const;

    /// Provider, kind and account: "Claude · CLI · me@example.org".
    [[nodiscard]] std::string displayName() const;

    bool operator==(const AgentSourceProfile&) const = default;
};

template <class Fields>
void describe(Fields& fields, AgentSourceProfile& profile) {
    fields.required("source", profile.source);
    fields.optional("sourceProfileID", profile.sourceProfileID);
    fields.optional("sourceProfileLabel", profile.sourceProfileLabel);
    fields.optional("sourceKind", profile.sourceKind);
    fields.optional("profileIdentityOrigin", profile.profileIdentityOrigin);
    fields.optional("profileIdentityVerified", profile.profileIdentityVerified);
}

}  // namespace vellark
