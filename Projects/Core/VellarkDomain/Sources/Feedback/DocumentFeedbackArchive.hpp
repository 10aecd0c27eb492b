#pragma once

#include <VellarkDomain/Feedback/DocumentFeedbackNote.hpp>
#include <VellarkDomain/Feedback/DocumentFeedbackRequest.hpp>

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace vellark {

/// All notes and requests, as one file holds them.
struct DocumentFeedbackArchive {
    static constexpr std::int64_t currentVersion = 1;
    static constexpr std::size_t maximumNotes = 5'000;  ///< the file is read and written whole
    static constexpr std::size_t maximumRequests = 5'000;

    std::int64_t version = currentVersion;
    std::vector<DocumentFeedbackNote> notes;                  ///< in the order in which they were written
    std::map<std::string, DocumentFeedbackRequest> requests;  ///< by the document's identifier

    [[nodiscard]] static DocumentFeedbackArchive empty() { return {}; }

    /// What of the archive can be kept, in the current version. It never fails:
    ///
    /// - of the valid notes the first with each identifier, and of those the last `maximumNotes`;
    /// - the requests that stand under their own document and name a revision, and of those the `maximumRequests` that
    ///   were sent last. Of requests sent at one moment the one with the lower key counts as later; one whose moment is
    ///   no number counts as the earliest.
    [[nodiscard]] DocumentFeedbackArchive validated() const;

    bool operator==(const DocumentFeedbackArchive&) const = default;
};

template <class Fields>
void describe(Fields& fields, DocumentFeedbackArchive& archive) {
    fields.required("version", archive.version);
    fields.required("notes", archive.notes);
    fields.required("requests", archive.requests);
}

}  // namespace vellark
