#pragma once

#include <VellarkDomain/Documents/Kinds/DocumentKind.hpp>
#include <VellarkDomain/Documents/Library/DocumentRecord.hpp>
#include <VellarkFoundation/Time/Date.hpp>
#include <VellarkShelf/Shelf/DocumentDigest.hpp>

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>

namespace vellark {

/// One document as a list shows it.
struct ShelfLine {
    std::string id;
    std::optional<DocumentKind> kind;
    std::string kindTitle;  ///< of the category where there is no kind
    std::string title;
    std::string headline;  ///< "" when the document does not read as prose
    std::string source;
    std::string sourceTitle;
    std::string project;
    std::optional<std::string> path;
    std::string updatedAt;
    std::string age;  ///< how long ago that was
    std::int64_t revisions = 0;

    bool operator==(const ShelfLine&) const = default;
};

template <class Fields>
void describe(Fields& fields, ShelfLine& line) {
    fields.required("id", line.id);
    fields.optional("kind", line.kind);
    fields.required("kindTitle", line.kindTitle);
    fields.required("title", line.title);
    fields.required("headline", line.headline);
    fields.required("source", line.source);
    fields.required("sourceTitle", line.sourceTitle);
    fields.required("project", line.project);
    fields.optional("path", line.path);
    fields.required("updatedAt", line.updatedAt);
    fields.required("age", line.age);
    fields.required("revisions", line.revisions);
}

/// Makes lines in the user's language. It remembers the words that lines share, so that a list of a hundred thousand
/// costs no more words than there are.
class ShelfLines {
public:
    explicit ShelfLines(Date now) : now_(now) {}

    [[nodiscard]] ShelfLine line(const DocumentRecord& document, const std::optional<DocumentDigest>& digest);

private:
    enum class Span { unknown, second, minute, day };

    const std::string& age(const std::string& moment);

    Date now_;
    std::map<DocumentKind, std::string> kinds_;
    std::map<std::string, std::string> sources_;
    std::map<std::pair<Span, std::int64_t>, std::string> ages_;
};

}  // namespace vellark
