#pragma once

#include <VellarkCapture/InputBuffer.hpp>
#include <VellarkFoundation/Files/Environment.hpp>
#include <VellarkFoundation/JSON/JSONValue.hpp>

#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vellark {

/// One run of the helper: what the command line asked for, and the decisions that follow from it.
///
///     --source cursor --hook                  the agent's own hook payload on standard input
///     --source claude                         a payload in the common shape on standard input
///     --source amp --file notes/plan.md       one file was written; standard input is not read
///
/// There are no positional arguments and no short forms. An option's value is attached with "=" or is the next
/// argument, whatever that looks like; of an option given twice the last counts.
struct CaptureInvocation {
    /// Gives all bytes of standard input, or nothing when they could not be had.
    using Input = std::function<std::optional<InputBuffer>()>;

    std::string source;                                       ///< one of CaptureSignal::sources
    bool hook = false;                                        ///< the payload is the agent's own, for HookNormalizer
    std::string data;                                         ///< the data directory, a leading tilde not yet replaced
    std::optional<std::string> file;                          ///< the file that was written, as given
    std::map<std::string, std::string, std::less<>> options;  ///< all others, by name without the dashes
    Environment environment;
    std::string currentDirectory;

    /// Reads the command line without the program's name. Nothing when any part of it is unknown, incomplete, at odds
    /// with another, or no UTF-8.
    [[nodiscard]] static std::optional<CaptureInvocation> make(std::span<const std::string_view> arguments,
                                                               Environment environment, std::string currentDirectory);

    /// The payload in the common shape: made of the options for a file, otherwise read from `input`, which is called
    /// only then. Nothing when the input is no JSON object or its event is of no interest.
    [[nodiscard]] std::optional<JSONObject> payload(const Input& input) const;

    /// From the input to the spool. The path of the signal that was written; nothing in all other cases.
    std::optional<std::string> run(const Input& input) const;

private:
    [[nodiscard]] JSONObject filePayload() const;
    [[nodiscard]] std::optional<JSONObject> inputPayload(const Input& input) const;
};

}  // namespace vellark
