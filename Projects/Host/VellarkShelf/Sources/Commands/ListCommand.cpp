#include <VellarkShelf/Commands/CommandSupport.hpp>
#include <VellarkShelf/Data/DigestCache.hpp>
#include <VellarkShelf/Shelf/ShelfLine.hpp>
#include <VellarkShelf/Terminal/ShelfTable.hpp>

#include <algorithm>

namespace vellark {

namespace {

// The digest that collecting left, or one made now from what is at hand.
DocumentDigest made(const DocumentRecord& document) {
    return DocumentDigests::make(document, Commands::readContent(document, DocumentDigests::readingLimit));
}

bool belongsTo(const DocumentRecord& document, const std::optional<std::string>& project) {
    return !project || document.project == *project || document.projectRoot == *project;
}

std::vector<const DocumentRecord*> latestFirst(const CaptureLibrary& library, const Commands::ListOptions& options) {
    std::vector<const DocumentRecord*> documents;
    for (const DocumentRecord& document : library.documents) {
        if (belongsTo(document, options.project)) documents.push_back(&document);
    }
    // The moments are of one form, so that their texts are in their order.
    std::stable_sort(documents.begin(), documents.end(), [](const DocumentRecord* left, const DocumentRecord* right) {
        return left->updatedAt > right->updatedAt;
    });
    return documents;
}

}  // namespace

int Commands::list(const Context& context, const ListOptions& options) {
    std::optional<DocumentKind> kind;
    if (options.kind) {
        kind = fromRawValue<DocumentKind>(*options.kind);
        if (!kind) return problem("there is no kind " + *options.kind);
    }
    const auto library = readLibrary(context);
    if (!library) return failed;
    DigestCache digests = DigestCache::read(context.directory);
    ShelfLines lines(now());
    std::vector<ShelfLine> shown;
    for (const DocumentRecord* document : latestFirst(*library, options)) {
        if (options.limit && shown.size() >= *options.limit) break;
        const DocumentRevision* latest = document->latestRevision();
        const DocumentDigest* digest = latest != nullptr ? digests.find(latest->id) : nullptr;
        if (digest == nullptr && latest != nullptr) {
            digests.add(made(*document));
            digest = digests.find(latest->id);
        }
        ShelfLine line = lines.line(*document, digest);
        if (!kind || line.kind == kind) shown.push_back(std::move(line));
    }
    (void)digests.save();  // what was made now need not be made again
    TerminalOutput output(context.environment);
    if (context.json) return writeJSON(output, shown);
    ShelfTable::write(output, shown);
    return finish(output);
}

}  // namespace vellark
