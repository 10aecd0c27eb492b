#pragma once

#include <VellarkFoundation/JSON/JSONReader.hpp>
#include <VellarkFoundation/JSON/JSONValue.hpp>

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// The file by which the helper tells the host that an agent did something: one small JSON object.
///
///     {"version": 1, "source": "claude", "payload": {"cwd": "/w", "tool_input": {"file_path": "/w/a.md"}, ...}}
///
/// A signal holds identifiers, paths and a few short texts. Commands, file contents and tool output are filtered out
/// here, by lists of what may pass, so that none of them ever reaches the disk.
namespace CaptureSignal {

/// Directory of pending signals, below the data directory.
inline constexpr std::string_view directory = "signals";

/// The only version of the format, written into each signal.
inline constexpr int version = 1;

/// Longest signal that may reach the spool, in bytes. A longer one is refused whole: a shortened path or message would
/// say something that the agent never said.
inline constexpr std::size_t maximumBytes = 65'536;

/// Signals that may wait for the host at a time. A host that is not running must not cost its user a disk.
inline constexpr std::size_t maximumPending = 512;

/// Longest payload on standard input, and longest configuration file that the helper reads, in bytes.
inline constexpr std::size_t maximumInputBytes = 4'194'304;

/// An agent, and where it keeps its data below the user's home.
struct Source {
    std::string_view identifier;
    std::string_view home;
};

/// All agents that may send signals.
inline constexpr auto sources = std::to_array<Source>({
    {"claude", ".claude"},
    {"codex", ".codex"},
    {"zcode", ".zcode"},
    {"gemini", ".gemini"},
    {"antigravity", ".antigravity"},
    {"cursor", ".cursor"},
    {"trae", ".trae"},
    {"opencode", ".config/opencode"},
    {"mimocode", ".mimocode"},
    {"droid", ".factory"},
    {"devin", ".devin"},
    {"qoder", ".qoder"},
    {"qoderwork", ".qoderwork"},
    {"qwen", ".qwen"},
    {"qwenwork", ".qwenwork"},
    {"grok-build", ".grok"},
    {"kimi-code", ".kimi-code"},
    {"deepseek", ".codewhale"},
    {"dsh", ".dsh"},
    {"mistral-vibe", ".vibe"},
    {"copilot", ".copilot"},
    {"codebuddy", ".codebuddy"},
    {"workbuddy", ".workbuddy"},
    {"kiro", ".kiro"},
    {"hermes", ".hermes"},
    {"amp", ".config/amp"},
    {"pi", ".pi/agent"},
    {"oh-my-pi", ".omp/agent"},
    {"gajae-code", ".gajae"},
    {"kimi", ".kimi"},
    {"windsurf", ".codeium/windsurf"},
});

/// True for the identifier of one of `sources`.
[[nodiscard]] bool isSource(std::string_view source);

/// The agent's directory relative to the user's home; nothing for an unknown source.
[[nodiscard]] std::optional<std::string_view> home(std::string_view source);

/// Members of a payload that pass with their value as it is.
inline constexpr auto fields = std::to_array<std::string_view>({
    "hook_event_name",
    "session_id",
    "cwd",
    "model",
    "transcript_path",
    "tool_name",
    "tool_use_id",
    "timestamp",
    "turn_id",
    "response_id",
    "message_id",
    "parent_session_id",
    "isSidechain",
    "agent_id",
    "_vellarkProfile",
    "_vellarkLocalIngress",
});

/// What `encode` and the source's identity can ever use of a payload in the common shape. A reader that is given this
/// selection drops everything else while it reads.
[[nodiscard]] std::span<const JSONSelection> payloadSelection();

struct EncodeOptions {
    /// Let the text of the assistant's answer pass.
    bool includesResponses = false;

    /// Sort the keys of every object. Otherwise they stand in the order in which they were set.
    bool sortKeys = false;
};

/// The bytes of the signal file for a payload in the common shape. Nothing for an unknown source, for a number that no
/// double holds, and for a signal longer than `maximumBytes`.
[[nodiscard]] std::optional<std::string> encode(std::string_view source, const JSONObject& payload,
                                                const EncodeOptions& options);

/// The value in the byte form of Python's `json.dumps` with its default settings. Nothing for a number whose nearest
/// double is infinite.
[[nodiscard]] std::optional<std::string> pythonJSON(const JSONValue& value, bool sortKeys);

}  // namespace CaptureSignal

}  // namespace vellark
