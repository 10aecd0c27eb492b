#include "HelperFixture.hpp"

namespace vellark::testing {
namespace {

class HelperSignal : public HelperFixture {};

TEST_F(HelperSignal, ofAWrittenFile) {
    run({"--source", "amp", "--file", "notes/./a.md", "--session=s-1", "--model", "m", "--cwd", "sub"});
    const JSONObject found = payload();
    EXPECT_EQ(*stringIn(*objectIn(found, "tool_input"), "file_path"), root() + "/notes/a.md");
    EXPECT_EQ(*stringIn(found, "cwd"), root() + "/sub");
    EXPECT_EQ(*stringIn(found, "hook_event_name"), "PostToolUse");
    EXPECT_EQ(*stringIn(found, "tool_name"), "Write");
    EXPECT_EQ(*stringIn(found, "session_id"), "s-1");
    EXPECT_EQ(*stringIn(found, "model"), "m");
    EXPECT_TRUE(*found.find("_vellarkLocalIngress")->boolean());
    EXPECT_EQ(*stringIn(*objectIn(found, "_vellarkProfile"), "sourceKind"), "manual");
    EXPECT_EQ(stringIn(found, "timestamp")->size(), std::string("2026-01-01T00:00:00.123Z").size());
}

TEST_F(HelperSignal, ofAFileWithoutFolder) {
    run({"--source", "claude", "--file", "a.md"});
    EXPECT_EQ(*stringIn(payload(), "cwd"), root());
}

TEST_F(HelperSignal, ofAHookInTheFolderOfTheHelper) {
    run({"--source", "windsurf", "--hook", "--cwd", "/ignored"},
        R"({"agent_action_name": "post_write_code", "tool_info": {"file_path": "/p/a.md"}, "timestamp": 5})");
    const JSONObject found = payload();
    EXPECT_EQ(*stringIn(found, "cwd"), root());
    EXPECT_FALSE(*found.find("_vellarkLocalIngress")->boolean());
    EXPECT_TRUE(stringIn(found, "timestamp")->ends_with("Z")) << "a timestamp that is no text is replaced";
}

TEST_F(HelperSignal, hasTheByteFormOfPython) {
    run({"--source", "claude"},
        R"({"timestamp": "é𝄞\u007f/", "session_id": 1.0, "turn_id": [1E2, 12345678901234567890, -0, true, null]})");
    EXPECT_TRUE(signal().starts_with(R"({"version": 1, "source": "claude", "payload": {"timestamp": )"
                                     R"("\u00e9\ud834\udd1e\u007f/", "session_id": 1.0, )"
                                     R"("turn_id": [100.0, 12345678901234567890, 0, true, null], )"))
        << signal();
    EXPECT_FALSE(signal().ends_with("\n"));
}

TEST_F(HelperSignal, hasAnswersOnlyWhenTheUserWantsThem) {
    const std::string input = R"({"last_assistant_message": "a", "assistant_response": 5})";
    const std::pair<const char*, bool> rows[] = {
        {R"({"includeAssistantResponses": true})", true},
        {R"({"includeAssistantResponses": 1})", false},
        {R"({"includeAssistantResponses": "yes"})", false},
        {R"({})", false},
    };
    for (const auto& [policy, expected] : rows) {
        writeFile(data() + "/capture-policy.json", policy);
        run({"--source", "claude"}, input);
        EXPECT_EQ(payload().contains("last_assistant_message"), expected) << policy;
        EXPECT_FALSE(payload().contains("assistant_response")) << "no text";
        std::filesystem::remove_all(spool());
    }
}

TEST_F(HelperSignal, isNamedByTimeAndKeptPrivate) {
    run({"--source", "claude"}, plainPayload);
    const std::string name = spoolNames().front();
    EXPECT_EQ(name.find('.'), 10U);
    EXPECT_EQ(name.find('-'), 17U);
    EXPECT_EQ(name.size(), 17 + 1 + 36 + 5U);
    const auto mode = [](const std::string& path) { return std::filesystem::status(path).permissions(); };
    EXPECT_EQ(mode(spool()), std::filesystem::perms::owner_all);
    EXPECT_EQ(mode(spool() + "/" + name), std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST_F(HelperSignal, goesWhereTheEnvironmentOrTheHomeSays) {
    const std::string usual = home() + "/Library/Application Support/Vellark";
    std::filesystem::create_directories(usual);
    std::filesystem::create_directories(root() + "/named");
    auto byHome = options({"--source", "claude"}, plainPayload);
    byHome.arguments.erase(byHome.arguments.begin() + 1, byHome.arguments.begin() + 3);
    check(byHome);
    EXPECT_TRUE(std::filesystem::exists(usual + "/signals"));
    auto byVariable = byHome;
    byVariable.environment["VELLARK_DATA_DIR"] = "~/../named";
    check(byVariable);
    EXPECT_TRUE(std::filesystem::exists(root() + "/named/signals"));
}

}  // namespace
}  // namespace vellark::testing
