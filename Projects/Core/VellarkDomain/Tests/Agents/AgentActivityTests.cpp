#include "Support/WrongTypes.hpp"
#include <VellarkDomain/Agents/AgentActivitySummary.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>
#include <VellarkLocalization/L10n.hpp>

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace vellark {
namespace {

constexpr std::string_view bundle = "com.apple.Terminal";

struct LocationRow {
    const char* name;
    AgentTerminalLocation location;
    bool isValid;
    bool isPrecise = false;
};

TEST(AgentTerminalLocationTests, onlyStrictFormsAreValid) {
    const auto at = [](AgentTerminalLocation location) {
        if (location.appBundleIdentifier.empty()) location.appBundleIdentifier = bundle;
        return location;
    };
    const AgentTerminalLocation whole{
        .tty = "/dev/ttys12345678", .processID = 1, .processStartIdentity = "123456789012.000001"};
    AgentTerminalLocation otherWhole = whole;
    otherWhole.appBundleIdentifier = "org.alacritty";
    const LocationRow rows[] = {
        {"application alone", at({}), true},
        {"whole", at(whole), true, true},
        {"whole, in one that has no tabs to drive", otherWhole, true},
        {"another case", at({.appBundleIdentifier = "com.apple.terminal"}), false},
        {"Linux device", at({.tty = "/dev/pts/3"}), false},
        {"device without number", at({.tty = "/dev/ttys"}), false},
        {"nine digits", at({.tty = "/dev/ttys123456789"}), false},
        {"line feed behind the device", at({.tty = "/dev/ttys1\n"}), false},
        {"process 0", at({.processID = 0}), false},
        {"five decimals", at({.processStartIdentity = "1.12345"}), false},
        {"no seconds", at({.processStartIdentity = ".123456"}), false},
        {"no point", at({.processStartIdentity = "1"}), false},
        {"thirteen digits", at({.processStartIdentity = "1234567890123.123456"}), false},
        {"any start text", at({.processStart = "yesterday"}), true},
        {"session", at({.terminalSessionID = "0F8FAD5B-d9cb-469f-a165-70867728950e"}), true},
        {"session in braces", at({.terminalSessionID = "{0f8fad5b-d9cb-469f-a165-70867728950e}"}), false},
    };
    for (const LocationRow& row : rows) {
        EXPECT_EQ(row.location.isValid(), row.isValid) << row.name;
        EXPECT_EQ(row.location.supportsPreciseSelection(), row.isPrecise) << row.name;
    }
    EXPECT_TRUE(isPrecise(TerminalFocusResult::focusedPane) && !isPrecise(TerminalFocusResult::applicationActivated));
}

constexpr std::string_view sessionText =
    R"({"id":"s","source":"claude","projectRoot":"/a/b//","cwd":"/a","state":"idle","isSubagent":false,"observedAt":"now")";

TEST(AgentActivitySummaryTests, olderWritersAreRead) {
    const auto empty = readRecord<AgentActivitySummary>("{}");
    ASSERT_TRUE(empty);
    EXPECT_EQ(*empty, AgentActivitySummary());
    EXPECT_FALSE(empty->isAvailable());
    EXPECT_TRUE(readRecord<AgentActivitySummary>(R"({"updatedAt":""})")->isAvailable());
    EXPECT_EQ(readRecord<AgentActivitySummary>(R"({"runningSessionCount":3})")->openSessionCount, 3);
    EXPECT_EQ(readRecord<AgentActivitySummary>(R"({"openSessionCount":1,"runningSessionCount":3})")->openSessionCount,
              1);
    const auto sessions =
        readRecord<AgentActivitySummary>(R"({"available":false,"sessions":[)" + std::string(sessionText) + "}]}");
    ASSERT_TRUE(sessions);
    EXPECT_FALSE(sessions->isAvailable());
    const AgentSessionObservation& session = sessions->sessions[0];
    EXPECT_FALSE(session.probeComplete || session.connectionUnverified());
    EXPECT_EQ(session.projectName(), "b");
    EXPECT_EQ(session.stateLabel(), L10n::text("대기 중"));
}

TEST(AgentActivitySummaryTests, errorsTellTheirPlace) {
    const std::pair<std::string, std::string_view> rows[] = {
        {R"({"runningSessionCount":"1"})", "runningSessionCount"},
        {R"({"sessions":[null]})", "sessions[0]"},
        {R"({"sessions":[)" + std::string(sessionText) + R"(,"probeComplete":1}]})", "sessions[0].probeComplete"},
        {R"({"sessions":[)" + std::string(sessionText) + R"(,"processID":2147483648}]})", "sessions[0].processID"},
        {R"({"sessions":[)" + std::string(sessionText) + R"(,"terminalLocation":{}}]})",
         "sessions[0].terminalLocation.appBundleIdentifier"},
        {R"({"lastObservedAtBySource":{"a":null}})", "lastObservedAtBySource.a"},
        {R"({"profiles":[{}]})", "profiles[0].source"},
        {R"({"countsComplete":0})", "countsComplete"},
    };
    for (const auto& [text, path] : rows) {
        const auto read = readRecord<AgentActivitySummary>(text);
        ASSERT_FALSE(read) << text;
        EXPECT_EQ(read.error().path, path);
    }
}

constexpr std::string_view wholeText =
    R"({"runningSessionCount":1,"openSessionCount":2,"idleSessionCount":3,"unknownSessionCount":4,)"
    R"("endedSessionCount":5,"childSessionCount":6,"sessions":[{"id":"s","source":"codex","projectRoot":"/p","cwd":"/c",)"
    R"("state":"running","isSubagent":true,"model":"m","parentID":"p","observedAt":"t","liveness":"unknown",)"
    R"("terminalLocation":{"appBundleIdentifier":"com.apple.Terminal","tty":"/dev/ttys1","processID":7,)"
    R"("processStart":"t","processStartIdentity":"1.000000","terminalSessionID":"u"},"sourceProfileID":"i",)"
    R"("sourceProfileLabel":"l","sourceKind":"cli","profileIdentityOrigin":"o","profileIdentityVerified":true,)"
    R"("evidence":"e","endEvidence":"e","livenessObservedAt":"t","probeComplete":true,"failureKind":"f",)"
    R"("processID":-2147483648,"processStart":"t"}],"observedSources":["codex"],"updatedAt":"t",)"
    R"("lastObservedAtBySource":{"codex":"t"},"unverifiedSessionCount":7,"available":true,"detectedProcessCount":8,)"
    R"("profiles":[{"source":"codex","sourceProfileID":"i"}],"countsComplete":false})";

TEST(AgentActivitySummaryTests, whatIsReadIsWrittenAlike) {
    const auto summary = readRecord<AgentActivitySummary>(wholeText);
    ASSERT_TRUE(summary) << summary.error().path;
    EXPECT_TRUE(summary->sessions[0].connectionUnverified());
    EXPECT_EQ(writeRecord(*summary), std::string(wholeText));
}

TEST(AgentActivitySummaryTests, wrongTypesFailUnderEveryKey) {
    testing::expectWrongTypesToFail<AgentActivitySummary>(wholeText);
}

TEST(AgentActivitySummaryTests, openSessionsAreTheRunningOnesUnlessTold) {
    EXPECT_EQ((AgentActivitySummary{.runningSessionCount = 3}).openSessionCount, 3);
    EXPECT_EQ((AgentActivitySummary{.runningSessionCount = 3, .openSessionCount = 0}).openSessionCount, 0);
}

TEST(AgentActivitySummaryTests, keysAreWrittenInOrder) {
    const AgentActivitySummary summary{.runningSessionCount = 1,
                                       .openSessionCount = 2,
                                       .updatedAt = "t",
                                       .lastObservedAtBySource = {{{"b", "2"}, {"a", "1"}}},
                                       .available = true};
    EXPECT_EQ(
        writeRecord(summary),
        std::string(R"({"runningSessionCount":1,"openSessionCount":2,"idleSessionCount":0,"unknownSessionCount":0,)"
                    R"("endedSessionCount":0,"childSessionCount":0,"sessions":[],"observedSources":[],"updatedAt":"t",)"
                    R"("lastObservedAtBySource":{"a":"1","b":"2"},"unverifiedSessionCount":0,"available":true,)"
                    R"("detectedProcessCount":0,"profiles":[]})"));
}

}  // namespace
}  // namespace vellark
