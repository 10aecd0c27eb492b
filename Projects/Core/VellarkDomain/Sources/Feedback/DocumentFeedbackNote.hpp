#pragma once

#include <VellarkDomain/Documents/DateCoding.hpp>
#include <VellarkFoundation/Time/Date.hpp>

#include <cstddef>
#include <cstdint>
#include <string>

namespace vellark {

/// What a reader wrote on some lines of one revision of a document. The lines themselves are not kept, only their
/// fingerprint (DocumentFeedbackAnchor), by which the note follows them into later revisions.
struct DocumentFeedbackNote {
    static constexpr std::size_t maximumTextLength = 2'000;  ///< user-perceived characters
    static constexpr std::int64_t maximumLineSpan = 400;     ///< lines; bounds what it costs to find them again
    static constexpr std::size_t maximumAnchorLength = 32;   ///< characters: twice what a fingerprint has

    std::string id;
    std::string documentID;
    std::string revisionID;      ///< the revision that the lines are counted in
    std::int64_t startLine = 1;  ///< counted from 1
    std::int64_t endLine = 1;    ///< included
    std::string anchor;
    std::string text;
    bool isStale = false;  ///< the lines were not found in a later revision
    Date createdAt;
    Date updatedAt = createdAt;

    /// Whether the note has its identifiers, a span of lines and texts within the limits. The anchor may be any text:
    /// one that is no fingerprint only makes the note stale.
    [[nodiscard]] bool isValid() const;

    bool operator==(const DocumentFeedbackNote&) const = default;
};

template <class Fields>
void describe(Fields& fields, DocumentFeedbackNote& note) {
    fields.required("id", note.id);
    fields.required("documentID", note.documentID);
    fields.required("revisionID", note.revisionID);
    fields.required("startLine", note.startLine);
    fields.required("endLine", note.endLine);
    fields.required("anchor", note.anchor);
    fields.required("text", note.text);
    fields.required("isStale", note.isStale);
    fields.required("createdAt", note.createdAt);
    fields.required("updatedAt", note.updatedAt);
}

}  // namespace vellark
