#include <VellarkDomain/Capture/CaptureSignal.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

JSONObject parsed(std::string_view text) {
    auto value = JSONReader::read(text);
    if (!value || value->object() == nullptr) throw std::runtime_error("no JSON object: " + std::string(text));
    return std::move(*value).takeObject();
}

struct Row {
    const char* name;
    const char* payload;
    const char* expected;
};

void check(std::span<const Row> rows, bool includesResponses = false) {
    constexpr std::string_view head = R"({"version": 1, "source": "claude", "payload": )";
    for (const Row& row : rows) {
        const auto text =
            CaptureSignal::encode("claude", parsed(row.payload), {.includesResponses = includesResponses});
        EXPECT_EQ(text, std::string(head) + row.expected + "}") << row.name;
    }
}

TEST(CaptureSignal, letsOnlyItsFieldsPass) {
    const Row rows[] = {
        {"nothing", "{}", "{}"},
        {"values of any type",
         R"({"cwd": 5, "session_id": null, "isSidechain": true, "model": {"b": [1.0], "a": {}}, "timestamp": [1, "x"]})",
         R"({"cwd": 5, "session_id": null, "isSidechain": true, "model": {"b": [1.0], "a": {}}, "timestamp": [1, "x"]})"},
        {"identity is consumed elsewhere",
         R"({"sourceProfileID": "a", "sourceProfileLabel": "b", "sourceKind": "cli", "agentHome": "/h",
             "_vellarkProducer": {}, "_vellarkProfile": {"x": 1}, "_vellarkLocalIngress": false})",
         R"({"_vellarkProfile": {"x": 1}, "_vellarkLocalIngress": false})"},
        {"what agents send besides", R"({"prompt": "p", "tool_output": "o", "CWD": "/", "cwd ": "/", "turn_id": 1})",
         R"({"turn_id": 1})"},
        {"response by its own list", R"({"tool_response": {"success": true, "output": "o", "error": {"a": 1}}})",
         R"({"tool_response": {"success": true, "error": {"a": 1}}})"},
        {"empty response", R"({"tool_response": {}})", R"({"tool_response": {}})"},
        {"response of another type", R"({"tool_response": [true]})", "{}"},
    };
    check(rows);
    for (const std::string_view key : CaptureSignal::fields) {
        JSONObject payload;
        payload.set(key, "v");
        const std::string member = "{\"" + std::string(key) + R"(": "v"})";
        EXPECT_NE(CaptureSignal::encode("kimi", payload, {})->find(member), std::string::npos) << key;
    }
}

TEST(CaptureSignal, filtersToolInput) {
    const Row rows[] = {
        {"paths that are texts",
         R"({"tool_input": {"file_path": "a", "path": 5, "absolute_path": "/b", "content": "c"}})",
         R"({"tool_input": {"file_path": "a", "absolute_path": "/b"}})"},
        {"no path", R"({"tool_input": {"file_path": 5}})", R"({"tool_input": {}})"},
        {"args under another name", R"({"args": {"path": "a"}})", R"({"tool_input": {"path": "a"}})"},
        {"args behind a useless input", R"({"tool_input": "x", "args": {"path": "a"}})",
         R"({"tool_input": {"path": "a"}})"},
        {"args behind a null", R"({"args": {}, "tool_input": null})", R"({"tool_input": {}})"},
        {"an empty input counts", R"({"tool_input": {}, "args": {"path": "a"}})", R"({"tool_input": {}})"},
        {"neither is an object", R"({"tool_input": [], "args": "x"})", "{}"},
        {"commands", R"({"tool_input": {"command": "rm -rf x", "input": "i", "patch": "p"}})", R"({"tool_input": {}})"},
        {"command list", R"({"tool_input": {"command": ["apply_patch", "*** Begin Patch"]}})", R"({"tool_input": {}})"},
    };
    check(rows);
}

TEST(CaptureSignal, reducesPatchEnvelopes) {
    const Row rows[] = {
        {"one file",
         R"({"tool_input": {"command": "*** Begin Patch\n*** Update File: a.md\n@@\n-x\n+y\n*** End Patch"}})",
         R"({"tool_input": {"command": "*** Begin Patch\n*** Update File: a.md\n*** End Patch"}})"},
        {"all headers, in their order; deletions go",
         R"({"tool_input": {"input": "*** Begin Patch\r\n*** Add File: a\n+*** Add File: b\n*** Delete File: c\n*** Move to: d\n*** End Patch\n"}})",
         R"({"tool_input": {"input": "*** Begin Patch\n*** Add File: a\n*** Move to: d\n*** End Patch"}})"},
        {"blanks before it: an envelope whose first line goes",
         R"({"tool_input": {"patch": "  *** Begin Patch\n*** Update File: a"}})",
         R"({"tool_input": {"patch": "*** Update File: a"}})"},
        {"any white space before it", R"({"tool_input": {"patch": "\u001c\u0085\u3000\u2028*** Begin Patch"}})",
         R"({"tool_input": {"patch": "*** Begin Patch"}})"},
        {"nothing left", R"({"tool_input": {"patch": " *** Begin Patch"}})", R"({"tool_input": {"patch": ""}})"},
        {"lines end as Python's",
         R"({"tool_input": {"patch": "*** Begin Patch\u2028*** Add File: a\u001e*** Move to: b\u001fc"}})",
         R"({"tool_input": {"patch": "*** Begin Patch\n*** Add File: a\n*** Move to: b\u001fc"}})"},
        {"case counts", R"({"tool_input": {"patch": "*** begin Patch"}})", R"({"tool_input": {}})"},
        {"a zero width space is no white space", R"({"tool_input": {"patch": "\u200b*** Begin Patch"}})",
         R"({"tool_input": {}})"},
        {"text before it", R"({"tool_input": {"command": "cat <<E\n*** Begin Patch"}})", R"({"tool_input": {}})"},
        {"the beginning is enough", R"({"tool_input": {"patch": "*** Begin Patchwork\n*** End Patches"}})",
         R"({"tool_input": {"patch": "*** Begin Patchwork\n*** End Patches"}})"},
        {"beside a path; patch, input, command in this order",
         R"({"tool_input": {"command": "*** Begin Patch", "path": "p", "patch": "*** Begin Patch"}})",
         R"({"tool_input": {"path": "p", "patch": "*** Begin Patch", "command": "*** Begin Patch"}})"},
    };
    check(rows);
}

TEST(CaptureSignal, letsAnswersPassWhenAsked) {
    const Row rows[] = {
        {"both", R"({"assistant_response": "b", "last_assistant_message": "a"})",
         R"({"last_assistant_message": "a", "assistant_response": "b"})"},
        {"no text", R"({"assistant_response": null, "last_assistant_message": {"a": 1}})", "{}"},
    };
    check(rows, true);
    const Row without[] = {{"not asked", R"({"assistant_response": "b", "last_assistant_message": "a"})", "{}"}};
    check(without, false);
}

TEST(CaptureSignal, knowsItsSources) {
    EXPECT_EQ(CaptureSignal::sources.size(), 31U);
    for (const auto& source : CaptureSignal::sources) {
        EXPECT_TRUE(CaptureSignal::encode(source.identifier, {}, {}).has_value());
        EXPECT_EQ(CaptureSignal::home(source.identifier), source.home);
    }
    for (const char* unknown : {"nobody", "", "Claude", "claude ", "kimi-"}) {
        EXPECT_EQ(CaptureSignal::encode(unknown, {}, {}), std::nullopt) << unknown;
    }
}

TEST(CaptureSignal, limitIsExact) {
    const std::size_t empty = CaptureSignal::encode("claude", parsed(R"({"cwd": ""})"), {})->size();
    const auto sized = [&](std::size_t bytes, const std::string& end) {
        JSONObject payload;
        payload.set("cwd", std::string(bytes - empty - (end.empty() ? 0 : 6), 'x') + end);
        return CaptureSignal::encode("claude", payload, {});
    };
    for (const std::string end : {"", "é"}) {
        EXPECT_EQ(sized(65'536, end)->size(), 65'536U) << "bytes of the file count";
        EXPECT_EQ(sized(65'537, end), std::nullopt);
    }
}

TEST(CaptureSignal, sortsKeysByScalars) {
    const JSONObject payload =
        parsed(R"({"model": {"b": 1, "": 2, "\ud83d\ude00": 3, "\uffff": 4, "B": 5, "é": {"z": 1, "a": 2}}})");
    EXPECT_EQ(CaptureSignal::encode("claude", payload, {.sortKeys = true}),
              R"({"payload": {"model": {"": 2, "B": 5, "b": 1, "\u00e9": {"a": 2, "z": 1}, "\uffff": 4, )"
              R"("\ud83d\ude00": 3}}, "source": "claude", "version": 1})");
}

}  // namespace
}  // namespace vellark
