#pragma once

#include <VellarkFoundation/JSON/JSONValue.hpp>
#include <VellarkShelf/Sessions/SessionEvent.hpp>

#include <string_view>

namespace vellark {

/// What calls of tools count for, by the names that agents give their tools.
namespace ToolActivity {

/// A call with the input as the agent wrote it.
[[nodiscard]] SessionEvent::Activity ofCall(std::string_view tool, const JSONObject& input);

/// The files that a patch envelope adds, updates or moves.
[[nodiscard]] ConversationActivity ofPatch(std::string_view patch);

}  // namespace ToolActivity

}  // namespace vellark
