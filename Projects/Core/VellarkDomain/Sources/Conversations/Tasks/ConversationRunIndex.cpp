#include <VellarkDomain/Conversations/Tasks/ConversationRunIndex.hpp>

namespace vellark {

namespace {

// The last component of a thread's path, as agents name their nested threads; empty when it has none.
std::string_view lastPiece(std::string_view threadID) {
    while (threadID.ends_with('/'))
        threadID.remove_suffix(1);
    threadID.remove_prefix(threadID.rfind('/') + 1);  // npos + 1 is 0
    return threadID;
}

void setLocationKey(std::string& key, const std::string& path, const std::string* threadID) {
    key = path;
    if (threadID == nullptr) return;
    key += '#';
    key += *threadID;
}

}  // namespace

ConversationRunIndex::ConversationRunIndex(std::span<const ConversationRun> runs) {
    for (std::size_t place = 0; place < runs.size(); ++place) {
        const ConversationRun& run = runs[place];
        if (run.delegationID) delegations_.insert_or_assign(*run.delegationID, place);
        paths_.insert_or_assign(run.path, place);
        setLocationKey(key_, run.path, &run.threadID);
        paths_.insert_or_assign(key_, place);
        threads_.insert_or_assign(run.threadID, place);
        aliases_.insert_or_assign(run.threadID, place);
        const std::string_view piece = lastPiece(run.threadID);
        if (!piece.empty()) aliases_.insert_or_assign(piece, place);
        names_.insert_or_assign(run.name, place);
    }
}

ConversationRunIndex::Place ConversationRunIndex::ofDelegation(const std::optional<std::string>& callID) const {
    return callID ? found(delegations_, *callID) : std::nullopt;
}

ConversationRunIndex::Place ConversationRunIndex::ofLocation(const std::optional<ConversationTextLocation>& location) {
    if (!location) return std::nullopt;
    setLocationKey(key_, location->path, location->session ? &*location->session : nullptr);
    return found(paths_, key_);
}

}  // namespace vellark
