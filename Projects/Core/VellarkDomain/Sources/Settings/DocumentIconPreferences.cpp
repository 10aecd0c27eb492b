#include <VellarkDomain/Capture/Preferences/CapturePreferences.hpp>
#include <VellarkDomain/Settings/DocumentIconDescriptor.hpp>
#include <VellarkDomain/Settings/DocumentIconPreferences.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>

#include <utility>

namespace vellark {

namespace {

template <class Value>
std::optional<Value> find(const std::map<std::string, Value>& table, const std::optional<std::string>& key) {
    if (!key) return std::nullopt;
    const auto found = table.find(*key);
    return found == table.end() ? std::nullopt : std::optional(found->second);
}

template <class Value, class Other>
void set(std::map<std::string, Value>& table, std::map<std::string, Other>& other, const std::string& key,
         std::optional<Value> value) {
    other.erase(key);
    if (value) {
        table.insert_or_assign(key, *value);
    } else {
        table.erase(key);
    }
}

template <class Value, class Other>
void dropShadowed(std::map<std::string, Value>& kinds, const std::map<std::string, Other>& icons) {
    std::erase_if(kinds, [&icons](const auto& entry) { return icons.contains(entry.first); });
}

// A stored dictionary whose entries may come from a newer program.
template <class Value>
struct LenientDictionary {
    std::map<std::string, Value> entries;
};

template <class Value>
bool decodeValue(JSONNode node, LenientDictionary<Value>& dictionary, DecodingContext& context) {
    if (node.kind() != JSONKind::object) return context.fail(DecodingError::Reason::wrongType);
    for (const auto& [key, member] : node.members()) {
        const auto text = member.string();
        const auto value = text ? fromRawValue<Value>(*text) : std::nullopt;
        if (value) {
            dictionary.entries.insert_or_assign(std::string(key), *value);
        } else {
            dictionary.entries.erase(std::string(key));  // of equal keys the last counts
        }
    }
    return true;
}

struct Stored {
    LenientDictionary<DocumentIconPreset> documents;
    LenientDictionary<DocumentIconPreset> extensions;
    LenientDictionary<DocumentKind> documentKinds;
    LenientDictionary<DocumentKind> extensionKinds;
};

template <class Fields>
void describe(Fields& fields, Stored& stored) {
    fields.withDefault("documents", stored.documents, LenientDictionary<DocumentIconPreset>());
    fields.withDefault("extensions", stored.extensions, LenientDictionary<DocumentIconPreset>());
    fields.withDefault("documentKinds", stored.documentKinds, LenientDictionary<DocumentKind>());
    fields.withDefault("extensionKinds", stored.extensionKinds, LenientDictionary<DocumentKind>());
}

}  // namespace

std::optional<DocumentIconPreset> DocumentIconPreferences::preset(const DocumentRecord& record,
                                                                  const DocumentRevision* revision) const {
    const auto own = find(documents, record.id);
    return own ? own : automaticPreset(record, revision);
}

bool DocumentIconPreferences::choosesPreset(const DocumentRecord& record, const DocumentRevision* revision) const {
    if (documents.contains(record.id)) return true;
    if (documentKinds.contains(record.id) || extensions.empty()) return false;
    return find(extensions, DocumentIconDescriptor::fileExtension(record, revision)).has_value();
}

std::optional<DocumentKind> DocumentIconPreferences::chosenKind(const DocumentRecord& record,
                                                                const DocumentRevision* revision) const {
    if (const auto own = find(documentKinds, record.id)) return own;
    if (documents.contains(record.id) || extensionKinds.empty()) return std::nullopt;
    return find(extensionKinds, DocumentIconDescriptor::fileExtension(record, revision));
}

std::optional<DocumentIconPreset> DocumentIconPreferences::automaticPreset(const DocumentRecord& record,
                                                                           const DocumentRevision* revision) const {
    if (!extensions.empty()) {
        const auto chosen = find(extensions, DocumentIconDescriptor::fileExtension(record, revision));
        if (chosen) return chosen;
    }
    return DocumentIconDescriptor::defaultPreset(record, revision);
}

std::optional<DocumentFileType> DocumentIconPreferences::automaticFileType(const DocumentRecord& record,
                                                                           const DocumentRevision* revision) const {
    const bool isChosen =
        !extensions.empty() && find(extensions, DocumentIconDescriptor::fileExtension(record, revision)).has_value();
    return isChosen ? std::nullopt : DocumentIconDescriptor::fileType(record, revision);
}

void DocumentIconPreferences::setDocument(std::string_view id, std::optional<DocumentIconPreset> preset) {
    if (!id.empty()) set(documents, documentKinds, std::string(id), preset);
}

void DocumentIconPreferences::setDocument(std::string_view id, std::optional<DocumentKind> kind) {
    if (!id.empty()) set(documentKinds, documents, std::string(id), kind);
}

void DocumentIconPreferences::setExtension(std::string_view text, std::optional<DocumentIconPreset> preset) {
    if (const auto key = CapturePreferences::normalizedExtension(text)) set(extensions, extensionKinds, *key, preset);
}

void DocumentIconPreferences::setExtension(std::string_view text, std::optional<DocumentKind> kind) {
    if (const auto key = CapturePreferences::normalizedExtension(text)) set(extensionKinds, extensions, *key, kind);
}

bool decodeValue(JSONNode node, DocumentIconPreferences& preferences, DecodingContext& context) {
    Stored stored;
    if (!decodeValue(node, stored, context)) return false;
    preferences = {.documents = std::move(stored.documents.entries),
                   .extensions = std::move(stored.extensions.entries),
                   .documentKinds = std::move(stored.documentKinds.entries),
                   .extensionKinds = std::move(stored.extensionKinds.entries)};
    dropShadowed(preferences.documentKinds, preferences.documents);
    dropShadowed(preferences.extensionKinds, preferences.extensions);
    return true;
}

}  // namespace vellark
