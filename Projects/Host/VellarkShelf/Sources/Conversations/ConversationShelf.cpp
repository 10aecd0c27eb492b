#include <VellarkDomain/Conversations/Assembly/ConversationAssembly.hpp>
#include <VellarkDomain/Conversations/Grouping/ConversationGrouping.hpp>
#include <VellarkDomain/Conversations/Grouping/ConversationVisibility.hpp>
#include <VellarkFoundation/Files/HomeDirectory.hpp>
#include <VellarkShelf/Conversations/ConversationShelf.hpp>
#include <VellarkShelf/Sessions/SessionCatalog.hpp>

#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>

namespace vellark {

namespace {

// Whoever asks for conversations wants them read; only an explicit no counts against it.
bool isSwitchedOff(const CapturePreferences& preferences, const std::string& agent) {
    if (preferences.readsSessionRecords == false) return true;
    const auto store = preferences.agentStores.find(agent);
    return store != preferences.agentStores.end() && !store->second;
}

}  // namespace

ConversationShelf::ConversationShelf(const AppSettings& settings, const DataDirectory& directory,
                                     const Environment& environment, Date now) {
    if (settings.capture.readsSessionRecords == false) return;
    const auto& chosen = settings.advanced.agentHomes;
    auto homes = SessionCatalog::homes(environment, {chosen.begin(), chosen.end()});
    std::erase_if(homes, [&settings](const auto& home) { return isSwitchedOff(settings.capture, home.agent); });
    sessions_ = SessionCatalog::sessions(homes, directory.path);
    const ConversationVisibility visibility(settings, HomeDirectory::current(environment));
    std::erase_if(sessions_, [&visibility](const auto& session) { return !visibility.allows(session.cwd); });
    conversations_ = ConversationGrouping::conversations(
        sessions_, {.now = now, .baseline = now, .showsSubagents = settings.advanced.showsSubagents});
}

std::vector<const AgentConversation*> ConversationShelf::find(std::string_view id) const {
    std::vector<const AgentConversation*> found;
    if (!conversations_) return found;
    for (const AgentConversation& conversation : *conversations_) {
        if (conversation.id == id || conversation.threadID == id) return {&conversation};
        if (conversation.id.starts_with(id) || conversation.threadID.starts_with(id)) found.push_back(&conversation);
    }
    return found;
}

ConversationShelf::Story ConversationShelf::story(const AgentConversation& conversation) const {
    auto read = SessionCatalog::story(conversation, sessions_);
    Story story{.instruction = conversation.instruction, .omittedEarlier = read.omittedEarlier};
    if (conversation.instructionLocation) {
        if (auto whole = SessionCatalog::wholeText(*conversation.instructionLocation)) {
            story.instruction = *std::move(whole);
        }
    }
    story.entries = ConversationAssembly::feed(std::move(read.parts));
    story.tasks = ConversationTask::tasks(story.entries, conversation.runs);
    return story;
}

std::string localTimeZone(const Environment& environment) {
    constexpr std::string_view folder = "/zoneinfo/";
    std::string name(environment.value("TZ").value_or(""));
    if (name.starts_with(':')) name.erase(0, 1);
    if (name.empty()) {
        std::array<char, PATH_MAX> buffer{};
        if (::realpath("/etc/localtime", buffer.data()) != nullptr) name = buffer.data();
    }
    if (const std::size_t place = name.find(folder); place != std::string::npos) {
        name.erase(0, place + folder.size());
    }
    return name.empty() || name.starts_with('/') ? "UTC" : name;
}

}  // namespace vellark
