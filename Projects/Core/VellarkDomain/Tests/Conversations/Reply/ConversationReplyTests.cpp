#include "Support/RandomInput.hpp"
#include "Support/Subprocess.hpp"
#include <VellarkDomain/Conversations/Reply/ConversationReplyCommand.hpp>

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace vellark {
namespace {

using Command = ConversationReplyCommand;

constexpr std::string_view uuid = "0F8FAD5B-d9cb-469f-a165-70867728950e";

TEST(ConversationReplyTests, everyAgentHasItsOwnIdentifiers) {
    const std::pair<std::string_view, std::string_view> valid[] = {{uuid, "claude"},
                                                                   {uuid, "codex"},
                                                                   {uuid, "gemini"},
                                                                   {"20260102_030405_abc123", "hermes"},
                                                                   {"20260102_030405_abc12345", "hermes"},
                                                                   {"cron_0123456789ab_20260102_030405", "hermes"}};
    for (const auto& [id, agent] : valid)
        EXPECT_TRUE(Command::isSessionID(id, agent)) << id;
    const std::pair<std::string_view, std::string_view> invalid[] = {
        {uuid, "hermes"},
        {uuid, "cursor"},
        {"20260102_030405_abc123", "claude"},
        {"20260102_030405_ABC123", "hermes"},
        {"20260102_030405_abc12", "hermes"},
        {"20260102_030405_abc123_", "hermes"},
        {"", "claude"},
        {"{0f8fad5b-d9cb-469f-a165-70867728950}", "claude"},
        {"cron_0123456789AB_20260102_030405", "hermes"}};
    for (const auto& [id, agent] : invalid)
        EXPECT_FALSE(Command::isSessionID(id, agent)) << id << agent;
}

TEST(ConversationReplyTests, commands) {
    Command::Request request{.agent = "codex", .sessionID = std::string(uuid), .message = " hi\n", .directory = "/a b"};
    request.configHome = "/c's";
    const auto command = Command::make(request);
    ASSERT_TRUE(command);
    EXPECT_EQ(command->input, " hi\n");
    EXPECT_EQ(command->display(),
              "cd '/a b' && CODEX_HOME='/c'\\''s' codex exec resume --json " + std::string(uuid) + " -");
    EXPECT_EQ(Command::terminalCommand("codex", uuid, request.directory, request.configHome),
              "cd '/a b' && CODEX_HOME='/c'\\''s' codex resume " + std::string(uuid));
    request.message = " \n\u3000";
    EXPECT_FALSE(Command::make(request));
    EXPECT_EQ(Command::argumentsFor("hermes", "s")->size(), 9U);
    EXPECT_FALSE(Command::argumentsFor("cursor", "s") || Command::terminalCommand("cursor", "s", {}, {}));
    EXPECT_EQ(Command::homeEnvironment("gemini", "/.gemini"), (Command::Environment{{"GEMINI_CLI_HOME", "/"}}));
    EXPECT_EQ(Command::homeEnvironment("gemini", "/h/u/.gemini/"), (Command::Environment{{"GEMINI_CLI_HOME", "/h/u"}}));
    EXPECT_EQ(Command::homeEnvironment("gemini", "/h/gemini"), std::nullopt);
    EXPECT_EQ(Command::homeEnvironment("cursor", "/h"), Command::Environment());
    EXPECT_EQ(Command::quoted(""), "''");
    EXPECT_EQ(Command::quoted("é"), "'é'");
}

// Every text comes back word for word through a real shell.
TEST(ConversationReplyTests, aShellReadsWhatWasQuoted) {
    const auto texts = testing::randomTexts(69, 300, 8, {"'", "\"", "\\", "$", "`", " ", "\n", "!", "*", "~",
                                                         "a", "한", "-",  ";", "&", "#", "\t", "=", "(", "\xFF"});
    std::string line = "printf '%s\\n'";
    std::string expected;
    for (const std::string& text : texts) {
        line += " " + Command::quoted(text);
        expected += text + "\n";
    }
    const auto result = testing::runProcess({.arguments = {"/bin/sh", "-c", line}});
    ASSERT_TRUE(result);
    EXPECT_EQ(result->output, expected);
}

}  // namespace
}  // namespace vellark
