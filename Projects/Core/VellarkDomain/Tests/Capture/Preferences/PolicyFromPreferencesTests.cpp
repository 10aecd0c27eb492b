#include <VellarkDomain/Capture/Preferences/CapturePreferences.hpp>
#include <VellarkDomain/Capture/Preferences/ResolvedCapturePolicy.hpp>
#include <VellarkDomain/Capture/Rules/CapturePolicyRules.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

using Category = ArtifactCategory;

TEST(PolicyFromPreferences, takesEveryChoiceOver) {
    CapturePreferences preferences;
    preferences.types = {{"plans", true}, {"code", false}, {"sounds", true}};
    preferences.extensions = {"md", "png"};
    preferences.includeExtensionless = true;
    preferences.includeUnlistedExtensions = true;
    preferences.includeAssistantResponses = true;
    preferences.captureTitleChanges = true;
    preferences.captureLocationChanges = true;
    preferences.resumeSince = "1970-01-01T00:00:01Z";
    preferences.typeResumeSince = {{"plans", "1970-01-01T00:00:02Z"}, {"sounds", "1970-01-01T00:00:02Z"}};
    preferences.extensionResumeSince = {{"md", "1970-01-01T00:00:03Z"}, {"png", "yesterday"}};
    preferences.extensionlessResumeSince = "1970-01-01T00:00:04Z";
    preferences.unlistedResumeSince = "1970-01-01T00:00:05Z";
    preferences.assistantResponsesResumeSince = "1970-01-01T00:00:06Z";
    preferences.outputs = {{"memory", true}};
    preferences.outputResumeSince = {{"memory", "1970-01-01T00:00:07Z"}, {"other", "1970-01-01T00:00:07"}};

    ResolvedCapturePolicy expected;
    expected.enabled = true;
    expected.types = {{Category::plans, true}, {Category::code, false}};
    expected.extensions = {"md", "png"};
    expected.includeExtensionless = true;
    expected.includeUnlistedExtensions = true;
    expected.includeAssistantResponses = true;
    expected.captureTitleChanges = true;
    expected.captureLocationChanges = true;
    expected.resumeSince = 1;
    expected.typeResumeSince = {{Category::plans, 2}};
    expected.extensionResumeSince = {{"md", 3}};
    expected.extensionlessResumeSince = 4;
    expected.unlistedResumeSince = 5;
    expected.assistantResponsesResumeSince = 6;
    expected.outputs = {{"memory", true}};
    expected.outputResumeSince = {{"memory", 7}};
    EXPECT_EQ(ResolvedCapturePolicy::fromPreferences(preferences), expected);

    preferences.resumeSince = "";
    preferences.enabled = false;
    expected.resumeSince = std::nullopt;
    expected.enabled = false;
    EXPECT_EQ(ResolvedCapturePolicy::fromPreferences(preferences), expected);
}

TEST(CapturePolicyRules, subagentArtifacts) {
    using CaptureRules::SubagentFacts;
    struct Choices {
        bool responses = false;
        bool artifacts = false;
        std::optional<std::string> since;
    };
    struct Row {
        const char* name;
        SubagentFacts facts;
        Choices choices;
        bool expected;
    };
    const std::string since = "1970-01-01T00:01:40Z";
    const Row rows[] = {
        {"of the agent itself", {.isSubagent = false, .isSubagentResponse = true, .response = true}, {}, true},
        {"unknown maker", {}, {}, true},
        {"unknown maker, response of an agent", {.response = true}, {}, true},
        {"unknown maker, file", {.isSubagentResponse = true}, {}, true},
        {"unknown maker, response", {.isSubagentResponse = true, .response = true}, {}, false},
        {"response", {.isSubagent = true, .response = true}, {.responses = true}, true},
        {"file where responses count", {.isSubagent = true}, {.responses = true}, false},
        {"file", {.isSubagent = true}, {.artifacts = true}, true},
        {"file at the moment", {.isSubagent = true, .observedAt = 100}, {.artifacts = true, .since = since}, true},
        {"file before", {.isSubagent = true, .observedAt = 99.9}, {.artifacts = true, .since = since}, false},
        {"file of no moment", {.isSubagent = true}, {.artifacts = true, .since = since}, false},
        {"no moment in the text", {.isSubagent = true, .observedAt = 100}, {.artifacts = true, .since = "x"}, false},
    };
    for (const Row& row : rows) {
        CapturePreferences preferences;
        preferences.includeSubagentResponses = row.choices.responses;
        preferences.includeSubagentArtifacts = row.choices.artifacts;
        preferences.subagentArtifactsResumeSince = row.choices.since;
        EXPECT_EQ(CaptureRules::subagentArtifactAllowed(row.facts, preferences), row.expected) << row.name;
    }
}

}  // namespace
}  // namespace vellark
