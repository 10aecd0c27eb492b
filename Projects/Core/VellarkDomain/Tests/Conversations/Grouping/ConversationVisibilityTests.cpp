#include <VellarkDomain/Conversations/Grouping/ConversationVisibility.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

TEST(ConversationVisibilityTests, settingsSayWhatIsHidden) {
    AppSettings settings;
    settings.advanced.hiddenSessionRoots = {"~", "~/play/", "relative", "~other"};
    settings.excludedProjectRoots = {"/srv/", "/opt//"};
    settings.advanced.showsSubagents = true;
    settings.capture.agentStores = {{"claude", true}, {"codex", false}};
    const ConversationVisibility visibility(settings, "/home/u");
    EXPECT_EQ(visibility.roots, (std::vector<std::string>{"/home/u", "/home/u/play", "/srv", "/opt/"}));
    EXPECT_TRUE(visibility.showsSubagents);
    EXPECT_TRUE(visibility.accepts("claude"));
    EXPECT_FALSE(visibility.accepts("codex"));
    EXPECT_FALSE(visibility.accepts("hermes"));
}

TEST(ConversationVisibilityTests, theListNeedsBothSwitches) {
    AppSettings settings;
    EXPECT_FALSE(settings.showsAgentConversations()) << "reading records was not allowed yet";
    settings.capture.readsSessionRecords = true;
    EXPECT_TRUE(settings.showsAgentConversations());
    settings.advanced.agentConversations = false;
    EXPECT_FALSE(settings.showsAgentConversations());
}

TEST(ConversationVisibilityTests, foldersAreHidden) {
    AppSettings settings;
    settings.advanced.hiddenSessionRoots = {"/srv/private"};
    settings.advanced.agentHomes = {{"codex", "/data/codex"}};
    const ConversationVisibility visibility(settings, "/home/u");
    const std::pair<const char*, bool> rows[] = {
        {"/srv/private", false},
        {"/srv/private/a", false},
        {"/srv/private/", false},
        {"/srv/open/../private/a", false},
        {"/srv/private/../open", true},
        {"/srv/private2", true},
        {"/srv", true},
        {"srv/private", true},
        {"", true},
        {"/home/u/.codex/memories", false},
        {"/home/u/.codex/memories_v2/x", false},
        {"/home/u/.codex/memories_v3", true},
        {"/data/codex/memories/x", false},
        {"/home/u/.codex", true},
    };
    for (const auto& [folder, isAllowed] : rows)
        EXPECT_EQ(visibility.allows(folder), isAllowed) << folder;
    EXPECT_TRUE(visibility.allows(std::nullopt));
    settings.advanced.hiddenSessionRoots = {"/"};
    EXPECT_FALSE(ConversationVisibility(settings, "/home/u").allows("/any"));
}

TEST(ConversationVisibilityTests, everythingHidesNothingAndAcceptsNoStore) {
    const auto everything = ConversationVisibility::everything();
    EXPECT_TRUE(everything.allows("/home/u/.codex/memories"));
    EXPECT_FALSE(everything.accepts("claude"));
    EXPECT_FALSE(everything.accepts(""));
}

}  // namespace
}  // namespace vellark
