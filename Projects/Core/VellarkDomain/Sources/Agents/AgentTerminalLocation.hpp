#pragma once

#include <VellarkFoundation/Records/Enumeration.hpp>

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vellark {

/// In which terminal window an agent's session lives, so that a host can bring it to the front. It comes from outside:
/// nothing of it may be used for automation before `isValid` has said yes.
struct AgentTerminalLocation {
    std::string appBundleIdentifier;  ///< of the terminal application
    std::optional<std::string> tty;   ///< terminal device
    std::optional<std::int32_t> processID;
    std::optional<std::string> processStart;          ///< as it was reported
    std::optional<std::string> processStartIdentity;  ///< seconds and microseconds, "1767225600.123456"
    std::optional<std::string> terminalSessionID;     ///< the terminal's own UUID of the session

    /// The terminal applications that are known, by their exact bundle identifiers.
    [[nodiscard]] static std::span<const std::string_view> allowedApplications();

    /// A known application, and every other field absent or in its strict form.
    [[nodiscard]] bool isValid() const;

    /// Whether the very tab can be selected: a valid location in an application that can be driven so far, with device,
    /// process and the process's start.
    [[nodiscard]] bool supportsPreciseSelection() const;

    bool operator==(const AgentTerminalLocation&) const = default;
};

template <class Fields>
void describe(Fields& fields, AgentTerminalLocation& location) {
    fields.required("appBundleIdentifier", location.appBundleIdentifier);
    fields.optional("tty", location.tty);
    fields.optional("processID", location.processID);
    fields.optional("processStart", location.processStart);
    fields.optional("processStartIdentity", location.processStartIdentity);
    fields.optional("terminalSessionID", location.terminalSessionID);
}

/// How an attempt to bring a session's terminal to the front ended.
enum class TerminalFocusResult {
    focusedTab,
    focusedPane,
    applicationActivated,
    locationUnavailable,
    invalidLocation,
    sessionClosed,
    permissionDenied,
    timedOut,
    applicationUnavailable,
    automationFailed,
};

template <>
inline constexpr auto caseTable<TerminalFocusResult> = std::to_array<CaseName<TerminalFocusResult>>({
    {TerminalFocusResult::focusedTab, "focusedTab"},
    {TerminalFocusResult::focusedPane, "focusedPane"},
    {TerminalFocusResult::applicationActivated, "applicationActivated"},
    {TerminalFocusResult::locationUnavailable, "locationUnavailable"},
    {TerminalFocusResult::invalidLocation, "invalidLocation"},
    {TerminalFocusResult::sessionClosed, "sessionClosed"},
    {TerminalFocusResult::permissionDenied, "permissionDenied"},
    {TerminalFocusResult::timedOut, "timedOut"},
    {TerminalFocusResult::applicationUnavailable, "applicationUnavailable"},
    {TerminalFocusResult::automationFailed, "automationFailed"},
});

/// Whether the session itself, not only its application, stands in front.
[[nodiscard]] constexpr bool isPrecise(TerminalFocusResult result) {
    return result == TerminalFocusResult::focusedTab || result == TerminalFocusResult::focusedPane;
}

}  // namespace vellark
