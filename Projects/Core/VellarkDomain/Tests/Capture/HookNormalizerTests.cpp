#include <VellarkDomain/Capture/HookNormalizer.hpp>
#include <VellarkFoundation/JSON/PythonJSONWriter.hpp>

#include <gtest/gtest.h>

#include <algorithm>

namespace vellark {
namespace {

/// A hook payload, and members that its common form must have; "nothing" when the payload is dropped.
struct Row {
    const char* name;
    const char* source;
    const char* payload;
    const char* expected;
};

void check(std::span<const Row> rows) {
    for (const Row& row : rows) {
        const auto payload = JSONReader::read(row.payload);
        ASSERT_TRUE(payload && payload->object() != nullptr) << row.name;
        const auto common = HookNormalizer::normalize(row.source, *payload->object());
        if (std::string_view(row.expected) == "nothing") {
            EXPECT_FALSE(common.has_value()) << row.source << ": " << row.name;
            continue;
        }
        ASSERT_TRUE(common.has_value()) << row.source << ": " << row.name;
        const auto expected = JSONReader::read(row.expected);
        ASSERT_TRUE(expected.has_value()) << row.name;
        const std::string whole = *PythonJSONWriter::write(*common);
        for (const JSONMember& member : expected->object()->members()) {
            const JSONValue* value = common->find(member.key);
            EXPECT_TRUE(value != nullptr && *value == member.value)
                << row.source << ": " << row.name << ": " << member.key << " in " << whole;
        }
    }
}

TEST(HookNormalizer, wholeResultsOfEachShape) {
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"cursor", R"({"hook_event_name": "afterFileEdit", "file_path": "/p/a.md", "generation_id": "g", "edits": []})",
         R"({"session_id": null, "tool_name": "edit", "tool_input": {"file_path": "/p/a.md"}, "tool_response": {}, )"
         R"("last_assistant_message": null, "hook_event_name": "PostToolUse", "turn_id": "g", "cwd": "/p"})"},
        {"kimi", R"({"hook_event_name": "Stop", "cwd": "/w", "sessionId": "s", "model": "m", "timestamp": "t",
                     "last_assistant_message": "done", "agent_id": "a", "parent_session_id": "p",
                     "transcript_path": "/t", "sourceKind": "cli", "agentHome": 5, "_vellarkProducer": {"v": 1},
                     "prompt": "secret", "tool_use_id": "u", "isSidechain": true})",
         R"({"session_id": "s", "tool_name": "", "tool_input": {}, "tool_response": {}, )"
         R"("last_assistant_message": "done", "model": "m", "timestamp": "t", "hook_event_name": "Stop", )"
         R"("agent_id": "a", "parent_session_id": "p", "transcript_path": "/t", "cwd": "/w", "sourceKind": "cli", )"
         R"("_vellarkProducer": {"v": 1}})"},
    };
    for (const auto& [source, payload, expected] : rows) {
        const auto common = HookNormalizer::normalize(source, *JSONReader::read(payload)->object());
        ASSERT_TRUE(common.has_value()) << source;
        EXPECT_EQ(*PythonJSONWriter::write(*common), expected);
    }
}

TEST(HookNormalizer, acceptsTheEventsOfEachSource) {
    const auto accepts = [](std::string_view source, std::string_view event) {
        JSONObject payload;
        payload.set("cwd", "/w");
        payload.set("hook_event_name", event);
        payload.set("hookEventName", event);
        payload.set("file_path", "/w/a");
        payload.set("tool_info", R"({"file_path": "/w/a"})");
        payload.set("toolResult", R"({"resultType": "success"})");
        return HookNormalizer::normalize(source, payload).has_value();
    };
    std::vector<std::string_view> all = {"", "PreToolUse", "stop", "PostToolUse "};
    for (const auto& row : HookNormalizer::events()) {
        all.insert(all.end(), row.events.begin(), row.events.end());
    }
    EXPECT_EQ(HookNormalizer::events().size(), 13U);
    for (const auto& row : HookNormalizer::events()) {
        EXPECT_TRUE(HookNormalizer::isHooked(row.source));
        EXPECT_FALSE(HookNormalizer::normalize(row.source, {}).has_value()) << row.source << ", empty";
        for (const std::string_view event : all) {
            const bool more = row.source == "copilot" && (event.empty() || event == "PostToolUse");
            const bool expected = more || std::ranges::find(row.events, event) != row.events.end();
            EXPECT_EQ(accepts(row.source, event), expected) << row.source << " " << event;
        }
    }
    for (const char* source : {"claude", "codex", "", "Cursor"}) {
        EXPECT_FALSE(HookNormalizer::isHooked(source));
        EXPECT_FALSE(accepts(source, "PostToolUse"));
    }
}

TEST(HookNormalizer, whatIsPresentCounts) {
    const Row rows[] = {
        {"null event hides the other", "droid",
         R"({"cwd": "/w", "hook_event_name": null, "agent_action_name": "Stop"})", "nothing"},
        {"other event name", "droid", R"({"cwd": "/w", "agent_action_name": "Stop"})",
         R"({"hook_event_name": "Stop"})"},
        {"event of another type", "copilot",
         R"({"cwd": "/w", "hook_event_name": 5, "toolResult": {"resultType": "success"}})", "nothing"},
        {"useless session", "kimi", R"({"cwd": "/w", "hook_event_name": "Stop", "session_id": 5, "sessionId": "s"})",
         R"({"session_id": null})"},
        {"third session", "kimi",
         R"({"cwd": "/w", "hook_event_name": "Stop", "conversation_id": "c", "trajectory_id": "t"})",
         R"({"session_id": "c"})"},
        {"fourth session", "kimi", R"({"cwd": "/w", "hook_event_name": "Stop", "trajectory_id": "t"})",
         R"({"session_id": "t"})"},
        {"null result", "copilot", R"({"cwd": "/w", "toolResult": null, "tool_result": {"resultType": "success"}})",
         "nothing"},
        {"null status", "copilot", R"({"cwd": "/w", "toolResult": {"resultType": null, "result_type": "success"}})",
         "nothing"},
        {"null arguments", "copilot",
         R"({"cwd": "/w", "toolResult": {"result_type": "success"}, "toolArgs": null, "tool_input": {"path": "a"}})",
         R"({"tool_input": {}})"},
        {"null tool name", "copilot",
         R"({"cwd": "/w", "toolResult": {"resultType": "success"}, "toolName": null, "tool_name": "x"})", "nothing"},
        {"last of equal keys", "droid", R"({"cwd": "x", "hook_event_name": "Stop", "cwd": "/w"})", R"({"cwd": "/w"})"},
    };
    check(rows);
}

TEST(HookNormalizer, commonTail) {
    const Row rows[] = {
        {"relative folder", "qwen", R"({"cwd": "w", "hook_event_name": "Stop"})", "nothing"},
        {"no folder", "qwen", R"({"hook_event_name": "Stop"})", "nothing"},
        {"folder of another type", "qwen", R"({"cwd": ["/w"], "hook_event_name": "Stop"})", "nothing"},
        {"empty folder", "qwen", R"({"cwd": "", "hook_event_name": "Stop"})", "nothing"},
        {"folder as it stands", "qwen", R"({"cwd": "//w/../x/", "hook_event_name": "Stop"})",
         R"({"cwd": "//w/../x/"})"},
        {"tool name 5", "droid", R"({"cwd": "/w", "hook_event_name": "Stop", "tool_name": 5})", "nothing"},
        {"tool name null", "opencode", R"({"cwd": "/w", "hook_event_name": "tool.execute.after", "tool_name": null})",
         "nothing"},
        {"camel case", "opencode",
         R"({"cwd": "/w", "hook_event_name": "tool.execute.after", "tool_input": {"filePath": "a"}})",
         R"({"tool_input": {"filePath": "a", "file_path": "a"}})"},
        {"both cases", "qoder",
         R"({"cwd": "/w", "hook_event_name": "PostToolUse", "tool_input": {"filePath": "a", "file_path": null}})",
         R"({"tool_input": {"filePath": "a", "file_path": null}})"},
        {"camel case of another type", "qoder",
         R"({"cwd": "/w", "hook_event_name": "PostToolUse", "tool_input": {"filePath": 5}})",
         R"({"tool_input": {"filePath": 5}})"},
        {"answer of another type", "qoder",
         R"({"cwd": "/w", "hook_event_name": "Stop", "last_assistant_message": ["a"]})",
         R"({"last_assistant_message": null})"},
        {"wrapped input", "kimi-code",
         R"({"cwd": "/w", "hook_event_name": "PostToolUse", "tool_input": " {\"filePath\": \"a\"} "})",
         R"({"tool_input": {"filePath": "a", "file_path": "a"}})"},
        {"wrapped nonsense", "kimi-code",
         R"({"cwd": "/w", "hook_event_name": "PostToolUse", "tool_input": "{", "tool_response": "[1]"})",
         R"({"tool_input": {}, "tool_response": {}})"},
        {"wrapped twice", "kimi-code", R"({"cwd": "/w", "hook_event_name": "PostToolUse", "tool_input": "\"{}\""})",
         R"({"tool_input": {}})"},
    };
    check(rows);
}

TEST(HookNormalizer, branches) {
    const Row rows[] = {
        {"one root", "cursor",
         R"({"hook_event_name": "afterFileEdit", "file_path": "/p/a", "cwd": "/x", "workspace_roots": ["/w"]})",
         R"({"cwd": "/w"})"},
        {"two roots", "cursor",
         R"({"hook_event_name": "afterFileEdit", "file_path": "/p/a", "cwd": "/x", "workspace_roots": ["/a", "/b"]})",
         R"({"cwd": "/x"})"},
        {"relative root", "cursor",
         R"({"hook_event_name": "afterFileEdit", "file_path": "/p/a", "workspace_roots": ["w"]})", R"({"cwd": "/p"})"},
        {"relative folder", "cursor", R"({"hook_event_name": "afterFileEdit", "file_path": "/p/./q//a", "cwd": "x"})",
         R"({"cwd": "/p/q"})"},
        {"relative file", "cursor", R"({"hook_event_name": "afterFileEdit", "file_path": "a", "cwd": "/x"})",
         "nothing"},
        {"no file", "cursor", R"({"hook_event_name": "afterFileEdit", "cwd": "/x"})", "nothing"},
        {"answer", "cursor",
         R"({"hook_event_name": "afterAgentResponse", "text": "t", "cwd": "/x", "generation_id": 5})",
         R"({"hook_event_name": "Stop", "last_assistant_message": "t", "tool_name": ""})"},
        {"answer without text", "cursor", R"({"hook_event_name": "afterAgentResponse", "cwd": "/x"})",
         R"({"hook_event_name": "Stop", "last_assistant_message": null})"},
        {"answer without folder", "cursor", R"({"hook_event_name": "afterAgentResponse", "file_path": "/p/a"})",
         "nothing"},
        {"file", "windsurf",
         R"({"agent_action_name": "post_write_code", "tool_info": {"file_path": "/p/a"}, "execution_id": "e"})",
         R"({"cwd": "/p", "tool_name": "write", "turn_id": "e", "tool_input": {"file_path": "/p/a"}})"},
        {"file outside the facts", "windsurf",
         R"({"agent_action_name": "post_write_code", "file_path": "/p/a", "cwd": "/w"})", "nothing"},
        {"wrapped facts", "windsurf",
         R"({"agent_action_name": "post_cascade_response", "tool_info": "{\"response\": \"r\"}", "cwd": "/w"})",
         R"({"hook_event_name": "Stop", "last_assistant_message": "r"})"},
        {"wrapped result", "copilot",
         R"({"cwd": "/w", "toolResult": "{\"resultType\": \"success\"}", "toolArgs": "{\"filePath\": \"a\"}", "toolName": "edit"})",
         R"({"hook_event_name": "PostToolUse", "tool_name": "edit", "tool_input": {"filePath": "a", "file_path": "a"}})"},
        {"failure", "copilot", R"({"cwd": "/w", "toolResult": {"resultType": "failure"}})", "nothing"},
        {"no result", "copilot", R"({"cwd": "/w"})", "nothing"},
        {"only its own event", "grok-build", R"({"cwd": "/w", "hook_event_name": "PostToolUse"})", "nothing"},
        {"its own event", "grok-build",
         R"({"cwd": "/w", "hook_event_name": null, "hookEventName": "PostToolUse", "toolName": "t", "toolInput": {"path": "a"}})",
         R"({"hook_event_name": "PostToolUse", "tool_name": "t", "tool_input": {"path": "a"}})"},
        {"its root", "grok-build", R"({"cwd": "w", "workspaceRoot": "/r", "hookEventName": "SessionStart"})",
         R"({"cwd": "/r"})"},
        {"root not needed", "grok-build", R"({"cwd": "/w", "workspaceRoot": "/r", "hookEventName": "SessionStart"})",
         R"({"cwd": "/w"})"},
        {"useless root", "grok-build", R"({"workspaceRoot": 5, "hookEventName": "SessionStart"})", "nothing"},
    };
    check(rows);
}

}  // namespace
}  // namespace vellark
