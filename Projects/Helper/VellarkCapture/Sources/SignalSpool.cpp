#include <VellarkCapture/PendingSignals.hpp>
#include <VellarkCapture/SignalSpool.hpp>
#include <VellarkDomain/Capture/CaptureSignal.hpp>
#include <VellarkDomain/Capture/CaptureVisibilityPolicy.hpp>
#include <VellarkDomain/Capture/PythonPath.hpp>
#include <VellarkDomain/Capture/PythonText.hpp>
#include <VellarkFoundation/Digest/SHA256.hpp>
#include <VellarkFoundation/Files/AtomicFile.hpp>
#include <VellarkFoundation/Files/BoundedFile.hpp>
#include <VellarkFoundation/Files/HomeDirectory.hpp>
#include <VellarkFoundation/Identifiers/UUID.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Time/TimeText.hpp>

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <memory>

namespace vellark {

namespace {

constexpr std::string_view settingsFile = "settings.json";
constexpr std::string_view integrationsFile = "integration-preferences.json";
constexpr std::string_view policyFile = "capture-policy.json";

constexpr auto disabledKey = std::to_array<JSONSelection>({{"disabledConnectors"}});
constexpr auto disconnectedKey = std::to_array<JSONSelection>({{"disconnectedAgents"}});
constexpr auto responsesKey = std::to_array<JSONSelection>({{"includeAssistantResponses"}});
constexpr auto agentHomesKey = std::to_array<JSONSelection>({{"agentHomes"}});
constexpr auto advancedKey = std::to_array<JSONSelection>({{"advanced", agentHomesKey}});

/// The variable with which an agent itself is told where its data are.
struct HomeVariable {
    std::string_view source;
    std::string_view name;
};
constexpr auto homeVariables = std::to_array<HomeVariable>({
    {"claude", "CLAUDE_CONFIG_DIR"},
    {"codex", "CODEX_HOME"},
    {"kimi-code", "KIMI_CODE_HOME"},
    {"mistral-vibe", "VIBE_HOME"},
    {"copilot", "COPILOT_HOME"},
    {"hermes", "HERMES_HOME"},
    {"qwen", "QWEN_HOME"},
    {"qoder", "QODER_CONFIG_DIR"},
    {"dsh", "DSH_HOME"},
    {"deepseek", "CODEWHALE_HOME"},
    {"kimi", "KIMI_SHARE_DIR"},
});

/// Texts of a payload that say who the source is, with the longest that is believed, in scalars.
struct IdentityField {
    std::string_view key;
    std::size_t longest;
    bool isPath;
};
constexpr IdentityField profileIDField{"sourceProfileID", 128, false};
constexpr IdentityField profileLabelField{"sourceProfileLabel", 254, false};
constexpr IdentityField agentHomeField{"agentHome", 4096, true};

constexpr auto sourceKinds = std::to_array<std::string_view>({"cli", "desktop", "manual"});

/// Longest path whose links are resolved, in bytes: far above what the system accepts, and a bound on the work.
/// A signal with a longer one could not be written anyway.
constexpr std::size_t longestResolvedPath = CaptureSignal::maximumBytes;

bool names(const std::optional<JSONObject>& file, std::string_view key, std::string_view source) {
    const JSONArray* list = file ? arrayIn(*file, key) : nullptr;
    if (list == nullptr) return false;
    return std::ranges::any_of(*list, [&](const JSONValue& element) {
        const std::string* name = element.string();
        return name != nullptr && *name == source;
    });
}

std::string upperCased(std::string_view text) {
    std::string result(text);
    for (char& character : result) {
        if (character >= 'a' && character <= 'z') character = static_cast<char>(character - ('a' - 'A'));
    }
    return result;
}

std::string configurationVariable(std::string_view source) {
    return "VELLARK_" + upperCased(source) + "_CONFIG_DIR";
}

bool isDirectory(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool exists(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0;
}

std::optional<std::string> realPath(std::string_view path) {
    if (path.size() > longestResolvedPath || path.find('\0') != std::string_view::npos) return std::nullopt;
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(std::string(path).c_str(), nullptr), &std::free);
    if (!real) return std::nullopt;
    return std::string(real.get());
}

/// Lengths, in bytes, of the path's text with no component, the first one, the first two and so on up to all.
std::vector<std::size_t> prefixLengths(const PythonPath& path) {
    std::vector<std::size_t> lengths = {path.root().size()};
    for (const std::string_view component : path.tail()) {
        lengths.push_back(static_cast<std::size_t>(component.data() + component.size() - path.string().data()));
    }
    return lengths;
}

/// The member, stripped, when it is a text that can be believed.
std::optional<std::string> accepted(const JSONObject& supplied, const IdentityField& field) {
    const std::string* value = stringIn(supplied, field.key);
    if (value == nullptr) return std::nullopt;
    const std::string_view stripped = PythonText::strip(*value);
    if (stripped.empty() || UTF8::scalarCount(*value) > field.longest) return std::nullopt;
    const auto isControl = [](char character) { return static_cast<unsigned char>(character) < 32; };
    if (std::ranges::any_of(*value, isControl)) return std::nullopt;
    if (field.isPath && !value->starts_with('/')) return std::nullopt;
    return std::string(stripped);
}

std::string sourceKind(const JSONObject& supplied, std::string_view kind) {
    const auto isKnown = [](std::string_view text) {
        return std::ranges::find(sourceKinds, text) != sourceKinds.end();
    };
    const std::string* named = stringIn(supplied, "sourceKind");
    if (named != nullptr && isKnown(*named)) return *named;
    return isKnown(kind) ? std::string(kind) : "unknown";
}

/// The digest of the pieces, each but the last ended by a zero byte, so that no two lists of pieces are alike.
std::string digest(std::initializer_list<std::string_view> pieces) {
    std::string text;
    for (const std::string_view piece : pieces) {
        if (piece.data() != pieces.begin()->data()) text += '\0';
        text += piece;
    }
    return SHA256::hexadecimal(text);
}

/// Makes the directory where it is missing. False when something else stands in its place, a link to a directory too.
bool prepareSpool(const std::string& directory) {
    if (::mkdir(directory.c_str(), 0700) != 0 && errno != EEXIST) return false;
    struct stat status {};
    return ::lstat(directory.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

std::optional<JSONObject> SignalSpool::json(std::string_view name, std::span<const JSONSelection> keys) const {
    const auto content = BoundedFile::read(data + "/" + std::string(name), CaptureSignal::maximumInputBytes);
    if (!content) return std::nullopt;
    const auto value = JSONReader::read(*content, {.keep = keys});
    if (!value || value->object() == nullptr) return std::nullopt;
    return *value->object();
}

bool SignalSpool::sourceEnabled(std::string_view source) const {
    return !names(json(settingsFile, disabledKey), "disabledConnectors", source) &&
           !names(json(integrationsFile, disconnectedKey), "disconnectedAgents", source);
}

bool SignalSpool::includesResponses() const {
    const auto policy = json(policyFile, responsesKey);
    const JSONValue* value = policy ? policy->find("includeAssistantResponses") : nullptr;
    return value != nullptr && value->boolean() != nullptr && *value->boolean();
}

std::optional<std::string> SignalSpool::configuredRoot(std::string_view source) const {
    std::vector<std::string> candidates;
    const auto settings = json(settingsFile, advancedKey);
    const JSONObject* advanced = settings ? objectIn(*settings, "advanced") : nullptr;
    const JSONObject* homes = advanced != nullptr ? objectIn(*advanced, "agentHomes") : nullptr;
    if (const std::string* home = homes != nullptr ? stringIn(*homes, source) : nullptr) candidates.push_back(*home);

    // Shells cannot set a name with a hyphen, other programs can; the spelling that a shell can set goes first.
    std::string underscored(source);
    std::ranges::replace(underscored, '-', '_');
    for (const std::string& variable : {configurationVariable(underscored), configurationVariable(source)}) {
        if (const auto value = environment.value(variable)) candidates.emplace_back(*value);
    }

    for (const std::string& candidate : candidates) {
        if (PythonText::strip(candidate).empty()) continue;
        std::string expanded = HomeDirectory::expandingTilde(candidate, environment);
        if (expanded.starts_with('/')) return expanded;
    }
    return std::nullopt;
}

std::string SignalSpool::agentRoot(std::string_view source) const {
    if (auto root = configuredRoot(source)) return *root;

    const auto homeValue = environment.value("HOME");
    const std::string home = homeValue ? std::string(*homeValue) : HomeDirectory::current(environment);
    const auto redirected = environment.value("VELLARK_AGENT_HOME");
    const std::string base = redirected ? HomeDirectory::expandingTilde(*redirected, environment) : home;

    const auto variable = std::ranges::find(homeVariables, source, &HomeVariable::source);
    if (variable != homeVariables.end() && PythonPath(base) == PythonPath(home)) {
        std::string root = HomeDirectory::expandingTilde(environment.value(variable->name).value_or(""), environment);
        if (root.starts_with('/')) return root;
    }

    const std::string usual(CaptureSignal::home(source).value_or("." + std::string(source)));
    std::string primary(PythonPath(base).appending(usual).string());
    const auto older = std::ranges::find(CaptureVisibilityPolicy::agentHomeFallbacks, source,
                                         &CaptureVisibilityPolicy::AgentHome::source);
    if (older != CaptureVisibilityPolicy::agentHomeFallbacks.end() && !exists(primary)) {
        std::string fallback(PythonPath(base).appending(older->directory).string());
        if (isDirectory(fallback)) return fallback;
    }
    return primary;
}

std::string SignalSpool::resolved(std::string_view path) {
    const PythonPath whole(path);
    const std::string_view text = whole.string();
    if (const auto real = realPath(text)) return *real;
    // Where a component cannot be resolved no longer path can be, so the longest one that can is found by halving.
    const std::vector<std::size_t> lengths = prefixLengths(whole);
    std::optional<std::string> real;
    std::size_t kept = 0;
    for (std::size_t low = 0, high = lengths.size() - 1; low < high;) {
        const std::size_t middle = (low + high) / 2;
        if (auto found = realPath(lengths[middle] == 0 ? "." : text.substr(0, lengths[middle]))) {
            real = std::move(found);
            kept = lengths[middle];
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    if (!real) return std::string(text);
    std::string_view removed = text.substr(kept);
    if (removed.starts_with('/')) removed.remove_prefix(1);
    return std::string(PythonPath(*real).appending(removed).string());
}

JSONObject SignalSpool::profile(std::string_view source, const JSONObject& supplied, std::string_view kind) const {
    const auto identifier = accepted(supplied, profileIDField);
    const auto label = accepted(supplied, profileLabelField);
    const auto suppliedHome = accepted(supplied, agentHomeField);
    const std::string home = resolved(suppliedHome ? *suppliedHome : agentRoot(source));
    const std::string actualKind = sourceKind(supplied, kind);

    JSONObject result;
    result.set("sourceKind", actualKind);
    result.set("agentHome", home);
    result.set("profileIdentityOrigin", identifier ? "local-ingress" : "source-location");
    result.set("profileIdentityVerified", false);
    if (!identifier) {
        result.set("sourceProfileID", digest({"source-profile-v1", source, actualKind, home}));
        return result;
    }
    result.set("sourceProfileID", digest({source, actualKind, home, "provided:" + *identifier}));
    if (label) result.set("sourceProfileLabel", *label);
    return result;
}

std::optional<std::string> SignalSpool::write(std::string_view bytes, std::string_view temporaryName) const {
    const std::string directory = data + "/" + std::string(CaptureSignal::directory);
    if (!prepareSpool(directory)) return std::nullopt;
    const auto pending = PendingSignals::count(directory);
    if (!pending || *pending >= CaptureSignal::maximumPending) return std::nullopt;

    const auto identifier = UUID::random();
    if (!identifier) return std::nullopt;
    auto file = AtomicFile::create(directory + "/" + std::string(temporaryName), 0600);
    if (!file || !file->write(bytes)) return std::nullopt;
    std::string final =
        directory + "/" + TimeText::secondsWithMicroseconds(TimeText::now()) + "-" + *identifier + ".json";
    if (!file->moveTo(final)) return std::nullopt;
    return final;
}

}  // namespace vellark
