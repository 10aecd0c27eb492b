#pragma once

#include <VellarkDomain/Documents/DateCoding.hpp>
#include <VellarkFoundation/Records/Enumeration.hpp>
#include <VellarkFoundation/Time/Date.hpp>

#include <string>

namespace vellark {

/// What the agent that wrote a document was asked for.
enum class DocumentFeedbackRequestKind { revise, question, confirm };

template <>
inline constexpr auto caseTable<DocumentFeedbackRequestKind> = std::to_array<CaseName<DocumentFeedbackRequestKind>>({
    {DocumentFeedbackRequestKind::revise, "revise"},
    {DocumentFeedbackRequestKind::question, "question"},
    {DocumentFeedbackRequestKind::confirm, "confirm"},
});

/// The last request that was sent for a document; its words are not kept.
struct DocumentFeedbackRequest {
    std::string documentID;
    std::string revisionID;
    DocumentFeedbackRequestKind kind = DocumentFeedbackRequestKind::revise;
    Date sentAt;

    bool operator==(const DocumentFeedbackRequest&) const = default;
};

template <class Fields>
void describe(Fields& fields, DocumentFeedbackRequest& request) {
    fields.required("documentID", request.documentID);
    fields.required("revisionID", request.revisionID);
    fields.required("kind", request.kind);
    fields.required("sentAt", request.sentAt);
}

}  // namespace vellark
