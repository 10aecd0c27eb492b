#include <VellarkDomain/Agents/AgentSourceProfile.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>
#include <VellarkLocalization/L10n.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

TEST(AgentSourceProfile, keysTellPartsApart) {
    struct Row {
        const char* source;
        std::optional<std::string_view> profileID;
        const char* key;
    };
    const Row rows[] = {
        {"claude", std::nullopt, "6:claude:legacy"},
        {"claude", "abc", "6:claude:profile:3:abc"},
        {"claude", "", "6:claude:profile:0:"},
        {"", std::nullopt, "0::legacy"},
        {"한", "é", "3:한:profile:2:é"},
        {"a:1", "b:2", "3:a:1:profile:3:b:2"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(AgentSourceProfile::key(row.source, row.profileID), row.key);
    }
    EXPECT_EQ((AgentSourceProfile{.source = "claude", .sourceProfileID = "abc"}.id()), "6:claude:profile:3:abc");
}

TEST(AgentSourceProfile, namesProviders) {
    const std::pair<const char*, const char*> literal[] = {
        {"claude", "Claude"},
        {"deepseek", "CodeWhale"},
        {"dsh", "DeepSeek Harness"},
        {"kimi", "Kimi CLI"},
        {"mistral-vibe", "Mistral Vibe"},
        {"nobody", "nobody"},
        {"", ""},
        {"Claude", "Claude"},
        {"unknown", "unknown"},
    };
    for (const auto& [source, title] : literal) {
        EXPECT_EQ(AgentSourceProfile::providerTitle(source), title);
    }
    EXPECT_EQ(AgentSourceProfile::providerTitle("services"), L10n::text("서비스 메뉴"));
    EXPECT_EQ(AgentSourceProfile::providerTitle("claude-desktop-chat"), L10n::text("Claude 채팅"));
}

TEST(AgentSourceProfile, showsKindAndAccount) {
    struct Row {
        const char* name;
        AgentSourceProfile profile;
        std::string displayName;
    };
    const std::string unknownKind = L10n::text("출처 미확인");
    const std::string unknownAccount = L10n::text("계정 미확인");
    const Row rows[] = {
        {"verified",
         {.source = "codex", .sourceProfileLabel = " me ", .sourceKind = "cli", .profileIdentityVerified = true},
         "Codex · CLI ·  me "},
        {"not verified",
         {.source = "codex", .sourceProfileLabel = "me", .sourceKind = "cowork", .profileIdentityVerified = false},
         "Codex · Cowork · " + unknownAccount},
        {"nothing said",
         {.source = "codex", .sourceProfileLabel = "me"},
         "Codex · " + unknownKind + " · " + unknownAccount},
        {"blank label",
         {.source = "x", .sourceProfileLabel = " \n\u200b", .sourceKind = "desktop", .profileIdentityVerified = true},
         "x · " + L10n::text("데스크톱") + " · " + unknownAccount},
        {"unknown source",
         {.source = "unknown", .sourceKind = "unknown"},
         L10n::text("미확인") + " · " + unknownKind + " · " + unknownAccount},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(row.profile.displayName(), row.displayName) << row.name;
    }
}

TEST(AgentSourceProfile, roundTrip) {
    const std::string_view text =
        R"({"source":"a","sourceProfileID":"b","sourceProfileLabel":"c","sourceKind":"d","profileIdentityOrigin":"e",)"
        R"("profileIdentityVerified":false})";
    EXPECT_EQ(writeRecord(*readRecord<AgentSourceProfile>(text)), std::string(text));
    EXPECT_EQ(readRecord<AgentSourceProfile>(std::string_view(R"({"sourceKind":"cli"})")).error().path, "source");
}

}  // namespace
}  // namespace vellark
