#include <VellarkDomain/Documents/Library/DocumentRecord.hpp>
#include <VellarkDomain/Documents/Rendering/DocumentContentFormat.hpp>
#include <VellarkDomain/Documents/Rendering/DocumentProse.hpp>

namespace vellark::DocumentProse {

bool reads(const DocumentRecord& document, const DocumentRevision* revision) {
    const ArtifactCategory category = document.category();
    if (category == ArtifactCategory::videos) return false;
    if (document.kind == "candidate" || category == ArtifactCategory::pdfs) return true;
    if (!document.supportsTextContent()) return false;
    return DocumentContentFormat::resolve(document, revision).isProse();
}

}  // namespace vellark::DocumentProse
