#include <VellarkDomain/Documents/Library/LibraryOrganization.hpp>
#include <VellarkDomain/Documents/Rendering/DocumentWebsiteURL.hpp>

#include <utility>

namespace vellark {

LibraryOrganization::LibraryOrganization(std::vector<DocumentCollection> someCollections,
                                         std::map<std::string, std::string> collectionsOfDocuments,
                                         std::set<std::string> favorites, std::map<std::string, std::string> websites)
    : collections(std::move(someCollections)),
      documentCollections(std::move(collectionsOfDocuments)),
      favoriteDocumentIDs(std::move(favorites)),
      documentSourceWebsiteURLs(std::move(websites)) {
    dropInvalidAddresses();
}

void LibraryOrganization::dropInvalidAddresses() {
    std::erase_if(documentSourceWebsiteURLs,
                  [](const auto& entry) { return DocumentWebsiteURL::validated(entry.second) != entry.second; });
}

}  // namespace vellark
