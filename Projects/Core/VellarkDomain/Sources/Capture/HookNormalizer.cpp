#include <VellarkDomain/Capture/HookNormalizer.hpp>
#include <VellarkDomain/Capture/PythonPath.hpp>

#include <algorithm>
#include <array>
#include <initializer_list>

// One function for each shape of payload, found by the table `branches`. A branch fills the draft or refuses it; what
// all have in common stands in `begin` and `finish`.

namespace vellark::HookNormalizer {

namespace {

/// The payload that is read, and what has been made of it so far.
struct Draft {
    const JSONObject& payload;
    std::span<const std::string_view> events;  // that the source may deliver
    const std::string* event = nullptr;        // null: there is none, which differs from the empty text
    JSONValue workingDirectory;
    JSONObject result;
};

/// The value of the first of the keys that is there.
const JSONValue* firstPresent(const JSONObject& object, std::initializer_list<std::string_view> keys) {
    for (const std::string_view key : keys) {
        if (const JSONValue* value = object.find(key)) return value;
    }
    return nullptr;
}

const std::string* text(const JSONValue* value) {
    return value == nullptr ? nullptr : value->string();
}

/// The value when it is an object; a text is read as JSON, as some agents wrap their objects so. Otherwise empty.
JSONObject object(const JSONValue* value) {
    if (value == nullptr) return {};
    if (const JSONObject* plain = value->object()) return *plain;
    if (const std::string* wrapped = value->string()) {
        const auto parsed = JSONReader::read(*wrapped, {.fragments = true});
        if (parsed && parsed->object() != nullptr) return *parsed->object();
    }
    return {};
}

bool absolute(const JSONValue* value) {
    const std::string* path = text(value);
    return path != nullptr && path->starts_with('/');
}

bool isOneOf(const std::string* event, std::span<const std::string_view> events) {
    return event != nullptr && std::ranges::find(events, *event) != events.end();
}

JSONValue valueOr(const JSONValue* value, JSONValue fallback) {
    if (value != nullptr) return *value;
    return fallback;
}

void copyTexts(const JSONObject& from, JSONObject& to, std::initializer_list<std::string_view> keys) {
    for (const std::string_view key : keys) {
        if (const std::string* value = stringIn(from, key)) to.set(key, *value);
    }
}

void copyTurn(Draft& draft, std::string_view key) {
    if (const std::string* turn = stringIn(draft.payload, key)) draft.result.set("turn_id", *turn);
}

/// A file was written by the agent's editor. The file must be an absolute path; its folder stands in for a working
/// directory that is missing.
bool reportWrittenFile(Draft& draft, const JSONValue* file, std::string_view tool) {
    if (!absolute(file)) return false;
    const std::string& path = *file->string();
    if (!absolute(&draft.workingDirectory)) draft.workingDirectory = PythonPath(path).parent().string();
    JSONObject input;
    input.set("file_path", path);
    draft.result.set("hook_event_name", "PostToolUse");
    draft.result.set("tool_name", tool);
    draft.result.set("tool_input", std::move(input));
    return true;
}

void reportAnswer(Draft& draft, const JSONValue* answer) {
    draft.result.set("hook_event_name", "Stop");
    draft.result.set("last_assistant_message", valueOr(answer, nullptr));
}

/// Agents whose payload is close to the common shape already.
bool nativeJSON(Draft& draft) {
    if (!isOneOf(draft.event, draft.events)) return false;
    draft.result.set("hook_event_name", *draft.event);
    draft.result.set("tool_name", valueOr(draft.payload.find("tool_name"), ""));
    draft.result.set("tool_input", object(draft.payload.find("tool_input")));
    draft.result.set("tool_response", object(draft.payload.find("tool_response")));
    draft.result.set("last_assistant_message", valueOr(draft.payload.find("last_assistant_message"), nullptr));
    copyTexts(draft.payload, draft.result, {"agent_id", "parent_session_id", "transcript_path"});
    return true;
}

/// Also without any event, which is how some versions of this agent call their one hook.
bool copilot(Draft& draft) {
    static constexpr auto accepted = std::to_array<std::string_view>({"", "postToolUse", "PostToolUse"});
    if (!isOneOf(draft.event, accepted)) return false;
    const JSONObject toolResult = object(firstPresent(draft.payload, {"toolResult", "tool_result"}));
    const std::string* status = text(firstPresent(toolResult, {"resultType", "result_type"}));
    if (status == nullptr || *status != "success") return false;
    draft.result.set("hook_event_name", "PostToolUse");
    draft.result.set("tool_name", valueOr(firstPresent(draft.payload, {"toolName", "tool_name"}), ""));
    draft.result.set("tool_input", object(firstPresent(draft.payload, {"toolArgs", "tool_input"})));
    return true;
}

bool cursor(Draft& draft) {
    const JSONArray* roots = arrayIn(draft.payload, "workspace_roots");
    if (roots != nullptr && roots->size() == 1 && absolute(&roots->front())) draft.workingDirectory = roots->front();
    if (draft.event == nullptr) return false;
    if (*draft.event == "afterFileEdit") {
        if (!reportWrittenFile(draft, draft.payload.find("file_path"), "edit")) return false;
    } else if (*draft.event == "afterAgentResponse") {
        reportAnswer(draft, draft.payload.find("text"));
    } else {
        return false;
    }
    copyTurn(draft, "generation_id");
    return true;
}

bool windsurf(Draft& draft) {
    if (draft.event == nullptr) return false;
    const JSONObject info = object(draft.payload.find("tool_info"));
    if (*draft.event == "post_write_code") {
        if (!reportWrittenFile(draft, info.find("file_path"), "write")) return false;
    } else if (*draft.event == "post_cascade_response") {
        reportAnswer(draft, info.find("response"));
    } else {
        return false;
    }
    copyTurn(draft, "execution_id");
    return true;
}

bool opencode(Draft& draft) {
    if (draft.event == nullptr || *draft.event != "tool.execute.after") return false;
    draft.result.set("hook_event_name", "PostToolUse");
    draft.result.set("tool_name", valueOr(draft.payload.find("tool_name"), ""));
    draft.result.set("tool_input", object(draft.payload.find("tool_input")));
    draft.result.set("tool_response", object(draft.payload.find("tool_response")));
    return true;
}

/// Names its keys in camel case, the event among them.
bool grokBuild(Draft& draft) {
    const std::string* event = stringIn(draft.payload, "hookEventName");
    if (!isOneOf(event, draft.events)) return false;
    if (!absolute(&draft.workingDirectory)) {
        draft.workingDirectory = valueOr(draft.payload.find("workspaceRoot"), nullptr);
    }
    draft.result.set("hook_event_name", *event);
    draft.result.set("tool_name", valueOr(draft.payload.find("toolName"), ""));
    draft.result.set("tool_input", object(draft.payload.find("toolInput")));
    return true;
}

constexpr auto copilotEvents = std::to_array<std::string_view>({"postToolUse"});
constexpr auto cursorEvents = std::to_array<std::string_view>({"afterFileEdit", "afterAgentResponse"});
constexpr auto windsurfEvents = std::to_array<std::string_view>({"post_write_code", "post_cascade_response"});
constexpr auto opencodeEvents = std::to_array<std::string_view>({"tool.execute.after"});
constexpr auto droidEvents = std::to_array<std::string_view>(
    {"SessionStart", "UserPromptSubmit", "PostToolUse", "Stop", "SessionEnd", "SubagentStop"});
constexpr auto nativeEvents = std::to_array<std::string_view>(
    {"SessionStart", "UserPromptSubmit", "PostToolUse", "Stop", "SessionEnd", "SubagentStart", "SubagentStop"});
constexpr auto grokBuildEvents = std::to_array<std::string_view>({"SessionStart", "PostToolUse"});

constexpr auto sourceEvents = std::to_array<SourceEvents>({
    {"copilot", copilotEvents},
    {"cursor", cursorEvents},
    {"windsurf", windsurfEvents},
    {"opencode", opencodeEvents},
    {"droid", droidEvents},
    {"qwen", nativeEvents},
    {"codebuddy", nativeEvents},
    {"qoder", nativeEvents},
    {"qwenwork", nativeEvents},
    {"qoderwork", nativeEvents},
    {"kimi-code", nativeEvents},
    {"kimi", nativeEvents},
    {"grok-build", grokBuildEvents},
});

/// Sources that do not send native JSON, with the function that reads what they send.
struct Branch {
    std::string_view source;
    bool (*fill)(Draft&);
};

constexpr auto branches = std::to_array<Branch>({
    {"copilot", copilot},
    {"cursor", cursor},
    {"windsurf", windsurf},
    {"opencode", opencode},
    {"grok-build", grokBuild},
});

bool fill(std::string_view source, Draft& draft) {
    const auto found = std::ranges::find(branches, source, &Branch::source);
    return found == branches.end() ? nativeJSON(draft) : found->fill(draft);
}

Draft begin(const SourceEvents& row, const JSONObject& payload) {
    static const std::string noEvent;
    Draft draft{.payload = payload, .events = row.events, .event = {}, .workingDirectory = {}, .result = {}};
    const JSONValue* event = firstPresent(payload, {"hook_event_name", "agent_action_name"});
    draft.event = event == nullptr ? &noEvent : event->string();
    draft.workingDirectory = valueOr(payload.find("cwd"), nullptr);
    const std::string* session =
        text(firstPresent(payload, {"session_id", "sessionId", "conversation_id", "trajectory_id"}));
    draft.result.set("session_id", session == nullptr ? JSONValue() : JSONValue(*session));
    draft.result.set("tool_name", "");
    draft.result.set("tool_input", JSONObject());
    draft.result.set("tool_response", JSONObject());
    draft.result.set("last_assistant_message", nullptr);
    copyTexts(payload, draft.result, {"model", "timestamp"});
    return draft;
}

std::optional<JSONObject> finish(Draft& draft) {
    JSONObject& result = draft.result;
    const JSONObject& input = *objectIn(result, "tool_input");  // every branch leaves an object there
    const std::string* camelCase = stringIn(input, "filePath");
    if (camelCase != nullptr && !input.contains("file_path")) {
        JSONObject completed = input;
        completed.set("file_path", *camelCase);
        result.set("tool_input", std::move(completed));
    }
    if (!absolute(&draft.workingDirectory) || stringIn(result, "tool_name") == nullptr) return std::nullopt;
    result.set("cwd", draft.workingDirectory);
    if (stringIn(result, "last_assistant_message") == nullptr) result.set("last_assistant_message", nullptr);
    copyTexts(draft.payload, result, {"sourceProfileID", "sourceProfileLabel", "sourceKind", "agentHome"});
    if (const JSONObject* producer = objectIn(draft.payload, "_vellarkProducer"))
        result.set("_vellarkProducer", *producer);
    return std::move(result);
}

constexpr auto toolInputSelection = std::to_array<JSONSelection>(
    {{"file_path"}, {"filePath"}, {"path"}, {"absolute_path"}, {"patch"}, {"input"}, {"command"}});
constexpr auto toolResponseSelection = std::to_array<JSONSelection>({{"success"}, {"error"}});
constexpr auto toolResultSelection = std::to_array<JSONSelection>({{"resultType"}, {"result_type"}});
constexpr auto toolInfoSelection = std::to_array<JSONSelection>({{"file_path"}, {"response"}});

constexpr auto selection = std::to_array<JSONSelection>({
    {"hook_event_name"},
    {"agent_action_name"},
    {"hookEventName"},
    {"cwd"},
    {"workspace_roots"},
    {"workspaceRoot"},
    {"session_id"},
    {"sessionId"},
    {"conversation_id"},
    {"trajectory_id"},
    {"model"},
    {"timestamp"},
    {"tool_name"},
    {"toolName"},
    {"tool_input", toolInputSelection},
    {"toolArgs", toolInputSelection},
    {"toolInput", toolInputSelection},
    {"tool_response", toolResponseSelection},
    {"toolResult", toolResultSelection},
    {"tool_result", toolResultSelection},
    {"tool_info", toolInfoSelection},
    {"file_path"},
    {"text"},
    {"last_assistant_message"},
    {"agent_id"},
    {"parent_session_id"},
    {"transcript_path"},
    {"generation_id"},
    {"execution_id"},
    {"sourceProfileID"},
    {"sourceProfileLabel"},
    {"sourceKind"},
    {"agentHome"},
    {"_vellarkProducer"},
});

}  // namespace

std::span<const SourceEvents> events() {
    return sourceEvents;
}

bool isHooked(std::string_view source) {
    return std::ranges::find(sourceEvents, source, &SourceEvents::source) != sourceEvents.end();
}

std::optional<JSONObject> normalize(std::string_view source, const JSONObject& payload) {
    const auto row = std::ranges::find(sourceEvents, source, &SourceEvents::source);
    if (row == sourceEvents.end()) return std::nullopt;
    Draft draft = begin(*row, payload);
    if (!fill(source, draft)) return std::nullopt;
    return finish(draft);
}

std::span<const JSONSelection> payloadSelection() {
    return selection;
}

}  // namespace vellark::HookNormalizer
