#include <VellarkDomain/Conversations/Grouping/ConversationGrouping.hpp>
#include <VellarkDomain/Conversations/Grouping/ConversationRetention.hpp>

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace vellark {
namespace {

using Session = ConversationSession;

constexpr double now = 1'000'000;

std::vector<AgentConversation> grouped(const std::vector<Session>& sessions, bool showsSubagents = false) {
    return ConversationGrouping::conversations(sessions, {.now = {now}, .showsSubagents = showsSubagents});
}

Session session(std::string threadID, std::optional<std::string> parent = {}, double updatedAt = now) {
    return {.agent = "claude",
            .threadID = std::move(threadID),
            .parentThreadID = std::move(parent),
            .path = "/r",
            .updatedAt = {updatedAt},
            .finished = true};
}

std::string ids(const std::vector<AgentConversation>& conversations) {
    std::string result;
    for (const auto& conversation : conversations)
        result += conversation.threadID + " ";
    return result;
}

// Threads t0 to tn, each the child of the one before.
std::vector<Session> chain(std::size_t count) {
    std::vector<Session> sessions = {session("t0")};
    while (sessions.size() < count)
        sessions.push_back(session("t" + std::to_string(sessions.size()), sessions.back().threadID));
    return sessions;
}

TEST(ConversationRetentionTests, sevenDaysAreKept) {
    using namespace ConversationRetention;
    constexpr double day = 86'400;
    EXPECT_TRUE(isRetained({now - window}, {now}));
    EXPECT_FALSE(isRetained({now - window - 1}, {now}));
    const std::pair<double, int> rows[] = {{0, 7},       {-day, 7},    {1, 7},          {day, 6}, {6 * day + 82'800, 1},
                                           {7 * day, 0}, {8 * day, 0}, {7 * day - 1, 1}};
    for (const auto& [age, days] : rows)
        EXPECT_EQ(daysLeft({now - age}, {now}), days) << age;
    EXPECT_EQ(daysLeft({std::numeric_limits<double>::infinity()}, {now}), 7);
    EXPECT_EQ(daysLeft({std::numeric_limits<double>::quiet_NaN()}, {now}), 0);
}

TEST(ConversationGroupingTests, oldConversationsDropOut) {
    EXPECT_EQ(ids(grouped({session("a", {}, now - 604'800), session("b", {}, now - 604'801)})), "a ");
}

TEST(ConversationGroupingTests, parentsJoinWhereTheyWereRead) {
    const auto orphan = grouped({session("a", "lost")});
    ASSERT_EQ(ids(orphan), "a ");
    EXPECT_EQ(orphan[0].resumeID, "lost") << "of Claude, a child resumes by its parent";
    auto foreign = session("b", "a");
    foreign.agent = "codex";
    EXPECT_EQ(ids(grouped({session("a"), foreign, session("c", "a")})), "a b ") << "agents never join";
    EXPECT_EQ(ids(grouped({session("a", "b"), session("b", "a")})), "") << "a loop has no root of its own";
    EXPECT_EQ(ids(grouped({session("a", "a")})), "a ");
}

TEST(ConversationGroupingTests, aChainIsFollowedForSixteenSteps) {
    const auto seventeen = grouped(chain(17));
    ASSERT_EQ(ids(seventeen), "t0 ");
    EXPECT_EQ(seventeen[0].runs.size(), 16U);
    const auto deep = grouped(chain(10'000));
    ASSERT_EQ(ids(deep), "t0 ") << "what lies deeper has a root that belongs to another group";
    EXPECT_EQ(deep[0].runs.size(), 16U);
    EXPECT_EQ(grouped(chain(10'000), true).size(), 10'000U);
}

TEST(ConversationGroupingTests, continuationsAreTheConversationItself) {
    auto root = session("a");
    auto next = session("b", "a");
    next.continuation = true;
    next.startedAt = {5};
    next.instruction = "Go on";
    auto last = session("c", "b");
    last.continuation = true;
    last.startedAt = {9};
    const auto conversations = grouped({last, root, next, session("d", "c")});
    ASSERT_EQ(ids(conversations), "a ");
    EXPECT_EQ(conversations[0].title, "Go on");
    EXPECT_EQ(conversations[0].resumeID, "c");
    ASSERT_EQ(conversations[0].runs.size(), 1U);
    EXPECT_EQ(conversations[0].runs[0].threadID, "d");
}

TEST(ConversationGroupingTests, runsOfOneNameAreOneParticipant) {
    auto first = session("first-thread", "a");
    auto second = session("second-thread", "a");
    first.name = second.name = "scout";
    first.agent = second.agent = "codex";
    auto root = session("a");
    root.agent = "codex";
    second.startedAt = {3};
    second.cwd = "/w";
    const auto conversation = grouped({root, second, first, session("nameless-thread")}).at(0);
    ASSERT_EQ(conversation.subagents.size(), 0U) << "another agent's";
    const auto own = grouped({root, second, first}).at(0);
    ASSERT_EQ(own.subagents.size(), 1U);
    EXPECT_EQ(own.subagents[0].resumeID, "second-thread");
    EXPECT_EQ(own.subagents[0].cwd, "/w");
    EXPECT_EQ(own.runs.size(), 2U);
    EXPECT_EQ(own.runs[0].threadID, "first-thread");
    const auto nameless = grouped({session("a"), session("nameless-thread", "a")}).at(0);
    ASSERT_EQ(nameless.subagents.size(), 1U);
    EXPECT_EQ(nameless.subagents[0].name, "s-thread");
    EXPECT_EQ(nameless.subagents[0].resumeID, std::nullopt);
}

TEST(ConversationGroupingTests, runningAndUnread) {
    const auto isRunning = [](double age, bool finished) {
        auto one = session("a", {}, now - age);
        one.finished = finished;
        return grouped({one}).at(0).isRunning;
    };
    EXPECT_TRUE(isRunning(119, false));
    EXPECT_FALSE(isRunning(120, false));
    EXPECT_FALSE(isRunning(0, true));
    EXPECT_TRUE(isRunning(-500, false));
    const auto isUnread = [](ConversationGrouping::Context context) {
        context.now = {now};
        return ConversationGrouping::conversations(std::vector{session("a")}, context).at(0).isUnread;
    };
    EXPECT_FALSE(isUnread({.baseline = {now}}));
    EXPECT_TRUE(isUnread({.baseline = {now - 1}}));
    EXPECT_FALSE(isUnread({.viewed = {{"claude:a", {now}}}, .baseline = {0}}));
    EXPECT_TRUE(isUnread({.viewed = {{"claude:a", {now - 1}}}, .baseline = {now}}));
}

TEST(ConversationGroupingTests, theListHasOneOrder) {
    EXPECT_EQ(ids(grouped({session("b", {}, now - 1), session("c"), session("a", {}, now - 1)})), "c a b ");
    const double unknown = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(ids(grouped({session("a", {}, unknown), session("b")})), "b ");
}

TEST(ConversationGroupingTests, titlesFallBackOnTheFolder) {
    auto placed = session("a");
    placed.cwd = "/work/shelf/";
    EXPECT_EQ(grouped({placed}).at(0).title, "shelf");
    EXPECT_EQ(grouped({session("a")}).at(0).title, "claude");
    placed.instruction = "# " + std::string(81, 'x');
    EXPECT_EQ(grouped({placed}).at(0).title, std::string(79, 'x') + "…");
}

}  // namespace
}  // namespace vellark
