#include <VellarkFoundation/Files/BoundedFile.hpp>
#include <VellarkFoundation/Time/TimeText.hpp>
#include <VellarkShelf/Collect/FileContent.hpp>
#include <VellarkShelf/Commands/CommandSupport.hpp>
#include <VellarkShelf/Data/LibraryProblem.hpp>

#include <algorithm>
#include <cstdio>

namespace vellark::Commands {

int problem(std::string_view text) {
    std::fprintf(stderr, "vellark: %.*s\n", static_cast<int>(text.size()), text.data());
    return failed;
}

std::optional<CaptureLibrary> readLibrary(const Context& context) {
    auto contents = LibraryFile::read(context.directory.library());
    if (contents) return std::move(contents->library);
    if (contents.error().reason == LibraryFileError::Reason::notFound) return CaptureLibrary();
    problem(libraryProblem(contents.error()));
    return std::nullopt;
}

const DocumentRecord* findDocument(const CaptureLibrary& library, std::string_view id) {
    const DocumentRecord* found = nullptr;
    for (const DocumentRecord& document : library.documents) {
        if (!document.id.starts_with(id)) continue;
        if (document.id.size() == id.size()) return &document;
        if (found != nullptr) {
            problem("more than one document's identifier begins with " + std::string(id));
            return nullptr;
        }
        found = &document;
    }
    if (found == nullptr) problem("there is no document " + std::string(id));
    return found;
}

std::optional<std::string> readContent(const DocumentRecord& document, std::size_t maximumBytes) {
    const DocumentRevision* latest = document.latestRevision();
    if (latest == nullptr) return std::nullopt;
    auto file = OpenedFile::open(latest->snapshotPath);
    if (!file) return std::nullopt;
    return file->content(maximumBytes);
}

Date now() {
    const timespec moment = TimeText::now();
    return {static_cast<double>(moment.tv_sec) + static_cast<double>(moment.tv_nsec) / 1e9};
}

}  // namespace vellark::Commands
