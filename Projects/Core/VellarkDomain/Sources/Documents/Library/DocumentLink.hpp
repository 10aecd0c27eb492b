#pragma once

#include <VellarkFoundation/Records/Enumeration.hpp>

#include <string>
#include <vector>

namespace vellark {

/// How one document points to another.
enum class DocumentLinkKind { wiki, markdown, project };

template <>
inline constexpr auto caseTable<DocumentLinkKind> = std::to_array<CaseName<DocumentLinkKind>>({
    {DocumentLinkKind::wiki, "wiki"},
    {DocumentLinkKind::markdown, "markdown"},
    {DocumentLinkKind::project, "project"},
});

/// A link between two documents of the library.
struct DocumentLink {
    std::string sourceID;
    std::string targetID;
    std::string label;
    DocumentLinkKind kind = DocumentLinkKind::wiki;

    /// Source, kind and target, joined by colons.
    [[nodiscard]] std::string id() const { return sourceID + ":" + std::string(rawValue(kind)) + ":" + targetID; }

    bool operator==(const DocumentLink&) const = default;
};

template <class Fields>
void describe(Fields& fields, DocumentLink& link) {
    fields.required("sourceID", link.sourceID);
    fields.required("targetID", link.targetID);
    fields.required("label", link.label);
    fields.required("kind", link.kind);
}

/// All links that were found, and whether links that the project only suggests are among them.
struct DocumentLinkGraph {
    std::vector<DocumentLink> links;
    bool projectSuggestionsIncluded = false;

    bool operator==(const DocumentLinkGraph&) const = default;
};

template <class Fields>
void describe(Fields& fields, DocumentLinkGraph& graph) {
    fields.required("links", graph.links);
    fields.required("projectSuggestionsIncluded", graph.projectSuggestionsIncluded);
}

}  // namespace vellark
