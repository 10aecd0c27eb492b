#include <VellarkDomain/Conversations/Grouping/ConversationGrouping.hpp>
#include <VellarkDomain/Conversations/Grouping/ConversationRetention.hpp>
#include <VellarkDomain/Conversations/Grouping/SessionThreads.hpp>
#include <VellarkDomain/Conversations/Text/ConversationText.hpp>
#include <VellarkFoundation/Text/FilePath.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <algorithm>
#include <compare>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace vellark::ConversationGrouping {

namespace {

using Session = ConversationSession;
using Sessions = SessionThreads::Sessions;

constexpr std::string_view claude = "claude";
constexpr std::size_t shownThreadCharacters = 8;

// A total order, in which a moment that is no number is the last one.
bool isEarlier(Date left, Date right) {
    return std::weak_order(left.secondsSince1970, right.secondsSince1970) < 0;
}

bool startsEarlier(const Session* left, const Session* right) {
    return isEarlier(left->startedAt, right->startedAt);
}

bool isUpdatedEarlier(const Session* left, const Session* right) {
    return isEarlier(left->updatedAt, right->updatedAt);
}

bool hasText(const std::optional<std::string>& text) {
    return text && !text->empty();
}

// Such a subagent cannot be resumed by itself, only with its parent.
bool isResumedByParent(const Session& session) {
    return session.agent == claude && session.parentThreadID;
}

std::string shownName(const Session& session) {
    if (session.name) return *session.name;
    const Graphemes thread(session.threadID);
    const std::size_t count = thread.count();
    return std::string(thread.slice(count - std::min(count, shownThreadCharacters), count));
}

// The threads that are the conversation itself: the root, and whatever continues one of them.
std::unordered_set<std::string_view> mainThreads(std::string_view root, const Sessions& members) {
    std::unordered_multimap<std::string_view, std::string_view> continuations;  // by the thread that they carry on
    for (const Session* member : members) {
        if (member->continuation && member->parentThreadID)
            continuations.emplace(*member->parentThreadID, member->threadID);
    }
    std::unordered_set<std::string_view> result = {root};
    std::vector<std::string_view> open = {root};
    while (!open.empty()) {
        const auto [first, last] = continuations.equal_range(open.back());
        open.pop_back();
        for (auto row = first; row != last; ++row) {
            if (result.insert(row->second).second) open.push_back(row->second);
        }
    }
    return result;
}

ConversationRun run(const Session& session, std::string name) {
    return {.name = std::move(name),
            .role = session.role,
            .task = session.task,
            .threadID = session.threadID,
            .path = session.path,
            .documentSessions = session.documentSessions,
            .delegationID = session.delegationID,
            .parentThreadID = session.parentThreadID,
            .startedAt = session.startedAt,
            .updatedAt = session.updatedAt,
            .finished = session.finished,
            .failed = session.failed,
            .interrupted = session.interrupted};
}

// A subagent is listed once by its name, and resumed by its latest run that can be.
class ParticipantList {
public:
    void add(const Session& session, const std::string& name) {
        const auto [row, isNew] = places_.try_emplace(name, list_.size());
        if (isNew) list_.push_back({.name = name, .role = session.role});
        if (isResumedByParent(session)) return;
        ConversationParticipant& participant = list_[row->second];
        participant.resumeID = session.threadID;
        participant.resumePath = session.path;
        participant.cwd = session.cwd;
    }

    std::vector<ConversationParticipant> take() && { return std::move(list_); }

private:
    std::vector<ConversationParticipant> list_;
    std::unordered_map<std::string, std::size_t> places_;
};

// One group on its way to a conversation.
class Group {
public:
    // `root` is the thread of the group's head.
    Group(const Sessions& members, std::string_view root) : members_(members), threads_(mainThreads(root, members)) {
        Sessions sorted = members;
        std::ranges::stable_sort(sorted, startsEarlier);
        for (const Session* member : sorted) {
            if (!isMain(*member)) {
                others_.push_back(member);
                continue;
            }
            if (root_ == nullptr && member->threadID == root) root_ = member;
            mains_.push_back(member);
        }
    }

    [[nodiscard]] bool hasRoot() const { return root_ != nullptr; }

    void describe(AgentConversation& conversation) const {
        conversation.agent = root_->agent;
        conversation.threadID = root_->threadID;
        conversation.configHome = root_->configHome;
        conversation.startedAt = (*std::ranges::min_element(members_, startsEarlier))->startedAt;
        conversation.cwd = folder();
        conversation.cwdForResume = conversation.cwd;
        setInstruction(conversation);
        setPreview(conversation);
        setSubagents(conversation);
        setResume(conversation);
        conversation.documentSessions = documentSessions();
    }

private:
    [[nodiscard]] bool isMain(const Session& session) const { return threads_.contains(session.threadID); }

    [[nodiscard]] std::optional<std::string> folder() const {
        for (const Sessions* list : {&mains_, &members_}) {
            const auto found =
                std::ranges::find_if(*list, [](const Session* member) { return member->cwd.has_value(); });
            if (found != list->end()) return (*found)->cwd;
        }
        return std::nullopt;
    }

    // Also the title, which is the instruction's when there is one.
    void setInstruction(AgentConversation& conversation) const {
        const auto source = std::ranges::find_if(mains_, hasText, &Session::instruction);
        if (source == mains_.end()) {
            conversation.title = conversation.cwd ? FilePath::lastComponent(*conversation.cwd) : root_->agent;
            return;
        }
        conversation.instruction = *(*source)->instruction;
        conversation.instructionLocation = (*source)->instructionLocation;
        conversation.afterCompaction = (*source)->afterCompaction;
        conversation.title = ConversationText::title(conversation.instruction);
    }

    void setPreview(AgentConversation& conversation) const {
        const Session* source = nullptr;
        for (const Session* member : members_) {
            if (hasText(member->preview) && (source == nullptr || isUpdatedEarlier(source, member))) source = member;
        }
        if (source == nullptr) return;
        conversation.preview = *source->preview;
        conversation.previewAuthor = source->previewAuthor;
        const bool isUsers = source->previewAuthor && source->previewAuthor->role == ConversationAuthor::Role::user;
        if (!isMain(*source) && !isUsers) conversation.previewAuthor = ConversationAuthor::subagent(shownName(*source));
    }

    void setSubagents(AgentConversation& conversation) const {
        ParticipantList participants;
        conversation.runs.reserve(others_.size());
        for (const Session* member : others_) {
            std::string name = shownName(*member);
            participants.add(*member, name);
            conversation.runs.push_back(run(*member, std::move(name)));
        }
        conversation.subagents = std::move(participants).take();
    }

    // By the newest continuation.
    void setResume(AgentConversation& conversation) const {
        if (isResumedByParent(*root_)) {
            conversation.resumeID = *root_->parentThreadID;
            conversation.resumePath = root_->parentPath;
        } else {
            conversation.resumeID = mains_.back()->threadID;
            conversation.resumePath = mains_.back()->path;
        }
    }

    [[nodiscard]] std::vector<std::string> documentSessions() const {
        std::vector<std::string> result;
        std::unordered_set<std::string_view> seen;
        for (const Session* member : members_) {
            for (const std::string& session : member->documentSessions) {
                if (seen.insert(session).second) result.push_back(session);
            }
        }
        return result;
    }

    const Sessions& members_;
    std::unordered_set<std::string_view> threads_;  // the conversation itself, not its subagents
    Sessions mains_;                                // sessions of these threads by their start
    Sessions others_;                               // the rest by their start
    const Session* root_ = nullptr;
};

template <class Value>
std::optional<Value> valueAt(const std::map<std::string, Value>& table, const std::string& key) {
    const auto row = table.find(key);
    return row == table.end() ? std::nullopt : std::optional(row->second);
}

bool isRunning(const Sessions& members, Date now) {
    return std::ranges::any_of(members, [now](const Session* member) {
        return !member->finished && now.secondsSince1970 - member->updatedAt.secondsSince1970 < runningWindow;
    });
}

std::optional<AgentConversation> conversation(const std::string& id, const Sessions& members, std::string_view root,
                                              const Context& context) {
    if (members.empty()) return std::nullopt;
    const Date latest = (*std::ranges::max_element(members, isUpdatedEarlier))->updatedAt;
    if (!ConversationRetention::isRetained(latest, context.now)) return std::nullopt;
    const Group group(members, root);
    if (!group.hasRoot()) return std::nullopt;
    AgentConversation result;
    result.id = id;
    result.updatedAt = latest;
    group.describe(result);
    result.isRunning = isRunning(members, context.now);
    result.isUnread = latest > valueAt(context.viewed, id).value_or(context.baseline);
    result.pinnedDocumentID = valueAt(context.pinned, id);
    return result;
}

bool standsBefore(const AgentConversation& left, const AgentConversation& right) {
    if (isEarlier(right.updatedAt, left.updatedAt)) return true;
    return !isEarlier(left.updatedAt, right.updatedAt) && left.id < right.id;
}

}  // namespace

std::vector<AgentConversation> conversations(std::span<const Session> sessions, const Context& context) {
    const SessionThreads threads(sessions);
    const std::vector<Sessions> groups = threads.groups(context.showsSubagents);
    std::vector<AgentConversation> result;
    for (SessionThreads::Place thread = 0; thread < threads.count(); ++thread) {
        const std::string_view root = threads.sessions(thread).front()->threadID;
        if (auto found = conversation(threads.key(thread), groups[thread], root, context))
            result.push_back(std::move(*found));
    }
    std::ranges::sort(result, standsBefore);
    return result;
}

}  // namespace vellark::ConversationGrouping
