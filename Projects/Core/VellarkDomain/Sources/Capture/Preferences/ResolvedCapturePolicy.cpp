#include <VellarkDomain/Capture/Preferences/CapturePreferences.hpp>
#include <VellarkDomain/Capture/Preferences/ResolvedCapturePolicy.hpp>
#include <VellarkDomain/Capture/Rules/CaptureEventTimes.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

// The file is written by one program and read by others of any age, so reading judges each entry by itself: an odd one
// never costs its neighbours.

namespace vellark {

namespace {

using Seconds = ResolvedCapturePolicy::Seconds;

bool truthy(const JSONValue& value) {
    if (const bool* const boolean = value.boolean()) return *boolean;
    if (const JSONNumber* const number = value.number()) return number->asDouble() != 0;
    if (const std::string* const string = value.string()) return !string->empty();
    if (const JSONArray* const array = value.array()) return !array->empty();
    if (const JSONObject* const object = value.object()) return !object->isEmpty();
    return false;
}

std::optional<Seconds> number(const JSONValue& value) {
    const JSONNumber* const number = value.number();
    return number != nullptr ? std::optional(number->asDouble()) : std::nullopt;
}

bool truthyIn(const JSONObject& object, std::string_view key) {
    const JSONValue* const value = object.find(key);
    return value != nullptr && truthy(*value);
}

std::optional<Seconds> numberIn(const JSONObject& object, std::string_view key) {
    const JSONValue* const value = object.find(key);
    return value != nullptr ? number(*value) : std::nullopt;
}

// The value that a dictionary of the policy holds for one of a source: a switch or a moment, from JSON or from the
// user's choices. Nothing drops the entry.
std::optional<bool> entryValue(bool value) {
    return value;
}
std::optional<Seconds> entryValue(const std::string& moment) {
    return CaptureRules::eventSeconds(moment);
}

const std::string& entryKey(const std::string& key, std::string*) {
    return key;
}
std::optional<ArtifactCategory> entryKey(const std::string& key, ArtifactCategory*) {
    return fromRawValue<ArtifactCategory>(key);
}

template <class Key, class Value, class Source>
void addEntry(std::map<Key, Value>& dictionary, const std::string& key, const std::optional<Source>& value) {
    const std::optional<Key> known = entryKey(key, static_cast<Key*>(nullptr));
    if (known && value) dictionary.insert_or_assign(*known, *value);
}

template <class Key>
void readEntries(const JSONObject& object, std::string_view key, std::map<Key, bool>& switches) {
    const JSONObject* const entries = objectIn(object, key);
    if (entries == nullptr) return;
    for (const JSONMember& member : entries->members()) {
        addEntry(switches, member.key, std::optional(truthy(member.value)));
    }
}

template <class Key>
void readEntries(const JSONObject& object, std::string_view key, std::map<Key, Seconds>& moments) {
    const JSONObject* const entries = objectIn(object, key);
    if (entries == nullptr) return;
    for (const JSONMember& member : entries->members())
        addEntry(moments, member.key, number(member.value));
}

template <class Key, class Value, class Source>
void resolveEntries(const std::map<std::string, Source>& chosen, std::map<Key, Value>& dictionary) {
    for (const auto& [key, value] : chosen)
        addEntry(dictionary, key, entryValue(value));
}

std::optional<Seconds> resolved(const std::optional<std::string>& moment) {
    return moment ? CaptureRules::eventSeconds(*moment) : std::nullopt;
}

template <class Value>
std::map<std::string, Value> byID(const std::map<ArtifactCategory, Value>& dictionary) {
    std::map<std::string, Value> result;
    for (const auto& [category, value] : dictionary)
        result.emplace(rawValue(category), value);
    return result;
}

// The record as it is stored. Two of its keys are older than the others and keep their own style.
struct StoredPolicy {
    const ResolvedCapturePolicy& policy;
};

template <class Fields>
void describe(Fields& fields, StoredPolicy& stored) {
    const ResolvedCapturePolicy& policy = stored.policy;
    fields.required("enabled", policy.enabled);
    fields.required("types", byID(policy.types));
    fields.required("extensions", policy.extensions);
    fields.required("includeExtensionless", policy.includeExtensionless);
    fields.required("includeUnlistedExtensions", policy.includeUnlistedExtensions);
    fields.required("includeAssistantResponses", policy.includeAssistantResponses);
    fields.required("capture_title_changes", policy.captureTitleChanges);
    fields.required("capture_location_changes", policy.captureLocationChanges);
    fields.optional("resumeSince", policy.resumeSince);
    fields.required("typeResumeSince", byID(policy.typeResumeSince));
    fields.required("extensionResumeSince", policy.extensionResumeSince);
    fields.optional("extensionlessResumeSince", policy.extensionlessResumeSince);
    fields.optional("unlistedResumeSince", policy.unlistedResumeSince);
    fields.optional("assistantResponsesResumeSince", policy.assistantResponsesResumeSince);
    fields.required("outputs", policy.outputs);
    fields.required("outputResumeSince", policy.outputResumeSince);
}

}  // namespace

ResolvedCapturePolicy ResolvedCapturePolicy::fromJSON(const JSONValue& json) {
    ResolvedCapturePolicy policy;
    const JSONObject* const object = json.object();
    if (object == nullptr) return policy;

    policy.enabled = truthyIn(*object, "enabled");
    readEntries(*object, "types", policy.types);
    if (const JSONArray* const extensions = arrayIn(*object, "extensions")) {
        for (const JSONValue& element : *extensions) {
            if (const std::string* const text = element.string()) policy.extensions.insert(*text);
        }
    }
    policy.includeExtensionless = truthyIn(*object, "includeExtensionless");
    policy.includeUnlistedExtensions = truthyIn(*object, "includeUnlistedExtensions");
    policy.includeAssistantResponses = truthyIn(*object, "includeAssistantResponses");
    policy.captureTitleChanges = truthyIn(*object, "capture_title_changes");
    policy.captureLocationChanges = truthyIn(*object, "capture_location_changes");
    policy.resumeSince = numberIn(*object, "resumeSince");
    readEntries(*object, "typeResumeSince", policy.typeResumeSince);
    readEntries(*object, "extensionResumeSince", policy.extensionResumeSince);
    policy.extensionlessResumeSince = numberIn(*object, "extensionlessResumeSince");
    policy.unlistedResumeSince = numberIn(*object, "unlistedResumeSince");
    policy.assistantResponsesResumeSince = numberIn(*object, "assistantResponsesResumeSince");
    readEntries(*object, "outputs", policy.outputs);
    readEntries(*object, "outputResumeSince", policy.outputResumeSince);
    return policy;
}

ResolvedCapturePolicy ResolvedCapturePolicy::fromPreferences(const CapturePreferences& preferences) {
    ResolvedCapturePolicy policy;
    policy.enabled = preferences.enabled;
    resolveEntries(preferences.types, policy.types);
    policy.extensions.insert(preferences.extensions.begin(), preferences.extensions.end());
    policy.includeExtensionless = preferences.includeExtensionless;
    policy.includeUnlistedExtensions = preferences.includeUnlistedExtensions;
    policy.includeAssistantResponses = preferences.includeAssistantResponses;
    policy.captureTitleChanges = preferences.captureTitleChanges;
    policy.captureLocationChanges = preferences.captureLocationChanges;
    policy.resumeSince = resolved(preferences.resumeSince);
    resolveEntries(preferences.typeResumeSince, policy.typeResumeSince);
    resolveEntries(preferences.extensionResumeSince, policy.extensionResumeSince);
    policy.extensionlessResumeSince = resolved(preferences.extensionlessResumeSince);
    policy.unlistedResumeSince = resolved(preferences.unlistedResumeSince);
    policy.assistantResponsesResumeSince = resolved(preferences.assistantResponsesResumeSince);
    policy.outputs = preferences.outputs;
    resolveEntries(preferences.outputResumeSince, policy.outputResumeSince);
    return policy;
}

Result<std::string, EncodingError> ResolvedCapturePolicy::json() const {
    return writeRecord(StoredPolicy{*this});
}

}  // namespace vellark
