#include <VellarkDomain/Conversations/Records/AgentConversation.hpp>
#include <VellarkDomain/Conversations/Records/ConversationEntry.hpp>
#include <VellarkDomain/Conversations/Records/ConversationSession.hpp>
#include <VellarkFoundation/Records/RecordHash.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace vellark {
namespace {

constexpr std::string_view sessionText =
    R"({"id":"s1","agent":"claude","threadID":"t1","parentThreadID":"t0","name":"탐색","path":"/r.jsonl",)"
    R"("fingerprint":[-9223372036854775808,7],"startedAt":"2026-01-02T03:04:05Z","updatedAt":"2026-01-02T03:04:05.250000Z",)"
    R"("instructionLocation":{"agent":"claude","path":"/r.jsonl","offset":12,"part":0},"afterCompaction":false,)"
    R"("previewAuthor":{"role":"subagent","name":"탐색"},"finished":true,"failed":false,"interrupted":false,)"
    R"("documentSessions":["d"],"continuation":false})";

TEST(ConversationRecordsTests, sessionsAreWrittenAsTheyWereRead) {
    const auto session = readRecord<ConversationSession>(sessionText);
    ASSERT_TRUE(session);
    EXPECT_EQ(session->startedAt.secondsSince1970, 1767323045);
    EXPECT_EQ(session->previewAuthor, ConversationAuthor::subagent("탐색"));
    EXPECT_EQ(writeRecord(*session), std::string(sessionText));
    ConversationSession other = *session;
    EXPECT_EQ(recordHash(other), recordHash(*session));
    other.fingerprint[1] = 8;
    EXPECT_NE(other, *session);
}

TEST(ConversationRecordsTests, whatIsRequiredIsMissed) {
    std::string text(sessionText);
    text.replace(text.find("\"failed\":false,"), 15, "");
    EXPECT_EQ(readRecord<ConversationSession>(text).error().path, "failed");
    text = sessionText;
    text.replace(text.find("\"part\":0"), 8, "\"part\":\"0\"");
    EXPECT_EQ(readRecord<ConversationSession>(text).error().path, "instructionLocation.part");
    EXPECT_EQ(readRecord<AgentConversation>("{}").error().path, "id");
    EXPECT_EQ(readRecord<ConversationActivity>("{\"editedFiles\":[]}").error().path, "commands");
}

TEST(ConversationRecordsTests, mergedWorkHasNoRepeats) {
    ConversationActivity activity{.editedFiles = {"a", "b"}, .commands = 2, .createdPullRequests = {7}};
    activity.merge({.editedFiles = {"c", "a", "c"}, .documentPaths = std::vector<std::string>(), .commands = 1});
    EXPECT_EQ(activity.editedFiles, (std::vector<std::string>{"a", "b", "c"}));
    EXPECT_FALSE(activity.documentPaths) << "nothing to add makes no list";
    activity.merge({.documentPaths = std::vector<std::string>{"c"},
                    .createdPullRequests = {7, 9},
                    .createdPullRequestCount = 3,
                    .otherTools = 4});
    EXPECT_EQ(activity.documentPaths, std::vector<std::string>{"c"});
    EXPECT_EQ(activity.createdPullRequests, (std::vector<std::int64_t>{7, 9}));
    EXPECT_EQ(activity.commands, 3);
    EXPECT_EQ(activity.createdPullRequestCount, 3);
    activity.merge(activity);
    EXPECT_EQ(activity.otherTools, 8);
    EXPECT_EQ(activity.editedFiles.size(), 3U);
}

TEST(ConversationRecordsDeathTest, aCountBeyondItsRangeEndsTheProcess) {
    ConversationActivity activity{.commits = std::numeric_limits<std::int64_t>::max()};
    EXPECT_DEATH(activity.merge({.commits = 1}), "");
}

TEST(ConversationRecordsTests, aSubagentsOwnTurnsStayOutOfTheMainFeed) {
    using Entry = ConversationEntry;
    const std::vector<std::pair<Entry::Kind, bool>> shownWithTopic = {
        {Entry::Delegation{"A"}, true}, {Entry::AgentMessage{"A"}, true}, {Entry::Report(), true},
        {Entry::Compaction(), true},    {Entry::Message(), false},        {ConversationActivity(), false}};
    for (const auto& [kind, shown] : shownWithTopic) {
        EXPECT_EQ((Entry{.kind = kind, .topic = "A"}).isInMainFeed(), shown) << kind.index();
        EXPECT_TRUE((Entry{.kind = kind}).isInMainFeed()) << kind.index();
        EXPECT_EQ(hashValue(Entry{.kind = kind}), hashValue(Entry{.kind = kind}));
    }
    EXPECT_NE(hashValue(Entry{.kind = Entry::Report()}), hashValue(Entry{.kind = Entry::Compaction()}));
}

}  // namespace
}  // namespace vellark
