#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindClassifier.hpp>
#include <VellarkDomain/Documents/Rendering/DocumentContentFormat.hpp>
#include <VellarkDomain/Documents/Rendering/DocumentProse.hpp>
#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkShelf/Shelf/DocumentDigest.hpp>

namespace vellark {

std::optional<DocumentKindGuess> DocumentDigest::guess() const {
    if (!level) return std::nullopt;
    return DocumentKindGuess{.candidates = candidates, .level = *level, .decided = decided};
}

std::optional<DocumentSummaryExtract> DocumentDigests::extract(const DocumentRecord& document, std::string_view content,
                                                               bool isComplete) {
    const DocumentRevision* revision = document.latestRevision();
    if (!document.supportsTextContent() || !DocumentProse::reads(document, revision)) return std::nullopt;
    return DocumentSummaryExtractor::extract(content, DocumentContentFormat::resolve(document, revision), isComplete);
}

DocumentDigest DocumentDigests::make(const DocumentRecord& document, std::optional<std::string_view> content) {
    const DocumentRevision* revision = document.latestRevision();
    DocumentDigest digest{.revision = revision != nullptr ? revision->id : ""};
    const bool isReadable = content && DocumentKindResolver::readsContent(document, revision);
    if (DocumentKindResolver::applies(document, revision)) {
        DocumentKindEvidence evidence = DocumentKindResolver::evidence(document);
        if (isReadable) {
            evidence.read(*content, {.html = DocumentContentFormat::resolve(document, revision).isHTML()});
        }
        if (const auto guess = DocumentKindClassifier::classify(evidence)) {
            digest.candidates = guess->candidates;
            digest.level = guess->level;
            digest.decided = guess->decided;
        }
    }
    if (content) {
        if (const auto extracted = extract(document, *content, content->size() < readingLimit)) {
            digest.summary = extracted->fallback(extracted->headings);
        }
    }
    return digest;
}

std::optional<DocumentKindDecision> DocumentDigests::decide(const DocumentRecord& document,
                                                            const DocumentDigest* digest) {
    return DocumentKindResolver::resolve(
        {.structure = DocumentKindResolver::structure(document, document.latestRevision()),
         .role = DocumentKindResolver::creatorRole(document),
         .keywords = digest != nullptr ? digest->guess() : std::nullopt});
}

}  // namespace vellark
