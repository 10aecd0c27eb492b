#include <VellarkDomain/Conversations/Reply/ConversationReplyCommand.hpp>
#include <VellarkFoundation/Identifiers/UUID.hpp>
#include <VellarkFoundation/Text/FilePath.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkLocalization/L10n.hpp>

#include <algorithm>
#include <array>

namespace vellark {

namespace {

using namespace std::string_view_literals;

/// What stands for the session in an agent's arguments.
constexpr std::string_view session = "{session}";

// How an agent is resumed, with a message on standard input and by hand, and which variable names its home.
struct Agent {
    std::string_view key;
    std::array<std::string_view, 9> arguments;
    std::string_view terminal;
    std::string_view homeVariable;
};

constexpr Agent agents[] = {
    {"claude",
     {"--resume", session, "-p", "--output-format", "stream-json", "--verbose"},
     "claude --resume ",
     "CLAUDE_CONFIG_DIR"},
    {"codex", {"exec", "resume", "--json", session, "-"}, "codex resume ", "CODEX_HOME"},
    {"gemini", {"--resume", session, "--output-format", "stream-json"}, "gemini --resume ", "GEMINI_CLI_HOME"},
    {"hermes",
     {"chat", "--resume", session, "--query-file", "-", "--oneshot", "--format", "stream-json", "--no-restore-cwd"},
     "hermes --resume ",
     "HERMES_HOME"},
};

const Agent* agentOf(std::string_view key) {
    const auto* found =
        std::find_if(std::begin(agents), std::end(agents), [key](const Agent& row) { return row.key == key; });
    return found == std::end(agents) ? nullptr : found;
}

bool isMadeOf(std::string_view text, std::string_view bytes, std::size_t least, std::size_t most) {
    return text.size() >= least && text.size() <= most && text.find_first_not_of(bytes) == std::string_view::npos;
}

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> result;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find(separator, start), text.size());
        result.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return result;
}

// "20260102_030405_ab12cd", or of a scheduled run "cron_0123456789ab_20260102_030405".
bool isHermesSession(std::string_view text) {
    constexpr auto digits = "0123456789"sv;
    constexpr auto hexadecimal = "0123456789abcdef"sv;
    const auto parts = split(text, '_');
    const auto isMoment = [&parts, digits](std::size_t first) {
        return isMadeOf(parts[first], digits, 8, 8) && isMadeOf(parts[first + 1], digits, 6, 6);
    };
    if (parts.size() == 3) return isMoment(0) && isMadeOf(parts[2], hexadecimal, 6, 8);
    return parts.size() == 4 && parts[0] == "cron" && isMadeOf(parts[1], hexadecimal, 12, 12) && isMoment(2);
}

// The folder above the last component.
std::string parentOf(std::string_view path) {
    while (path.size() > 1 && path.ends_with('/'))
        path.remove_suffix(1);
    const std::size_t slash = path.rfind('/');
    if (slash == std::string_view::npos) return "";
    while (path.size() > slash)
        path.remove_suffix(1);
    while (path.ends_with('/'))
        path.remove_suffix(1);
    return path.empty() ? "/" : std::string(path);
}

std::string assignments(const ConversationReplyCommand::Environment& environment) {
    std::string text;
    for (const auto& [key, value] : environment) {
        text += key;
        text += '=';
        text += ConversationReplyCommand::quoted(value);
        text += ' ';
    }
    return text;
}

std::string changingTo(const std::optional<std::string>& directory) {
    return directory ? "cd " + ConversationReplyCommand::quoted(*directory) + " && " : "";
}

}  // namespace

bool ConversationReplyCommand::isSessionID(std::string_view text, std::string_view agent) {
    if (agent == "hermes") return isHermesSession(text);
    return agentOf(agent) != nullptr && UUID::isValid(text);
}

std::optional<std::vector<std::string>> ConversationReplyCommand::argumentsFor(std::string_view agent,
                                                                               std::string_view sessionID) {
    const Agent* row = agentOf(agent);
    if (row == nullptr) return std::nullopt;
    std::vector<std::string> result;
    for (const std::string_view argument : row->arguments) {
        if (argument.empty()) break;
        result.emplace_back(argument == session ? sessionID : argument);
    }
    return result;
}

std::optional<ConversationReplyCommand::Environment> ConversationReplyCommand::homeEnvironment(
    std::string_view agent, const std::optional<std::string>& configHome) {
    const Agent* row = agentOf(agent);
    if (!configHome || row == nullptr) return Environment();
    if (agent != "gemini") return Environment{{std::string(row->homeVariable), *configHome}};
    if (FilePath::lastComponent(*configHome) != ".gemini") return std::nullopt;
    return Environment{{std::string(row->homeVariable), parentOf(*configHome)}};
}

std::optional<ConversationReplyCommand> ConversationReplyCommand::make(const Request& request) {
    if (!isSessionID(request.sessionID, request.agent)) return std::nullopt;
    if (Whitespace::trimmedWithNewlines(request.message).empty()) return std::nullopt;
    auto arguments = argumentsFor(request.agent, request.sessionID);
    auto environment = homeEnvironment(request.agent, request.configHome);
    if (!arguments || !environment) return std::nullopt;
    return ConversationReplyCommand{.agent = request.agent,
                                    .executable = request.agent,
                                    .arguments = std::move(*arguments),
                                    .sessionID = request.sessionID,
                                    .directory = request.directory,
                                    .environment = std::move(*environment),
                                    .configHome = request.configHome,
                                    .input = request.message,
                                    .sessionFile = request.sessionFile};
}

std::optional<std::string> ConversationReplyCommand::terminalCommand(std::string_view agent, std::string_view sessionID,
                                                                     const std::optional<std::string>& directory,
                                                                     const std::optional<std::string>& configHome) {
    const Agent* row = agentOf(agent);
    const auto environment = homeEnvironment(agent, configHome);
    if (row == nullptr || !environment) return std::nullopt;
    return changingTo(directory) + assignments(*environment) + std::string(row->terminal) + quoted(sessionID);
}

std::string ConversationReplyCommand::display() const {
    std::string line = changingTo(directory) + assignments(environment) + quoted(executable);
    for (const std::string& argument : arguments)
        line += " " + quoted(argument);
    return line;
}

std::string ConversationReplyCommand::relayed(std::string_view message, std::string_view to) {
    return L10n::text("서브에이전트 {0}에게 아래 메시지를 그대로 전해 주세요.", {.arguments = {std::string(to)}}) +
           "\n\n" + std::string(message);
}

std::string ConversationReplyCommand::quoted(std::string_view text) {
    constexpr auto plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_./=:@"sv;
    if (!text.empty() && text.find_first_not_of(plain) == std::string_view::npos) return std::string(text);
    std::string result = "'";
    for (const char byte : text) {
        if (byte == '\'') {
            result += "'\\''";
        } else {
            result += byte;
        }
    }
    return result + "'";
}

}  // namespace vellark
