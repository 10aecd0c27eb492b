#include <VellarkDomain/Conversations/Grouping/ConversationGrouping.hpp>
#include <VellarkDomain/Conversations/Grouping/SessionThreads.hpp>

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace vellark {

namespace {

void setKey(std::string& key, std::string_view agent, std::string_view threadID) {
    key.assign(agent);
    key += ':';
    key += threadID;
}

// The parent that the thread's sessions name first.
const std::string* parentThread(const SessionThreads::Sessions& sessions) {
    for (const ConversationSession* session : sessions) {
        if (session->parentThreadID) return &*session->parentThreadID;
    }
    return nullptr;
}

}  // namespace

SessionThreads::SessionThreads(std::span<const ConversationSession> sessions) {
    std::unordered_map<std::string, Place> places;
    places.reserve(sessions.size());
    std::string key;
    for (const ConversationSession& session : sessions) {
        setKey(key, session.agent, session.threadID);
        const auto [row, isNew] = places.try_emplace(key, static_cast<Place>(threads_.size()));
        if (isNew) threads_.push_back({.key = key, .sessions = {}, .parent = std::nullopt});
        threads_[row->second].sessions.push_back(&session);
    }
    for (Thread& thread : threads_) {
        const std::string* parent = parentThread(thread.sessions);
        if (parent == nullptr) continue;
        setKey(key, thread.sessions.front()->agent, *parent);
        if (const auto row = places.find(key); row != places.end()) thread.parent = row->second;
    }
}

// The thread and those above it, up to its root: the last one that is reached before a loop closes, a parent is missing
// or the steps are used up.
std::vector<SessionThreads::Place> SessionThreads::lineage(Place thread) const {
    std::vector<Place> line = {thread};
    while (line.size() <= ConversationGrouping::mostSteps) {
        const auto parent = threads_[line.back()].parent;
        if (!parent || std::ranges::find(line, *parent) != line.end()) break;
        line.push_back(*parent);
    }
    return line;
}

std::vector<SessionThreads::Sessions> SessionThreads::groups(bool everyThread) const {
    std::vector<Sessions> result(threads_.size());
    for (Place thread = 0; thread < threads_.size(); ++thread) {
        std::vector<Place> heads = lineage(thread);
        if (!everyThread) heads = {heads.back()};
        for (const Place head : heads)
            result[head].insert(result[head].end(), threads_[thread].sessions.begin(), threads_[thread].sessions.end());
    }
    return result;
}

}  // namespace vellark
