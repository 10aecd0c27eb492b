#include <VellarkDomain/Conversations/Records/ConversationActivity.hpp>

#include <cstdlib>
#include <unordered_set>

namespace vellark {

namespace {

template <class Item>
using Set = std::unordered_set<Item>;

template <class Item>
void appendMissing(std::vector<Item>& list, Set<Item>& seen, const std::vector<Item>& more) {
    for (const Item& item : more) {
        if (seen.insert(item).second) list.push_back(item);
    }
}

void add(std::int64_t& count, std::int64_t more) {
    if (__builtin_add_overflow(count, more, &count)) std::abort();
}

void addCounts(ConversationActivity& activity, const ConversationActivity& other) {
    add(activity.commands, other.commands);
    add(activity.commits, other.commits);
    add(activity.pushes, other.pushes);
    add(activity.createdPullRequestCount, other.createdPullRequestCount);
    add(activity.mergedPullRequestCount, other.mergedPullRequestCount);
    add(activity.ciChecks, other.ciChecks);
    add(activity.testRuns, other.testRuns);
    add(activity.otherTools, other.otherTools);
    add(activity.agentMessages, other.agentMessages);
}

}  // namespace

struct ConversationActivityFold::Seen {
    Set<std::string> editedFiles;
    Set<std::string> documentPaths;
    Set<std::int64_t> created;
    Set<std::int64_t> merged;
};

ConversationActivityFold::ConversationActivityFold(ConversationActivity& target)
    : target_(target), seen_(std::make_unique<Seen>()) {
    seen_->editedFiles.insert(target.editedFiles.begin(), target.editedFiles.end());
    if (target.documentPaths) seen_->documentPaths.insert(target.documentPaths->begin(), target.documentPaths->end());
    seen_->created.insert(target.createdPullRequests.begin(), target.createdPullRequests.end());
    seen_->merged.insert(target.mergedPullRequests.begin(), target.mergedPullRequests.end());
}

ConversationActivityFold::~ConversationActivityFold() = default;

void ConversationActivityFold::merge(const ConversationActivity& other) {
    appendMissing(target_.editedFiles, seen_->editedFiles, other.editedFiles);
    if (other.documentPaths && !other.documentPaths->empty()) {
        if (!target_.documentPaths) target_.documentPaths.emplace();
        appendMissing(*target_.documentPaths, seen_->documentPaths, *other.documentPaths);
    }
    appendMissing(target_.createdPullRequests, seen_->created, other.createdPullRequests);
    appendMissing(target_.mergedPullRequests, seen_->merged, other.mergedPullRequests);
    addCounts(target_, other);
}

void ConversationActivity::merge(const ConversationActivity& other) {
    ConversationActivityFold(*this).merge(other);
}

}  // namespace vellark
