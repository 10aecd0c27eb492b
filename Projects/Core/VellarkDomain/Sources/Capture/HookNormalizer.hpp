#pragma once

#include <VellarkFoundation/JSON/JSONReader.hpp>
#include <VellarkFoundation/JSON/JSONValue.hpp>

#include <optional>
#include <span>
#include <string_view>

namespace vellark {

/// Brings what agents send to their hooks into the one shape that signals have, and drops the events that a shelf has
/// no use for.
///
///     cursor, {"hook_event_name": "afterFileEdit", "file_path": "/p/a.md"}
///         {"session_id": null, "tool_name": "edit", "tool_input": {"file_path": "/p/a.md"}, "tool_response": {},
///          "last_assistant_message": null, "hook_event_name": "PostToolUse", "cwd": "/p"}
///     cursor, {"hook_event_name": "beforeShellExecution", ...}
///         nothing
///
/// In all look-ups a key that is there counts, also with a value of no use: it is never passed over for a later
/// spelling of the same thing.
namespace HookNormalizer {

/// A source whose hooks are understood, and the events that it may deliver.
struct SourceEvents {
    std::string_view source;
    std::span<const std::string_view> events;
};

/// All such sources. The others send payloads in the common shape by themselves.
[[nodiscard]] std::span<const SourceEvents> events();

/// True for a source of `events`.
[[nodiscard]] bool isHooked(std::string_view source);

/// The payload in the common shape. Nothing for a source without hooks, an event of no interest, and a payload that
/// lacks what a signal needs: an absolute working directory and a tool name that is text.
[[nodiscard]] std::optional<JSONObject> normalize(std::string_view source, const JSONObject& payload);

/// What `normalize` can ever use of a payload, for any source. A reader that is given this selection drops the rest
/// while it reads.
[[nodiscard]] std::span<const JSONSelection> payloadSelection();

}  // namespace HookNormalizer

}  // namespace vellark
