#include <VellarkDomain/Agents/AgentSourceProfile.hpp>
#include <VellarkFoundation/Unicode/DisplayWidth.hpp>
#include <VellarkLocalization/L10n.hpp>
#include <VellarkShelf/Commands/CommandSupport.hpp>
#include <VellarkShelf/Conversations/ConversationShelf.hpp>
#include <VellarkShelf/Data/ShelfSettings.hpp>

namespace vellark {

namespace {

using DisplayWidth::harmless;

constexpr std::size_t threadColumns = 8;
constexpr std::size_t agentColumns = 8;
constexpr std::size_t ageColumns = 13;
constexpr std::size_t narrowestTitle = 20;

std::string marks(const AgentConversation& conversation) {
    std::string text;
    if (conversation.isRunning) text += " ●";
    if (!conversation.runs.empty()) text += " ⑂" + std::to_string(conversation.runs.size());
    return text;
}

void writeForTerminal(TerminalOutput& output, const AgentConversation& conversation, Date now) {
    const std::size_t taken = threadColumns + agentColumns + ageColumns + 6;
    const std::size_t columns = std::max(narrowestTitle, output.width() > taken ? output.width() - taken : 0);
    const std::string mark = marks(conversation);
    const std::size_t titleColumns = columns - std::min(columns, DisplayWidth::columns(mark));
    output.line(
        output.dim(DisplayWidth::padded(conversation.threadID.substr(0, threadColumns), threadColumns)) + "  " +
        output.accent(DisplayWidth::padded(AgentSourceProfile::providerTitle(conversation.agent), agentColumns)) +
        "  " + output.bold(DisplayWidth::padded(harmless(conversation.title), titleColumns)) + mark + "  " +
        output.dim(L10n::shortRelative(conversation.updatedAt, now)));
    if (conversation.preview.empty()) return;
    const std::size_t indent = threadColumns + agentColumns + 4;
    output.line(std::string(indent, ' ') + output.dim(DisplayWidth::fitted(harmless(conversation.preview), columns)));
}

void writePlainly(TerminalOutput& output, const AgentConversation& conversation, Date now) {
    output.line(conversation.id + "\t" + AgentSourceProfile::providerTitle(conversation.agent) + "\t" +
                harmless(conversation.title) + "\t" + harmless(conversation.preview) + "\t" +
                std::to_string(conversation.runs.size()) + "\t" + L10n::shortRelative(conversation.updatedAt, now));
}

}  // namespace

int Commands::conversations(const Context& context) {
    const Date moment = now();
    const ConversationShelf shelf(ShelfSettings::read(context.directory).settings, context.directory,
                                  context.environment, moment);
    if (!shelf.conversations()) return problem("the settings do not let session records be read");
    TerminalOutput output(context.environment);
    if (context.json) return writeJSON(output, *shelf.conversations());
    for (const AgentConversation& conversation : *shelf.conversations()) {
        output.isTerminal() ? writeForTerminal(output, conversation, moment)
                            : writePlainly(output, conversation, moment);
    }
    return finish(output);
}

}  // namespace vellark
