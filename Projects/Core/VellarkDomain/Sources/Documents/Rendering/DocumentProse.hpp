#pragma once

namespace vellark {

struct DocumentRecord;
struct DocumentRevision;

/// Which documents can be read like a letter, and so be summarised and searched by their sentences.
namespace DocumentProse {

/// Whether the document is prose: a PDF, an agent's answer, or text in a format of prose. A video never is. Without a
/// revision, give a null pointer.
[[nodiscard]] bool reads(const DocumentRecord& document, const DocumentRevision* revision);

}  // namespace DocumentProse

}  // namespace vellark
