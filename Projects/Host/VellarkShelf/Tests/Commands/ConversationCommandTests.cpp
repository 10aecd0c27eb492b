#include "Support/ShelfFixture.hpp"
#include <VellarkFoundation/Time/TimeText.hpp>

namespace vellark {
namespace {

class ConversationCommandTests : public testing::ShelfFixture {
protected:
    // The example record, of this day.
    void placeRecord() const {
        std::string text = testing::readFile(VELLARK_EXAMPLES "/Sessions/claude-session.jsonl");
        const std::string today = TimeText::millisecondsUTC(TimeText::now()).substr(0, 10);
        replaceAll(text, "@DAY@", today);
        replaceAll(text, "@PROJECT@", project());
        testing::writeFile(home() + "/.claude/projects/-project/3f0c5b1e-8a44-4f0e-9b1d-6c2a7d9e4f10.jsonl", text);
    }

    static void replaceAll(std::string& text, std::string_view from, std::string_view to) {
        for (std::size_t place = text.find(from); place != std::string::npos;
             place = text.find(from, place + to.size())) {
            text.replace(place, from.size(), to);
        }
    }
};

TEST_F(ConversationCommandTests, aRecordBecomesAConversation) {
    placeRecord();
    const JSONValue list = json({"conversations"});
    ASSERT_EQ(list.array()->size(), 1U);
    const JSONObject& conversation = *list.array()->front().object();
    EXPECT_TRUE(stringIn(conversation, "title")->starts_with("Write the launch plan"));
    EXPECT_EQ(*stringIn(conversation, "id"), "claude:3f0c5b1e-8a44-4f0e-9b1d-6c2a7d9e4f10");
    const JSONValue whole = json({"conversation", "3f0c"});
    EXPECT_FALSE(arrayIn(*whole.object(), "tasks")->empty());
    EXPECT_GT(arrayIn(*whole.object(), "entries")->size(), 3U);
    EXPECT_NE(stringIn(*whole.object(), "resume")->find("claude --resume 3f0c5b1e"), std::string::npos);
}

TEST_F(ConversationCommandTests, noSecretIsShown) {
    placeRecord();
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"conversations"},
                                                      {"conversations", "--json"},
                                                      {"conversation", "3f0c"},
                                                      {"conversation", "3f0c", "--json"},
                                                      {"conversation", "claude:3f0c", "--markdown"}}) {
        const auto run = vellark(arguments);
        EXPECT_EQ(run.status, 0) << run.errors;
        EXPECT_EQ(run.output.find("sk-ant-api03-Zm9v"), std::string::npos) << run.output;
        EXPECT_NE(run.output.find("launch plan"), std::string::npos) << run.output;
    }
    EXPECT_EQ(testing::readFile(data() + "/sessions.json").find("sk-ant-api03-Zm9v"), std::string::npos);
}

TEST_F(ConversationCommandTests, whatCannotBeShown) {
    EXPECT_EQ(vellark({"conversations"}).output, "");
    EXPECT_EQ(vellark({"conversation", "nothing"}).status, 1);
    placeRecord();
    testing::writeFile(data() + "/settings.json", R"({"capture": {"readsSessionRecords": false}})");
    EXPECT_EQ(vellark({"conversations"}).status, 1);
    testing::writeFile(data() + "/settings.json", R"({"capture": {"agentStores": {"claude": false}}})");
    EXPECT_EQ(vellark({"conversations"}).output, "");
    testing::writeFile(data() + "/settings.json", R"({"advanced": {"hiddenSessionRoots": [")" + home() + R"("]}})");
    EXPECT_EQ(vellark({"conversations"}).output, "");
}

}  // namespace
}  // namespace vellark
