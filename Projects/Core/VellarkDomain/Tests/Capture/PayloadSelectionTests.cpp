#include "Support/RandomInput.hpp"
#include <VellarkDomain/Capture/CaptureSignal.hpp>
#include <VellarkDomain/Capture/HookNormalizer.hpp>
#include <VellarkDomain/Capture/PythonText.hpp>

#include <gtest/gtest.h>

// Dropping members while a payload is read must never change the signal that comes of it.

namespace vellark {
namespace {

/// Every key that a hook, the signal or the source's identity reads, and some that nobody does. Not taken from the
/// selections: a key that is missing there must be found here.
const std::vector<std::string> keys = [] {
    std::vector<std::string> quoted = {R"("")"};
    for (const std::string_view key : PythonText::split(R"(
        hook_event_name agent_action_name hookEventName cwd workspace_roots workspaceRoot session_id sessionId
        conversation_id trajectory_id model timestamp tool_name toolName tool_input toolInput toolArgs args
        tool_response toolResult tool_result tool_info resultType result_type file_path filePath path absolute_path
        patch input command success error text response last_assistant_message assistant_response agent_id
        parent_session_id transcript_path generation_id execution_id tool_use_id turn_id response_id message_id
        isSidechain sourceProfileID sourceProfileLabel sourceKind agentHome _vellarkProducer _vellarkProfile
        _vellarkLocalIngress content edits c\u0077d)")) {
        quoted.push_back('"' + std::string(key) + '"');
    }
    return quoted;
}();

const std::vector<std::string> scalars = {
    "null",
    "true",
    "5",
    "\"\"",
    "\"x\"",
    "\"/w/a.md\"",
    "\"/w\"",
    "\"success\"",
    "\"PostToolUse\"",
    "\"Stop\"",
    "\"afterFileEdit\"",
    "\"afterAgentResponse\"",
    "\"post_write_code\"",
    "\"post_cascade_response\"",
    "\"tool.execute.after\"",
    R"("{\"file_path\": \"/w/b\", \"filePath\": \"c\", \"resultType\": \"success\"}")",
    R"("*** Begin Patch\n*** Add File: a\n+b")",
    "[\"/root\"]",
    "{\"resultType\": \"success\", \"x\": 1}",
};

/// Members that make most payloads mean something, before random ones that may repeat and so replace them.
std::string payload(testing::RandomNumbers& random, testing::RandomJSON& json, const std::vector<std::string>& heads) {
    std::string text = random.oneOf(heads);
    const std::string rest = json.object(3, 12);
    return rest == "{}" ? text + "}" : text + ", " + rest.substr(1);
}

/// The payload with what the source's identity is made of moved to where the signal shows it.
JSONObject withIdentity(JSONObject payload) {
    JSONArray identity;
    for (const char* key : {"sourceProfileID", "sourceProfileLabel", "sourceKind", "agentHome"}) {
        const JSONValue* value = payload.find(key);
        identity.push_back(value == nullptr ? JSONValue() : *value);
    }
    payload.set("_vellarkProfile", std::move(identity));
    return payload;
}

TEST(PayloadSelection, ofHooksChangesNoSignal) {
    testing::RandomNumbers random(31);
    testing::RandomJSON json(32, keys, scalars);
    std::vector<std::string> heads;
    for (const auto& row : HookNormalizer::events()) {
        for (const std::string_view event : row.events) {
            heads.push_back(R"({"cwd": "/w", "hook_event_name": ")" + std::string(event) + R"(", "hookEventName": ")" +
                            std::string(event) + R"(", "tool_result": {"resultType": "success"}, "file_path": "/w/a")");
        }
    }
    const auto signal = [](std::string_view source, const JSONValue& payload) {
        const auto common = HookNormalizer::normalize(source, *payload.object());
        return common ? CaptureSignal::encode(source, withIdentity(*common), {.includesResponses = true})
                      : std::nullopt;
    };
    std::size_t signalCount = 0;
    for (int index = 0; index < 4'000; ++index) {
        const std::string text = payload(random, json, heads);
        const auto whole = JSONReader::read(text);
        const auto selected = JSONReader::read(text, {.keep = HookNormalizer::payloadSelection()});
        ASSERT_TRUE(whole && selected) << text;
        for (const auto& row : HookNormalizer::events()) {
            const auto expected = signal(row.source, *whole);
            ASSERT_EQ(signal(row.source, *selected), expected) << row.source << ": " << text;
            if (expected) ++signalCount;
        }
    }
    EXPECT_GT(signalCount, 4'000U) << "payloads that are all dropped test nothing";
}

TEST(PayloadSelection, ofPlainPayloadsChangesNoSignal) {
    testing::RandomNumbers random(33);
    testing::RandomJSON json(34, keys, scalars);
    const std::vector<std::string> heads = {R"({"cwd": "/w")", R"({"tool_input": {"path": "a", "content": "c"})"};
    const auto signal = [](std::string_view text, std::span<const JSONSelection> keep) {
        const auto value = JSONReader::read(text, {.keep = keep});
        if (!value) return std::optional<std::string>();
        return CaptureSignal::encode("claude", withIdentity(*value->object()), {.includesResponses = true});
    };
    for (int index = 0; index < 10'000; ++index) {
        const std::string text = payload(random, json, heads);
        const auto whole = signal(text, {});
        ASSERT_TRUE(whole.has_value()) << text;
        ASSERT_EQ(signal(text, CaptureSignal::payloadSelection()), whole) << text;
    }
}

}  // namespace
}  // namespace vellark
