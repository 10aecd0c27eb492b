#pragma once

#include <VellarkFoundation/Files/Environment.hpp>
#include <VellarkFoundation/JSON/JSONReader.hpp>
#include <VellarkFoundation/JSON/JSONValue.hpp>

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vellark {

/// All that the helper does with the disk: it reads what the user has configured, works out the identity of a source,
/// and puts finished signals into the spool, from which the host takes them.
///
/// A configuration file that is absent, no regular file, longer than `CaptureSignal::maximumInputBytes`, or no JSON
/// object counts as absent; a key of the wrong type counts as absent too. Nothing here waits, locks or reports: several
/// helpers and the host work on the directory at the same time.
struct SignalSpool {
    std::string data;  ///< the data directory, without a tilde
    Environment environment;

    /// False when "settings.json" (`disabledConnectors`) or "integration-preferences.json" (`disconnectedAgents`) names
    /// the source.
    [[nodiscard]] bool sourceEnabled(std::string_view source) const;

    /// True when "capture-policy.json" says so under `includeAssistantResponses`. Read anew at each call.
    [[nodiscard]] bool includesResponses() const;

    /// The directory in which the agent keeps its data: what the settings say, else what `VELLARK_<SOURCE>_CONFIG_DIR`
    /// says, else what the agent's own variable says (unless `VELLARK_AGENT_HOME` leads to another home), else its
    /// usual place below the home. It need not exist.
    [[nodiscard]] std::string agentRoot(std::string_view source) const;

    /// The path with symbolic links resolved as far as it exists; what does not exist is kept as it is written. So a
    /// directory that is still to be made has a stable name.
    [[nodiscard]] static std::string resolved(std::string_view path);

    /// The identity of the source, for `_vellarkProfile` of a signal. `supplied` is the payload, whose identity members
    /// count where they are sound; `kind` is taken when the payload names none of "cli", "desktop" and "manual".
    /// Identifiers that were supplied reach the result only as digests.
    [[nodiscard]] JSONObject profile(std::string_view source, const JSONObject& supplied, std::string_view kind) const;

    /// Writes a signal under the temporary name and moves it to its final one in a single step, so that no reader ever
    /// sees half of it. The final path; nothing, and no file, when the spool is full or cannot be used.
    [[nodiscard]] std::optional<std::string> write(std::string_view bytes, std::string_view temporaryName) const;

private:
    [[nodiscard]] std::optional<JSONObject> json(std::string_view name, std::span<const JSONSelection> keys) const;
    [[nodiscard]] std::optional<std::string> configuredRoot(std::string_view source) const;
};

}  // namespace vellark
