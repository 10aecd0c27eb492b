#pragma once

#include <VellarkDomain/Documents/Kinds/DocumentIconPreset.hpp>
#include <VellarkDomain/Documents/Kinds/DocumentKind.hpp>
#include <VellarkDomain/Documents/Library/DocumentRecord.hpp>
#include <VellarkDomain/Settings/DocumentFileType.hpp>
#include <VellarkFoundation/JSON/JSONDocument.hpp>

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace vellark {

class DecodingContext;

/// The icons and kinds that the user chose himself, for single documents and for extensions. What has an icon has no
/// kind, and the other way round. A revision that is not given is the record's last one.
struct DocumentIconPreferences {
    using Presets = std::map<std::string, DocumentIconPreset>;
    using Kinds = std::map<std::string, DocumentKind>;

    Presets documents;     ///< by document identifier
    Presets extensions;    ///< by normalised extension
    Kinds documentKinds;   ///< by document identifier
    Kinds extensionKinds;  ///< by normalised extension

    /// The icon to show: the document's, its extension's, or the built-in one.
    [[nodiscard]] std::optional<DocumentIconPreset> preset(const DocumentRecord& record,
                                                           const DocumentRevision* revision = nullptr) const;

    /// Whether the user chose that icon.
    [[nodiscard]] bool choosesPreset(const DocumentRecord& record, const DocumentRevision* revision = nullptr) const;

    /// The kind that the user chose; an icon chosen for the document silences that of its extension.
    [[nodiscard]] std::optional<DocumentKind> chosenKind(const DocumentRecord& record,
                                                         const DocumentRevision* revision = nullptr) const;

    /// The icon that the document would have without a choice of its own.
    [[nodiscard]] std::optional<DocumentIconPreset> automaticPreset(const DocumentRecord& record,
                                                                    const DocumentRevision* revision = nullptr) const;

    /// The file's type, unless the user gave its extension an icon.
    [[nodiscard]] std::optional<DocumentFileType> automaticFileType(const DocumentRecord& record,
                                                                    const DocumentRevision* revision = nullptr) const;

    /// Chooses for a document, or with nothing takes the choice back. An empty identifier changes nothing.
    void setDocument(std::string_view id, std::optional<DocumentIconPreset> preset);
    void setDocument(std::string_view id, std::optional<DocumentKind> kind);

    /// Chooses for an extension, which is normalised first; a text that is no extension changes nothing.
    void setExtension(std::string_view text, std::optional<DocumentIconPreset> preset);
    void setExtension(std::string_view text, std::optional<DocumentKind> kind);

    bool operator==(const DocumentIconPreferences&) const = default;
};

/// Reads a stored record. An entry that names nothing known is dropped, and of an icon and a kind under one key the
/// icon stays; a dictionary that is no object fails.
bool decodeValue(JSONNode node, DocumentIconPreferences& preferences, DecodingContext& context);

/// Writing and hashing. Reading goes through `decodeValue` above.
template <class Fields>
void describe(Fields& fields, DocumentIconPreferences& preferences) {
    fields.required("documents", preferences.documents);
    fields.required("extensions", preferences.extensions);
    fields.required("documentKinds", preferences.documentKinds);
    fields.required("extensionKinds", preferences.extensionKinds);
}

}  // namespace vellark
