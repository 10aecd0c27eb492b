#include <VellarkDomain/Conversations/Tasks/ConversationRole.hpp>
#include <VellarkDomain/Conversations/Text/ConversationText.hpp>
#include <VellarkShelf/Sessions/SessionSummary.hpp>

#include <algorithm>

namespace vellark {

namespace {

using Author = ConversationAuthor;

// Gathers one session from its events.
class SummaryBuilder {
public:
    SummaryBuilder(const SessionAgent& agent, const std::string& path) {
        session_.agent = std::string(agent.key);
        session_.path = path;
    }

    void take(SessionEvent&& event) {
        if (event.time) {
            startedAt_ = std::min(startedAt_.value_or(*event.time), *event.time);
            updatedAt_ = std::max(updatedAt_.value_or(*event.time), *event.time);
        }
        place_ = {.agent = session_.agent, .path = session_.path, .offset = event.offset, .part = event.part};
        std::visit([this](auto& kind) { add(kind); }, event.kind);
    }

    void finish(SessionSummary& summary) {
        summary.delegations = std::move(delegations_);
        if (session_.threadID.empty() || !startedAt_ || !hasTurns_) return;
        session_.id = session_.path;
        session_.startedAt = *startedAt_;
        session_.updatedAt = *updatedAt_;
        session_.documentSessions = {session_.threadID};
        if (!preview_.empty()) {
            session_.preview = ConversationText::preview(preview_, ConversationText::previewLimit);
            session_.previewAuthor = previewAuthor_;
        }
        summary.session = std::move(session_);
    }

private:
    void add(SessionEvent::Header& header) {
        if (session_.threadID.empty()) session_.threadID = std::move(header.thread);
        if (!header.parentThread.empty()) session_.parentThreadID = std::move(header.parentThread);
        if (header.continuation) session_.continuation = true;
        if (!session_.cwd && !header.cwd.empty()) session_.cwd = std::move(header.cwd);
        if (header.name.empty()) return;
        session_.name = ConversationText::title(ConversationText::redact(header.name));
        session_.role = rawValue(ConversationRoles::resolve({.type = header.type, .name = header.name}));
    }

    void add(SessionEvent::UserTurn& turn) {
        open();
        const auto instruction = ConversationText::instruction(turn.text);
        if (!instruction) return;
        if (!session_.instruction) {
            session_.instruction = ConversationText::excerpt(*instruction, ConversationText::instructionLimit).text;
            session_.instructionLocation = place_;
            session_.afterCompaction = isCompacted_;
        }
        say(*instruction, Author::user());
    }

    void add(SessionEvent::AgentText& said) {
        open();
        say(said.text, Author::main());
    }

    void add(SessionEvent::Delegation& delegation) {
        open();
        const std::string name = subagentName(delegation);
        const auto role =
            ConversationRoles::resolve({.type = delegation.type, .name = name, .description = delegation.task});
        delegations_.push_back({.callID = std::move(delegation.callID),
                                .threadID = {},
                                .name = name,
                                .role = std::string(rawValue(role)),
                                .task = ConversationText::title(ConversationText::redact(delegation.task))});
    }

    void add(SessionEvent::DelegationResult& result) {
        const auto call = std::find_if(delegations_.begin(), delegations_.end(),
                                       [&result](const auto& one) { return one.callID == result.callID; });
        if (call == delegations_.end()) return;
        if (!result.thread.empty()) call->threadID = std::move(result.thread);
        if (result.isStart) return;
        call->isBack = true;
        call->failed = result.failed;
    }

    void add(SessionEvent::AgentMessage&) { open(); }
    void add(SessionEvent::Activity&) { open(); }
    void add(SessionEvent::Compaction&) { isCompacted_ = true; }

    // An end behind a failure does not undo it; new work does.
    void add(SessionEvent::Outcome& outcome) {
        using State = SessionEvent::Outcome::State;
        if (session_.failed && outcome.state == State::finished) return;
        session_.finished = outcome.state == State::finished;
        session_.failed = outcome.state == State::failed;
        session_.interrupted = outcome.state == State::interrupted;
    }

    void open() {
        hasTurns_ = true;
        session_.finished = session_.failed = session_.interrupted = false;
    }

    void say(std::string_view text, const Author& author) {
        preview_ = text;
        previewAuthor_ = author;
    }

    ConversationSession session_;
    std::vector<SessionDelegation> delegations_;
    std::optional<Date> startedAt_;
    std::optional<Date> updatedAt_;
    ConversationTextLocation place_;
    std::string preview_;
    Author previewAuthor_;
    bool isCompacted_ = false;
    bool hasTurns_ = false;
};

}  // namespace

SessionSummary SessionSummary::read(const SessionAgent& agent, const std::string& path,
                                    const std::optional<std::string>& configHome, const RecordFile& file) {
    SessionSummary summary{.path = path, .fingerprint = file.fingerprint(), .session = {}, .delegations = {}};
    SummaryBuilder builder(agent, path);
    agent.read(file, {.detail = SessionDetail::summary},
               [&builder](SessionEvent&& event) { builder.take(std::move(event)); });
    builder.finish(summary);
    if (summary.session) {
        summary.session->fingerprint = summary.fingerprint;
        summary.session->configHome = configHome;
    }
    return summary;
}

std::string subagentName(const SessionEvent::Delegation& delegation) {
    constexpr std::string_view sayingNothing[] = {"", "general-purpose", "default", "worker"};
    const bool hasType =
        std::find(std::begin(sayingNothing), std::end(sayingNothing), delegation.type) == std::end(sayingNothing);
    const std::string& name = !delegation.name.empty()  ? delegation.name
                              : hasType                 ? delegation.type
                              : delegation.task.empty() ? delegation.prompt
                                                        : delegation.task;
    return ConversationText::title(ConversationText::redact(name));
}

}  // namespace vellark
