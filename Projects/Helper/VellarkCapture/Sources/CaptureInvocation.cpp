#include <VellarkCapture/CaptureInvocation.hpp>
#include <VellarkCapture/SignalSpool.hpp>
#include <VellarkDomain/Capture/CaptureSignal.hpp>
#include <VellarkDomain/Capture/HookNormalizer.hpp>
#include <VellarkDomain/Capture/PythonPath.hpp>
#include <VellarkFoundation/Files/HomeDirectory.hpp>
#include <VellarkFoundation/Identifiers/UUID.hpp>
#include <VellarkFoundation/JSON/JSONReader.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Time/TimeText.hpp>

#include <algorithm>
#include <array>

namespace vellark {

namespace {

constexpr auto valueOptions = std::to_array<std::string_view>({
    "source",
    "data",
    "file",
    "cwd",
    "session",
    "model",
    "source-profile-id",
    "source-profile-label",
    "source-kind",
    "agent-home",
});

/// Options that describe a written file, and the members of the payload that they become.
struct PayloadOption {
    std::string_view option;
    std::string_view key;
};
constexpr auto payloadOptions = std::to_array<PayloadOption>({
    {"session", "session_id"},
    {"model", "model"},
    {"source-profile-id", "sourceProfileID"},
    {"source-profile-label", "sourceProfileLabel"},
    {"source-kind", "sourceKind"},
    {"agent-home", "agentHome"},
});

constexpr std::string_view defaultDataDirectory = "/Library/Application Support/Vellark";

using Options = std::map<std::string, std::string, std::less<>>;

struct CommandLine {
    bool hook = false;
    Options values;
};

std::optional<CommandLine> parse(std::span<const std::string_view> arguments) {
    CommandLine result;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        std::string_view argument = arguments[index];
        if (!argument.starts_with("--")) return std::nullopt;
        argument.remove_prefix(2);
        const std::size_t equals = argument.find('=');
        const std::string_view name = argument.substr(0, equals);
        const bool hasAttachedValue = equals != std::string_view::npos;
        if (name == "hook" && !hasAttachedValue) {
            result.hook = true;
            continue;
        }
        if (std::ranges::find(valueOptions, name) == valueOptions.end()) return std::nullopt;
        if (!hasAttachedValue && ++index == arguments.size()) return std::nullopt;
        const std::string_view value = hasAttachedValue ? argument.substr(equals + 1) : arguments[index];
        result.values.insert_or_assign(std::string(name), std::string(value));
    }
    return result;
}

std::optional<std::string> take(Options& options, std::string_view name) {
    const auto found = options.find(name);
    if (found == options.end()) return std::nullopt;
    std::string value = std::move(found->second);
    options.erase(found);
    return value;
}

std::string defaultData(const Environment& environment) {
    if (const auto directory = environment.value("VELLARK_DATA_DIR")) return std::string(*directory);
    return HomeDirectory::current(environment) + std::string(defaultDataDirectory);
}

}  // namespace

std::optional<CaptureInvocation> CaptureInvocation::make(std::span<const std::string_view> arguments,
                                                         Environment environment, std::string currentDirectory) {
    if (!std::ranges::all_of(arguments, UTF8::isValid)) return std::nullopt;
    auto commandLine = parse(arguments);
    if (!commandLine) return std::nullopt;

    Options& values = commandLine->values;
    const auto source = take(values, "source");
    if (!source || !CaptureSignal::isSource(*source)) return std::nullopt;
    const auto file = take(values, "file");
    if (commandLine->hook && (file || !HookNormalizer::isHooked(*source))) return std::nullopt;
    auto data = take(values, "data");
    if (!data) data = defaultData(environment);

    return CaptureInvocation{
        .source = *source,
        .hook = commandLine->hook,
        .data = std::move(*data),
        .file = file,
        .options = std::move(values),
        .environment = std::move(environment),
        .currentDirectory = std::move(currentDirectory),
    };
}

std::optional<JSONObject> CaptureInvocation::payload(const Input& input) const {
    if (file) return filePayload();
    return inputPayload(input);
}

JSONObject CaptureInvocation::filePayload() const {
    const PythonPath current(currentDirectory);
    const PythonPath path = current.appending(*file);
    const auto directory = options.find("cwd");
    JSONObject toolInput;
    toolInput.set("file_path", path.string());

    JSONObject result;
    result.set("hook_event_name", "PostToolUse");
    result.set("tool_name", "Write");
    result.set("cwd", (directory == options.end() ? path.parent() : current.appending(directory->second)).string());
    result.set("tool_input", std::move(toolInput));
    result.set("_vellarkLocalIngress", true);
    for (const PayloadOption& row : payloadOptions) {
        if (const auto value = options.find(row.option); value != options.end()) result.set(row.key, value->second);
    }
    return result;
}

std::optional<JSONObject> CaptureInvocation::inputPayload(const Input& input) const {
    const auto given = input();
    if (!given) return std::nullopt;
    const auto keep = hook ? HookNormalizer::payloadSelection() : CaptureSignal::payloadSelection();
    auto value = JSONReader::read(given->bytes(), {.keep = keep});
    if (!value || value->object() == nullptr) return std::nullopt;
    JSONObject object = std::move(*value).takeObject();
    if (!hook) {
        object.set("_vellarkLocalIngress", true);
        return object;
    }
    // This agent runs its hooks in the folder of the project and does not name it.
    if (source == "windsurf" && !object.contains("cwd")) object.set("cwd", currentDirectory);
    auto normalized = HookNormalizer::normalize(source, object);
    if (normalized) normalized->set("_vellarkLocalIngress", false);
    return normalized;
}

std::optional<std::string> CaptureInvocation::run(const Input& input) const {
    auto signal = payload(input);
    if (!signal) return std::nullopt;
    const SignalSpool spool{.data = HomeDirectory::expandingTilde(data, environment), .environment = environment};
    if (!spool.sourceEnabled(source)) return std::nullopt;
    signal->set("_vellarkProfile", spool.profile(source, *signal, file ? "manual" : "unknown"));
    if (stringIn(*signal, "timestamp") == nullptr) {
        signal->set("timestamp", TimeText::millisecondsUTC(TimeText::now()));
    }
    const auto bytes =
        CaptureSignal::encode(source, *signal, {.includesResponses = spool.includesResponses(), .sortKeys = false});
    if (!bytes) return std::nullopt;
    const auto identifier = UUID::random();
    if (!identifier) return std::nullopt;
    return spool.write(*bytes, ".tmp-" + *identifier);
}

}  // namespace vellark
