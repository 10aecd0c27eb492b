#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

namespace vellark {

/// A folder of the user's making.
struct DocumentCollection {
    std::string id;
    std::string name;

    bool operator==(const DocumentCollection&) const = default;
};

template <class Fields>
void describe(Fields& fields, DocumentCollection& collection) {
    fields.required("id", collection.id);
    fields.required("name", collection.name);
}

/// How the user has ordered the library. Everything is keyed by a document's id.
struct LibraryOrganization {
    std::vector<DocumentCollection> collections;             ///< in the user's order
    std::map<std::string, std::string> documentCollections;  ///< the id of the document's collection
    std::set<std::string> favoriteDocumentIDs;
    std::map<std::string, std::string> documentSourceWebsiteURLs;  ///< only addresses that DocumentWebsiteURL lets pass

    LibraryOrganization() = default;

    /// Leaves out the addresses that DocumentWebsiteURL refuses.
    LibraryOrganization(std::vector<DocumentCollection> collections,
                        std::map<std::string, std::string> documentCollections,
                        std::set<std::string> favoriteDocumentIDs = {},
                        std::map<std::string, std::string> documentSourceWebsiteURLs = {});

    /// Drops addresses that have become invalid, and any that would be stored in another form.
    void dropInvalidAddresses();

    bool operator==(const LibraryOrganization&) const = default;
};

/// Files from before favourites and websites lack their keys.
template <class Fields>
void describe(Fields& fields, LibraryOrganization& organization) {
    fields.required("collections", organization.collections);
    fields.required("documentCollections", organization.documentCollections);
    fields.whenAbsent("favoriteDocumentIDs", organization.favoriteDocumentIDs, std::set<std::string>());
    fields.withDefault("documentSourceWebsiteURLs", organization.documentSourceWebsiteURLs,
                       std::map<std::string, std::string>());
    if constexpr (Fields::isReading) organization.dropInvalidAddresses();
}

}  // namespace vellark
