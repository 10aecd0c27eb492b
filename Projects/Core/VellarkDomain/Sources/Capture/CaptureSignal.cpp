#include <VellarkDomain/Capture/CaptureSignal.hpp>
#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkFoundation/JSON/PythonJSONWriter.hpp>

#include <algorithm>
#include <utility>

namespace vellark::CaptureSignal {

namespace {

constexpr auto pathKeys = std::to_array<std::string_view>({"file_path", "path", "absolute_path"});

/// Members of a tool's input that may hold a patch envelope.
constexpr auto patchKeys = std::to_array<std::string_view>({"patch", "input", "command"});

constexpr auto responseKeys = std::to_array<std::string_view>({"success", "error"});

/// Members with the text of the assistant's answer.
constexpr auto answerKeys = std::to_array<std::string_view>({"last_assistant_message", "assistant_response"});

constexpr std::string_view patchBegin = "*** Begin Patch";

/// Lines of a patch envelope that say which files it writes. Deleted files are of no interest to a shelf.
constexpr auto patchHeaders = std::to_array<std::string_view>({
    patchBegin,
    "*** End Patch",
    "*** Add File:",
    "*** Update File:",
    "*** Move to:",
});

/// Members of a payload that the source's identity is made of.
constexpr auto identityKeys =
    std::to_array<std::string_view>({"sourceProfileID", "sourceProfileLabel", "sourceKind", "agentHome"});

template <std::size_t Count>
bool isIn(const std::array<std::string_view, Count>& keys, std::string_view key) {
    return std::ranges::find(keys, key) != keys.end();
}

bool isPatchEnvelope(std::string_view text) {
    return PythonText::stripLeading(text).starts_with(patchBegin);
}

std::string reducedPatch(std::string_view envelope) {
    std::string reduced;
    bool isFirst = true;
    for (const std::string_view line : PythonText::splitlines(envelope)) {
        const auto isHeader = [&](std::string_view header) { return line.starts_with(header); };
        if (std::ranges::none_of(patchHeaders, isHeader)) continue;
        if (!std::exchange(isFirst, false)) reduced += '\n';
        reduced += line;
    }
    return reduced;
}

JSONObject filteredToolInput(const JSONObject& input) {
    JSONObject filtered;
    for (const JSONMember& member : input.members()) {
        if (isIn(pathKeys, member.key) && member.value.string() != nullptr) filtered.set(member.key, member.value);
    }
    for (const std::string_view key : patchKeys) {
        const std::string* text = stringIn(input, key);
        if (text != nullptr && isPatchEnvelope(*text)) filtered.set(key, reducedPatch(*text));
    }
    return filtered;
}

const JSONObject* toolInput(const JSONObject& payload) {
    const JSONObject* input = objectIn(payload, "tool_input");
    return input != nullptr ? input : objectIn(payload, "args");
}

JSONObject filteredPayload(const JSONObject& payload, bool includesResponses) {
    JSONObject result;
    for (const JSONMember& member : payload.members()) {
        if (isIn(fields, member.key)) result.set(member.key, member.value);
    }
    if (const JSONObject* input = toolInput(payload)) result.set("tool_input", filteredToolInput(*input));
    if (const JSONObject* response = objectIn(payload, "tool_response")) {
        JSONObject filtered;
        for (const JSONMember& member : response->members()) {
            if (isIn(responseKeys, member.key)) filtered.set(member.key, member.value);
        }
        result.set("tool_response", std::move(filtered));
    }
    if (includesResponses) {
        for (const std::string_view key : answerKeys) {
            if (const std::string* text = stringIn(payload, key)) result.set(key, *text);
        }
    }
    return result;
}

// The selections are made of the lists above, so that a key cannot be filtered in one place and forgotten in the other.
template <std::size_t... Counts>
constexpr auto selectionOf(const std::array<std::string_view, Counts>&... lists) {
    std::array<JSONSelection, (Counts + ...)> selection{};
    std::size_t index = 0;
    const auto add = [&](const auto& keys) {
        for (const std::string_view key : keys)
            selection[index++].key = key;
    };
    (add(lists), ...);
    return selection;
}

constexpr auto toolInputSelection = selectionOf(pathKeys, patchKeys);
constexpr auto responseSelection = selectionOf(responseKeys);
constexpr auto nestedSelection = std::to_array<JSONSelection>({
    {"tool_input", toolInputSelection},
    {"args", toolInputSelection},
    {"tool_response", responseSelection},
});

constexpr auto wholeSelection = [] {
    constexpr auto plain = selectionOf(fields, answerKeys, identityKeys);
    std::array<JSONSelection, plain.size() + nestedSelection.size()> selection{};
    std::ranges::copy(plain, selection.begin());
    std::ranges::copy(nestedSelection, selection.begin() + plain.size());
    return selection;
}();

}  // namespace

bool isSource(std::string_view source) {
    return home(source).has_value();
}

std::optional<std::string_view> home(std::string_view source) {
    const auto found = std::ranges::find(sources, source, &Source::identifier);
    if (found == sources.end()) return std::nullopt;
    return found->home;
}

std::span<const JSONSelection> payloadSelection() {
    return wholeSelection;
}

std::optional<std::string> encode(std::string_view source, const JSONObject& payload, const EncodeOptions& options) {
    if (!isSource(source)) return std::nullopt;
    JSONObject signal;
    signal.set("version", JSONNumber{std::to_string(version)});
    signal.set("source", source);
    signal.set("payload", filteredPayload(payload, options.includesResponses));
    std::optional<std::string> text = pythonJSON(signal, options.sortKeys);
    if (text && text->size() > maximumBytes) return std::nullopt;
    return text;
}

std::optional<std::string> pythonJSON(const JSONValue& value, bool sortKeys) {
    return PythonJSONWriter::write(value, {.sortKeys = sortKeys});
}

}  // namespace vellark::CaptureSignal
