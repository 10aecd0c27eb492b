#include <VellarkDomain/Conversations/Records/ConversationEntry.hpp>
#include <VellarkFoundation/Records/RecordHash.hpp>

namespace vellark {

namespace {

// Entries are not stored, so their unions are described for hashing alone.
class EntryHasher {
public:
    template <class Value>
    void add(const Value& value) {
        hasher_.add(value);
    }

    void add(const ConversationEntry::Kind& kind) {
        hasher_.add(kind.index());
        std::visit([this](const auto& value) { addCase(value); }, kind);
    }

    void add(const ConversationTodoUpdate& update) {
        hasher_.add(update.change.index());
        std::visit([this](const auto& change) { addChange(change); }, update.change);
    }

    [[nodiscard]] std::size_t value() const { return hasher_.value(); }

private:
    void addCase(const ConversationEntry::Delegation& delegation) { hasher_.add(delegation.to); }
    void addCase(const ConversationEntry::AgentMessage& message) { hasher_.add(message.to); }
    void addCase(const ConversationActivity& activity) { hasher_.add(activity); }
    template <class Empty>
    void addCase(const Empty&) {}

    void addChange(const ConversationTodoUpdate::Snapshot& snapshot) {
        hasher_.add(snapshot.todos.size());
        for (const ConversationTodo& todo : snapshot.todos) {
            hasher_.add(todo.text);
            hasher_.add(todo.status);
        }
    }
    void addChange(const ConversationTodoUpdate::Created& created) {
        hasher_.add(created.id);
        hasher_.add(created.text);
    }
    void addChange(const ConversationTodoUpdate::Updated& updated) {
        hasher_.add(updated.id);
        hasher_.add(updated.status);
    }

    RecordHasher hasher_;
};

}  // namespace

bool ConversationEntry::isInMainFeed() const {
    return !(is<Message>() || is<ConversationActivity>()) || !topic;
}

std::size_t hashValue(const ConversationEntry& entry) {
    EntryHasher hasher;
    hasher.add(entry.id);
    hasher.add(entry.kind);
    hasher.add(entry.author);
    hasher.add(entry.time.has_value());
    if (entry.time) hasher.add(entry.time->secondsSince1970);
    hasher.add(entry.text);
    hasher.add(entry.isTruncated);
    hasher.add(entry.location);
    hasher.add(entry.topic);
    hasher.add(entry.callID);
    hasher.add(entry.todos.size());
    for (const ConversationTodoUpdate& update : entry.todos)
        hasher.add(update);
    return hasher.value();
}

std::size_t hashValue(const ConversationTranscript& transcript) {
    RecordHasher hasher;
    for (const ConversationEntry& entry : transcript.entries)
        hasher.add(hashValue(entry));
    hasher.add(transcript.omittedEarlier);
    hasher.add(transcript.isPartial);
    return hasher.value();
}

}  // namespace vellark
