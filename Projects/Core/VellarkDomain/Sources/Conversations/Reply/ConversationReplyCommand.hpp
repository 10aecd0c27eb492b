#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// The command that hands a user's reply to an agent's session, by resuming it. Four agents can be resumed: "claude",
/// "codex", "gemini" and "hermes".
struct ConversationReplyCommand {
    using Environment = std::map<std::string, std::string>;

    /// What a reply is made of.
    struct Request {
        std::string agent;      ///< the agent's key
        std::string sessionID;  ///< of the session to resume
        std::string message;
        std::optional<std::string> directory;
        std::optional<std::string> configHome;  ///< the agent's configuration home when it is not the default
        std::optional<std::string> sessionFile;
    };

    std::string agent;
    std::string executable;
    std::vector<std::string> arguments;
    std::string sessionID;
    std::optional<std::string> directory;
    Environment environment;  ///< variables to set
    std::optional<std::string> configHome;
    std::vector<std::string> inheritedVariables;  ///< variables to pass through
    std::string input;                            ///< the message, for standard input
    std::optional<std::string> sessionFile;       ///< record file of the session

    /// Nothing for an agent that cannot be resumed, an identifier that is not of its form, a message of white space,
    /// and a configuration home that the agent cannot be told of.
    [[nodiscard]] static std::optional<ConversationReplyCommand> make(const Request& request);

    /// Whether the text has the form of the agent's session identifiers: a UUID, or for "hermes" its own with dates.
    [[nodiscard]] static bool isSessionID(std::string_view text, std::string_view agent);

    /// The agent's arguments for a session; nothing for an agent that cannot be resumed.
    [[nodiscard]] static std::optional<std::vector<std::string>> argumentsFor(std::string_view agent,
                                                                              std::string_view sessionID);

    /// The variables that tell the agent its configuration home; none without one. Nothing for a home of "gemini" that
    /// is not called ".gemini", which no variable can name.
    [[nodiscard]] static std::optional<Environment> homeEnvironment(std::string_view agent,
                                                                    const std::optional<std::string>& configHome);

    /// A line for a user's own shell that resumes the session; nothing for an agent that cannot be resumed.
    [[nodiscard]] static std::optional<std::string> terminalCommand(std::string_view agent, std::string_view sessionID,
                                                                    const std::optional<std::string>& directory,
                                                                    const std::optional<std::string>& configHome);

    /// The command as a shell line: every word comes back from a shell as it is here.
    [[nodiscard]] std::string display() const;

    /// A message with the request to hand it to a subagent.
    [[nodiscard]] static std::string relayed(std::string_view message, std::string_view to);

    /// The text as one word of a POSIX shell: plain when it is made of ASCII letters, digits and "-_./=:@", otherwise
    /// between single quotes.
    [[nodiscard]] static std::string quoted(std::string_view text);

    bool operator==(const ConversationReplyCommand&) const = default;
};

}  // namespace vellark
