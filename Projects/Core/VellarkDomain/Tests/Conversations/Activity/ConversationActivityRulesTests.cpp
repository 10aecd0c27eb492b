#include <VellarkDomain/Conversations/Records/ConversationActivity.hpp>
#include <VellarkLocalization/L10n.hpp>

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace vellark {
namespace {

using Activity = ConversationActivity;

struct CommandRow {
    std::string_view line;
    Activity expected;
};

TEST(ConversationActivityRulesTests, commandLines) {
    const CommandRow rows[] = {
        {"git add -A && git commit -m x", {.commits = 1}},
        {"git commit -m \"a; git push now\"", {.commits = 1, .pushes = 1}},
        {"git commit -m 'x'; git push\ngit push", {.commits = 1, .pushes = 2}},
        {"git -C /a commit", {}},
        {"git --no-pager commit", {.commits = 1}},
        {"nice -n 10 git push", {.pushes = 1}},
        {"env A=b time -p /usr/bin/git push", {.pushes = 1}},
        {"gh pr view", {}},
        {"gh pr", {}},
        {"gh pr create --fill", {.createdPullRequestCount = 1}},
        {"gh pr checks 3 && gh run watch", {.ciChecks = 2}},
        {"gh pr merge --squash #12#", {.mergedPullRequests = {12}, .mergedPullRequestCount = 1}},
        {"gh pr merge", {.mergedPullRequestCount = 1}},
        {"npm run test", {.testRuns = 1}},
        {"npm run tests", {}},
        {"bash a/run-tests.py test.sh", {}},
        {"sh Scripts/test.sh", {.testRuns = 1}},
        {"./smoke-test.sh", {.testRuns = 1}},
        {"python3 -m unittest | tee log", {.testRuns = 1}},
        {"python a/test_b.py", {.testRuns = 1}},
        {"a\r\ngit push", {}},
        {" ; & ", {}},
        {"env A=1", {}},
    };
    for (const CommandRow& row : rows) {
        Activity expected = row.expected;
        expected.commands = 1;
        EXPECT_EQ(Activity::command(row.line), expected) << row.line;
    }
    Activity merged = Activity::command("gh pr merge 7");
    merged.merge(Activity::command("gh pr merge 7"));
    EXPECT_EQ(merged.mergedPullRequestCount, 2);
    EXPECT_EQ(merged.mergedPullRequests.size(), 1U);
}

TEST(ConversationActivityRulesTests, pullRequests) {
    EXPECT_TRUE(Activity::createsPullRequest("cd a;gh  pr\tcreate"));
    EXPECT_FALSE(Activity::createsPullRequest("xgh pr create") || Activity::createsPullRequest("gh pr created"));
    EXPECT_EQ(Activity::pullRequestNumber("see /pull/x and https://h/o/r/pull/42/files"), 42);
    EXPECT_EQ(Activity::pullRequestNumber("/pull/99999999999999999999 /pull/1"), std::nullopt);
    EXPECT_EQ(Activity::pullRequestNumber("/pulls/1"), std::nullopt);
}

TEST(ConversationActivityRulesTests, summaries) {
    const auto told = [](std::string_view key, std::int64_t count) {
        return L10n::text(key, {.arguments = {std::to_string(count)}, .count = count});
    };
    EXPECT_EQ(Activity{.commands = 1}.summary(), told("명령 {0}개 실행", 1));
    EXPECT_EQ((Activity{.commands = 1, .commits = 1}.summary()), told("커밋 {0}", 1));
    EXPECT_EQ((Activity{.editedFiles = {"a"}, .commands = 2}.summary()), told("파일 {0}개 수정", 1));
    EXPECT_EQ((Activity{.editedFiles = {"a"}, .commands = 3}.summary()),
              told("파일 {0}개 수정", 1) + " · " + told("명령 {0}개 실행", 3));
    EXPECT_EQ(Activity::tool().summary(), told("도구 {0}회", 1));
    EXPECT_EQ((Activity{.commands = 1, .createdPullRequests = {3, 4}, .createdPullRequestCount = 1, .agentMessages = 2}
                   .summary()),
              L10n::text("PR #{0} 생성", {.arguments = {"3"}}) + " · " +
                  L10n::text("PR #{0} 생성", {.arguments = {"4"}}) + " · " + told("에이전트끼리 메시지 {0}개", 2));
    EXPECT_EQ(Activity().summary(), "");
}

}  // namespace
}  // namespace vellark
