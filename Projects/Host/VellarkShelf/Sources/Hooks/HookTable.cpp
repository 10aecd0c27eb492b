// The forms are those of the agents' public manuals. Tool names in them select the tools that write files; an agent
// that has renamed one sends the others all the same.

#include <VellarkShelf/Hooks/HookTable.hpp>

#include <algorithm>
#include <array>

namespace vellark {

namespace {

constexpr std::string_view merged = "Merge this into the file; hooks that are there stay.";
constexpr std::string_view mergedWhereKept =
    "Merge this into the agent's hook settings; versions differ in the file's name, its manual tells.";

// Events of a tool call's and an answer's end, with a matcher for the tools that write.
constexpr std::string_view eventHooks = R"({
  "hooks": {
    "PostToolUse": [
      {
        "matcher": "Write|Edit|MultiEdit|NotebookEdit",
        "hooks": [{ "type": "command", "command": "{command}" }]
      }
    ],
    "Stop": [{ "hooks": [{ "type": "command", "command": "{command}" }] }],
    "SubagentStop": [{ "hooks": [{ "type": "command", "command": "{command}" }] }]
  }
}
)";

// The same for agents whose writing tools have other names: no matcher, all tools.
constexpr std::string_view allToolHooks = R"({
  "hooks": {
    "PostToolUse": [{ "hooks": [{ "type": "command", "command": "{command}" }] }],
    "Stop": [{ "hooks": [{ "type": "command", "command": "{command}" }] }]
  }
}
)";

constexpr std::string_view toolHooks = R"({
  "hooks": {
    "PostToolUse": [{ "hooks": [{ "type": "command", "command": "{command}" }] }]
  }
}
)";

constexpr std::string_view geminiHooks = R"({
  "hooks": {
    "AfterTool": [
      {
        "matcher": "write_file|replace",
        "hooks": [{ "type": "command", "command": "{command}" }]
      }
    ]
  }
}
)";

constexpr std::string_view cursorHooks = R"({
  "version": 1,
  "hooks": {
    "afterFileEdit": [{ "command": "{command}" }],
    "afterAgentResponse": [{ "command": "{command}" }]
  }
}
)";

constexpr std::string_view windsurfHooks = R"({
  "hooks": {
    "post_write_code": [{ "command": "{command}", "show_output": false }],
    "post_cascade_response": [{ "command": "{command}", "show_output": false }]
  }
}
)";

constexpr std::string_view copilotHooks = R"({
  "version": 1,
  "hooks": {
    "postToolUse": [{ "type": "command", "bash": "{command}" }]
  }
}
)";

constexpr std::string_view tomlHooks = R"([[hooks]]
event = "PostToolUse"
command = "{command}"

[[hooks]]
event = "Stop"
command = "{command}"
)";

constexpr std::string_view opencodePlugin = R"(import { spawn } from "node:child_process";

export const Vellark = async ({ directory }) => ({
  "tool.execute.after": async (input, output) => {
    const helper = spawn("/bin/sh", ["-c", "{command}"], { stdio: ["pipe", "ignore", "ignore"] });
    helper.on("error", () => {});
    helper.stdin.on("error", () => {});
    helper.stdin.end(JSON.stringify({
      hook_event_name: "tool.execute.after",
      session_id: input.sessionID,
      cwd: directory,
      tool_name: input.tool,
      tool_input: input.args ?? output.args ?? {},
      tool_response: {},
    }));
  },
});
)";

constexpr std::array rows = std::to_array<HookRow>({
    {"claude", "settings.json", eventHooks, merged},
    {"codex", "hooks.json", allToolHooks, "For versions with hooks: merge this into the file."},
    {"gemini", "settings.json", geminiHooks, merged},
    {"cursor", "hooks.json", cursorHooks, merged},
    {"windsurf", "hooks.json", windsurfHooks, merged},
    {"copilot", "hooks/vellark.json", copilotHooks,
     "A file of its own; in a repository it may also lie in .github/hooks."},
    {"opencode", "plugin/vellark.js", opencodePlugin, "A plugin of its own; the agent loads it at its next start."},
    {"droid", "settings.json", eventHooks, merged},
    {"qwen", "settings.json", allToolHooks, merged},
    {"qwenwork", "settings.json", allToolHooks, mergedWhereKept},
    {"codebuddy", "settings.json", eventHooks, merged},
    {"qoder", "settings.json", allToolHooks, merged},
    {"qoderwork", "settings.json", allToolHooks, mergedWhereKept},
    {"kimi-code", "config.toml", tomlHooks, "Add this at the end of the file."},
    {"kimi", "config.toml", tomlHooks, "Add this at the end of the file."},
    {"grok-build", "hooks/vellark.json", toolHooks, mergedWhereKept},
});

constexpr HookRow feeder = {
    "", "", "{command} --file FILE --cwd FOLDER --session SESSION --model MODEL\n",
    "No hook of this agent is known: run this after it has written FILE, from a script or a watcher of yours. All but "
    "--file may be left out."};

}  // namespace

const HookRow& hookRow(std::string_view source) {
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [source](const HookRow& candidate) { return candidate.source == source; });
    return row == rows.end() ? feeder : *row;
}

}  // namespace vellark
