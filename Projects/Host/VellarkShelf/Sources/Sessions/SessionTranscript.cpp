#include <VellarkDomain/Conversations/Text/ConversationText.hpp>
#include <VellarkShelf/Sessions/SessionReaders.hpp>
#include <VellarkShelf/Sessions/SessionSummary.hpp>
#include <VellarkShelf/Sessions/SessionTranscript.hpp>

#include <deque>
#include <iterator>

namespace vellark {

namespace {

using Author = ConversationAuthor;
using Entry = ConversationEntry;

std::string clean(std::string_view text) {
    return ConversationText::redact(text);
}

// Makes entries of a session's events.
class TranscriptBuilder {
public:
    TranscriptBuilder(const ConversationSession& session, const SessionTranscript::SubagentCalls& subagents)
        : session_(session), subagents_(subagents), isSubagents_(session.parentThreadID && !session.continuation) {}

    void take(SessionEvent&& event) {
        event_ = &event;
        std::visit([this](auto& kind) { add(kind); }, event.kind);
    }

    ConversationTranscript finish() {
        return {.entries = {std::make_move_iterator(entries_.begin()), std::make_move_iterator(entries_.end())},
                .omittedEarlier = omittedEarlier_,
                .isPartial = false};
    }

private:
    [[nodiscard]] std::string ownName() const { return session_.name.value_or(""); }

    [[nodiscard]] Author ownAuthor() const { return isSubagents_ ? Author::subagent(ownName()) : Author::main(); }

    Entry& push(Entry::Kind kind, Author author, std::string_view text) {
        const auto excerpt = ConversationText::excerpt(text, ConversationText::entryLimit);
        Entry entry{.id = session_.threadID + "#" + std::to_string(event_->offset) + "." + std::to_string(event_->part),
                    .kind = std::move(kind),
                    .author = std::move(author),
                    .time = event_->time,
                    .text = excerpt.text,
                    .isTruncated = excerpt.isTruncated};
        entry.location = ConversationTextLocation{
            .agent = session_.agent, .path = session_.path, .offset = event_->offset, .part = event_->part};
        if (isSubagents_) {
            entry.topic = ownName();
            entry.location->session = session_.threadID;
        }
        entries_.push_back(std::move(entry));
        if (entries_.size() > SessionTranscript::mostEntries) {
            entries_.pop_front();
            omittedEarlier_ = true;
        }
        return entries_.back();
    }

    void add(SessionEvent::Header&) {}
    void add(SessionEvent::Outcome&) {}

    void add(SessionEvent::UserTurn& turn) {
        const auto instruction = ConversationText::instruction(turn.text);
        if (!instruction) return;
        if (!isSubagents_) {
            push(Entry::Message(), Author::user(), *instruction);
            return;
        }
        // To a subagent, its caller is the one who speaks.
        if (hasTask_) {
            push(Entry::AgentMessage{ownName()}, Author::main(), *instruction);
            return;
        }
        hasTask_ = true;
        // Where the caller's record tells of the call, the prompt stands there.
        if (!session_.delegationID) push(Entry::Delegation{ownName()}, Author::main(), *instruction);
    }

    void add(SessionEvent::AgentText& said) {
        if (!said.text.empty()) push(Entry::Message(), ownAuthor(), said.text);
    }

    void add(SessionEvent::Delegation& delegation) {
        const std::string name = subagentName(delegation);
        push(Entry::Delegation{name}, ownAuthor(), delegation.prompt).callID = delegation.callID;
        delegates_[delegation.callID] = name;
    }

    // A subagent without a record of its own reports in its caller's.
    void add(SessionEvent::DelegationResult& result) {
        const auto name = delegates_.find(result.callID);
        if (name == delegates_.end() || subagents_.contains(result.callID) || result.text.empty()) return;
        Entry& report = push(Entry::Report(), Author::subagent(name->second), result.text);
        report.topic = name->second;
        report.callID = result.callID;
    }

    void add(SessionEvent::AgentMessage& message) {
        push(Entry::AgentMessage{clean(message.to)}, ownAuthor(), message.text);
    }

    void add(SessionEvent::Activity& activity) {
        for (std::string& path : activity.activity.editedFiles) {
            path = clean(path);
        }
        Entry& entry = push(std::move(activity.activity), ownAuthor(), {});
        for (ConversationTodoUpdate& update : activity.todos) {
            std::visit([](auto& change) { cleanChange(change); }, update.change);
        }
        entry.todos = std::move(activity.todos);
        entry.location.reset();
    }

    static void cleanChange(ConversationTodoUpdate::Snapshot& snapshot) {
        for (ConversationTodo& todo : snapshot.todos) {
            todo.text = clean(todo.text);
        }
    }
    static void cleanChange(ConversationTodoUpdate::Created& created) { created.text = clean(created.text); }
    static void cleanChange(ConversationTodoUpdate::Updated&) {}

    void add(SessionEvent::Compaction&) { push(Entry::Compaction(), ownAuthor(), {}); }

    const ConversationSession& session_;
    const SessionTranscript::SubagentCalls& subagents_;
    bool isSubagents_;
    bool hasTask_ = false;
    bool omittedEarlier_ = false;
    std::map<std::string, std::string> delegates_;  // names by call
    std::deque<Entry> entries_;
    const SessionEvent* event_ = nullptr;
};

// The text that an event carries; a null pointer when it carries none.
const std::string* textOf(const SessionEvent::Kind& kind) {
    if (const auto* turn = std::get_if<SessionEvent::UserTurn>(&kind)) return &turn->text;
    if (const auto* said = std::get_if<SessionEvent::AgentText>(&kind)) return &said->text;
    if (const auto* delegation = std::get_if<SessionEvent::Delegation>(&kind)) return &delegation->prompt;
    if (const auto* result = std::get_if<SessionEvent::DelegationResult>(&kind)) return &result->text;
    if (const auto* message = std::get_if<SessionEvent::AgentMessage>(&kind)) return &message->text;
    return nullptr;
}

}  // namespace

ConversationTranscript SessionTranscript::read(const ConversationSession& session, const SubagentCalls& subagents) {
    const SessionAgent* agent = SessionReaders::of(session.agent);
    const auto file = RecordFile::open(session.path);
    if (agent == nullptr || !file) return {.entries = {}, .omittedEarlier = false, .isPartial = true};
    TranscriptBuilder builder(session, subagents);
    agent->read(*file, {}, [&builder](SessionEvent&& event) { builder.take(std::move(event)); });
    return builder.finish();
}

std::optional<std::string> SessionTranscript::wholeText(const ConversationTextLocation& location) {
    const SessionAgent* agent = SessionReaders::of(location.agent);
    const auto file = RecordFile::open(location.path);
    if (agent == nullptr || !file || location.offset < 0) return std::nullopt;
    std::optional<std::string> whole;
    agent->read(*file, {.from = location.offset, .single = true}, [&](SessionEvent&& event) {
        const std::string* text = textOf(event.kind);
        if (event.part != location.part || text == nullptr) return;
        const bool isTurn = std::holds_alternative<SessionEvent::UserTurn>(event.kind);
        const auto instruction = isTurn ? ConversationText::instruction(*text) : std::nullopt;
        whole = clean(instruction.value_or(*text));
    });
    return whole;
}

}  // namespace vellark
