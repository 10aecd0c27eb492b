#pragma once

#include <VellarkDomain/Documents/Kinds/DocumentKind.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>

#include <optional>
#include <string>
#include <vector>

namespace vellark {

/// What the shelf shows of a document's text.
struct DocumentSummary {
    std::string headline;               ///< one paragraph that stands for the document
    std::vector<std::string> points;    ///< up to three more
    std::optional<std::string> change;  ///< what this revision changed, when the host knows
    std::optional<DocumentKind> kind;

    /// True when there is nothing to show.
    [[nodiscard]] bool isEmpty() const { return headline.empty() && points.empty() && change.value_or("").empty(); }

    bool operator==(const DocumentSummary&) const = default;
};

/// A kind that is not known (any more), or "other", reads as none: older hosts wrote what they could not name.
template <class Fields>
void describe(Fields& fields, DocumentSummary& summary) {
    fields.required("headline", summary.headline);
    fields.withDefault("points", summary.points, std::vector<std::string>());
    fields.optional("change", summary.change);
    fields.tolerant("kind", summary.kind);
    if constexpr (Fields::isReading) {
        if (summary.kind == DocumentKind::other) summary.kind.reset();
    }
}

}  // namespace vellark
