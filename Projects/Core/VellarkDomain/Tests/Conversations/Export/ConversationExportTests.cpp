#include <VellarkDomain/Conversations/Export/ConversationExport.hpp>
#include <VellarkLocalization/L10n.hpp>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {
namespace {

using Entry = ConversationEntry;

std::string exported(const AgentConversation& conversation, const std::vector<Entry>& entries, bool omitted = false) {
    return ConversationExport::markdown({.conversation = conversation,
                                         .instruction = "Do it\npassword=hunter2",
                                         .entries = entries,
                                         .agentName = "Claude*",
                                         .exportedAt = Date{1767323045},
                                         .omittedEarlier = omitted,
                                         .timeZone = "Asia/Seoul"});
}

TEST(ConversationExportTests, everythingInItsForm) {
    const AgentConversation conversation{
        .title = "# Fix\n[it]", .afterCompaction = true, .cwd = "/a_b", .subagents = {{.name = "<A>"}, {.name = "B"}}};
    const double day = 1767323045;  // 2026-01-02 12:04 in Seoul
    const std::vector<Entry> entries = {
        {.id = "1", .author = ConversationAuthor::user(), .time = Date{day}, .text = "token=abcdef"},
        {.id = "2", .kind = Entry::Delegation{"A"}, .author = ConversationAuthor::main(), .text = "a\nb"},
        {.id = "3", .kind = ConversationActivity(), .time = Date{day + 86'400}},
        {.id = "4",
         .kind = Entry::Report(),
         .author = ConversationAuthor::subagent("A_"),
         .time = Date{day + 86'400},
         .text = std::string("x\0y", 3)},
        {.id = "5", .kind = Entry::AgentMessage{"B"}, .author = ConversationAuthor::subagent("A"), .text = "m"},
        {.id = "6", .kind = ConversationActivity{.pushes = 1}},
        {.id = "7", .kind = Entry::Compaction(), .time = Date{day + 86'460}},
    };
    const auto word = [](std::string_view key) { return L10n::text(key); };
    EXPECT_EQ(exported(conversation, entries, true),
              "# Fix \\[it\\]\n\n" + word("에이전트 대화 내보내기") + " · Claude\\* · 2026-01-02 12:04\n" +
                  word("서브에이전트") + ": \\<A\\>, B\n/a\\_b\n" + word("기록이 길어 앞부분은 생략했어요") +
                  "\n\n## " + word("최초 지시") + " (" + word("요약 이후") + ")\n\nDo it\npassword=••••\n\n\n## " +
                  word("대화") + "\n\n### 2026-01-02\n\n**" + word("나") +
                  "** · 12:04\n\ntoken=••••\n\n**Claude\\* → A · " + word("일 맡김") +
                  "**\n\n> a\n> b\n\n### 2026-01-03\n\n**A\\_ · " + word("보고") +
                  "** · 12:04\n\nxy\n\n**A → B**\n\nm\n\n*" + word("푸시") + "*\n\n*" + word("이전 대화를 요약했어요") +
                  "* · 12:05\n");
}

TEST(ConversationExportTests, aLongConversationEndsWithANote) {
    std::vector<Entry> entries(40);
    for (Entry& entry : entries) {
        entry.id = "1";
        entry.text = std::string(100'000, 'a');
    }
    const std::string text = exported({.title = "t"}, entries);
    const std::string note = "\n*" + L10n::text("이후 대화는 길어서 생략했어요.") + "*\n";
    EXPECT_TRUE(text.ends_with(note));
    EXPECT_LE(text.size() - note.size(), ConversationExport::maximumBytes);
    EXPECT_GT(text.size(), ConversationExport::maximumBytes - 101'000);
}

TEST(ConversationExportTests, timesThatNoClockShows) {
    const std::vector<Entry> entries = {
        {.id = "1", .time = Date{std::numeric_limits<double>::infinity()}, .text = "a"}};
    EXPECT_NE(exported({}, entries).find("a\n"), std::string::npos);
}

}  // namespace
}  // namespace vellark
