#include <VellarkDomain/Agents/AgentSourceProfile.hpp>
#include <VellarkDomain/Conversations/Export/ConversationExport.hpp>
#include <VellarkDomain/Conversations/Reply/ConversationReplyCommand.hpp>
#include <VellarkFoundation/Unicode/DisplayWidth.hpp>
#include <VellarkLocalization/L10n.hpp>
#include <VellarkShelf/Commands/CommandSupport.hpp>
#include <VellarkShelf/Conversations/ConversationShelf.hpp>
#include <VellarkShelf/Data/ShelfSettings.hpp>

namespace vellark {

namespace {

using DisplayWidth::harmless;
using Entry = ConversationEntry;

struct ShownEntry {
    std::string kind;
    ConversationAuthor author;
    std::optional<std::string> to;
    std::optional<Date> time;
    std::string text;
    bool isTruncated = false;
};

template <class Fields>
void describe(Fields& fields, ShownEntry& entry) {
    fields.required("kind", entry.kind);
    fields.required("author", entry.author);
    fields.optional("to", entry.to);
    fields.optional("time", entry.time);
    fields.required("text", entry.text);
    fields.required("isTruncated", entry.isTruncated);
}

struct ShownTask {
    std::string id;
    std::string name;
    std::string title;
    ConversationTask::Status status{};
    std::optional<std::string> parent;
    std::int64_t depth = 0;
    std::optional<double> seconds;
    std::optional<double> todos;  // share of the items that are done
};

template <class Fields>
void describe(Fields& fields, ShownTask& task) {
    fields.required("id", task.id);
    fields.required("name", task.name);
    fields.required("title", task.title);
    fields.required("status", task.status);
    fields.optional("parent", task.parent);
    fields.required("depth", task.depth);
    fields.optional("seconds", task.seconds);
    fields.optional("todos", task.todos);
}

struct ShownConversation {
    AgentConversation conversation;
    std::string instruction;
    std::vector<ShownTask> tasks;
    std::vector<ShownEntry> entries;
    std::optional<std::string> resume;  // the shell line that resumes it
};

template <class Fields>
void describe(Fields& fields, ShownConversation& shown) {
    fields.required("conversation", shown.conversation);
    fields.required("instruction", shown.instruction);
    fields.required("tasks", shown.tasks);
    fields.required("entries", shown.entries);
    fields.optional("resume", shown.resume);
}

// The name of an entry's kind, to whom it went, and what it says.
struct KindText {
    ShownEntry& entry;

    void operator()(const Entry::Delegation& delegation) const { set("delegation", delegation.to); }
    void operator()(const Entry::AgentMessage& message) const { set("agentMessage", message.to); }
    void operator()(const ConversationActivity& activity) const {
        set("activity", {});
        entry.text = activity.summary();
    }
    void operator()(const Entry::Message&) const { set("message", {}); }
    void operator()(const Entry::Report&) const { set("report", {}); }
    void operator()(const Entry::Compaction&) const {
        set("compaction", {});
        entry.text = L10n::text("이전 대화를 요약했어요");
    }

    void set(std::string_view kind, std::string_view to) const {
        entry.kind = kind;
        if (!to.empty()) entry.to = std::string(to);
    }
};

ShownConversation shownOf(const AgentConversation& conversation, const ConversationShelf::Story& story, Date now) {
    ShownConversation shown{
        .conversation = conversation,
        .instruction = story.instruction,
        .resume = ConversationReplyCommand::terminalCommand(conversation.agent, conversation.resumeID,
                                                            conversation.cwdForResume, conversation.configHome)};
    for (const ConversationTask& task : story.tasks) {
        shown.tasks.push_back({.id = task.id,
                               .name = task.name,
                               .title = task.title,
                               .status = task.status(now),
                               .parent = task.parentTaskID,
                               .depth = task.depth,
                               .seconds = task.duration(now),
                               .todos = task.todos ? std::optional(task.todos->fraction()) : std::nullopt});
    }
    for (const Entry& entry : story.entries) {
        ShownEntry one{
            .author = entry.author, .time = entry.time, .text = entry.text, .isTruncated = entry.isTruncated};
        std::visit(KindText{one}, entry.kind);
        if (!one.text.empty()) shown.entries.push_back(std::move(one));
    }
    return shown;
}

std::string who(const ShownEntry& entry, const AgentConversation& conversation) {
    if (entry.author.role == ConversationAuthor::Role::user) return L10n::text("나");
    if (entry.author.role == ConversationAuthor::Role::subagent) return entry.author.name;
    return AgentSourceProfile::providerTitle(conversation.agent);
}

void writeIndented(TerminalOutput& output, std::string_view text) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        output.line("    " + harmless(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

void writeTasks(TerminalOutput& output, const ShownConversation& shown) {
    for (const ShownTask& task : shown.tasks) {
        std::string line(static_cast<std::size_t>(2 * task.depth + 2), ' ');
        line += output.accent(harmless(task.name)) + "  " + harmless(task.title) + "  " +
                output.dim(std::string(rawValue(task.status)));
        if (task.seconds) line += output.dim(" · " + L10n::duration(*task.seconds));
        if (task.todos) line += output.dim(" · " + std::to_string(static_cast<int>(*task.todos * 100)) + " %");
        output.line(line);
    }
}

void writeShown(TerminalOutput& output, const ShownConversation& shown) {
    const AgentConversation& conversation = shown.conversation;
    output.line(output.bold(harmless(conversation.title)));
    output.line(output.dim(AgentSourceProfile::providerTitle(conversation.agent) + " · " +
                           L10n::dateTime(conversation.updatedAt) + " · " + harmless(conversation.cwd.value_or(""))));
    if (!shown.tasks.empty()) output.line();
    writeTasks(output, shown);
    for (const ShownEntry& entry : shown.entries) {
        if (entry.kind == "activity" || entry.kind == "compaction") {
            output.line("\n  " + output.dim("· " + harmless(entry.text)));
            continue;
        }
        std::string head = output.accent(harmless(who(entry, conversation)));
        if (entry.to) head += " → " + output.accent(harmless(*entry.to));
        if (entry.time) head += output.dim("  " + L10n::dateTime(*entry.time));
        output.line("\n" + head);
        writeIndented(output, entry.text);
    }
    if (shown.resume) output.line("\n" + output.dim("$ " + harmless(*shown.resume)));
}

std::string exported(const Commands::Context& context, const AgentConversation& conversation,
                     const ConversationShelf::Story& story, Date now) {
    const std::string agentName = AgentSourceProfile::providerTitle(conversation.agent);
    const std::string timeZone = localTimeZone(context.environment);
    return ConversationExport::markdown({.conversation = conversation,
                                         .instruction = story.instruction,
                                         .entries = story.entries,
                                         .agentName = agentName,
                                         .exportedAt = now,
                                         .omittedEarlier = story.omittedEarlier,
                                         .timeZone = timeZone});
}

}  // namespace

int Commands::conversation(const Context& context, const ConversationOptions& options) {
    const Date moment = now();
    const ConversationShelf shelf(ShelfSettings::read(context.directory).settings, context.directory,
                                  context.environment, moment);
    if (!shelf.conversations()) return problem("the settings do not let session records be read");
    const auto found = shelf.find(options.id);
    if (found.empty()) return problem("there is no conversation " + options.id);
    if (found.size() > 1) return problem("more than one conversation's identifier begins with " + options.id);
    const auto story = shelf.story(*found.front());
    TerminalOutput output(context.environment);
    if (options.markdown) {
        output.write(exported(context, *found.front(), story, moment));
        return finish(output);
    }
    const ShownConversation shown = shownOf(*found.front(), story, moment);
    if (context.json) return writeJSON(output, shown);
    writeShown(output, shown);
    return finish(output);
}

}  // namespace vellark
