#include "Support/RandomInput.hpp"
#include <VellarkDomain/Capture/CaptureSignal.hpp>
#include <VellarkDomain/Capture/HookNormalizer.hpp>

#include <gtest/gtest.h>

// Dropping members while a payload is read must never change the signal that comes of it.

namespace vellark {
namespace {

std::vector<std::string> quotedKeys(std::initializer_list<std::span<const JSONSelection>> selections) {
    std::vector<std::string> keys = {R"("content")", R"("edits")", R"("")", R"("c\u0077d")", R"("assistant_response")"};
    for (const auto selection : selections) {
        for (const JSONSelection& item : selection) {
            keys.push_back('"' + std::string(item.key) + '"');
            for (const JSONSelection& inner : item.members) {
                keys.push_back('"' + std::string(inner.key) + '"');
            }
        }
    }
    return keys;
}

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

TEST(PayloadSelection, ofHooksChangesNoSignal) {
    testing::RandomNumbers random(31);
    testing::RandomJSON json(32, quotedKeys({HookNormalizer::payloadSelection(), CaptureSignal::payloadSelection()}),
                             scalars);
    std::vector<std::string> heads;
    for (const auto& row : HookNormalizer::events()) {
        for (const std::string_view event : row.events) {
            heads.push_back(R"({"cwd": "/w", "hook_event_name": ")" + std::string(event) + R"(", "hookEventName": ")" +
                            std::string(event) + R"(", "tool_result": {"resultType": "success"}, "file_path": "/w/a")");
        }
    }
    const auto signal = [](std::string_view source, const JSONValue& payload) {
        const auto common = HookNormalizer::normalize(source, *payload.object());
        return common ? CaptureSignal::encode(source, *common, {.includesResponses = true}) : std::nullopt;
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
    testing::RandomJSON json(34, quotedKeys({CaptureSignal::payloadSelection()}), scalars);
    const std::vector<std::string> heads = {R"({"cwd": "/w")", R"({"tool_input": {"path": "a", "content": "c"})"};
    const auto signal = [](std::string_view text, std::span<const JSONSelection> keep) {
        const auto value = JSONReader::read(text, {.keep = keep});
        if (!value) return std::optional<std::string>();
        // What the source's identity takes from the payload must be there too.
        JSONObject object = *value->object();
        for (const char* key : {"sourceProfileID", "sourceProfileLabel", "sourceKind", "agentHome"}) {
            if (const JSONValue* member = object.find(key)) object.set("model", JSONArray{*member, key});
        }
        return CaptureSignal::encode("claude", object, {.includesResponses = true});
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
