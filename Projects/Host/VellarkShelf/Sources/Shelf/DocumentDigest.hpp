#pragma once

#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindGuess.hpp>
#include <VellarkDomain/Documents/Kinds/Resolution/DocumentKindResolver.hpp>
#include <VellarkDomain/Documents/Library/DocumentRecord.hpp>
#include <VellarkDomain/Documents/Summary/DocumentSummary.hpp>
#include <VellarkDomain/Documents/Summary/DocumentSummaryExtract.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// What the shelf derives from one revision, worth keeping because deriving it takes a look at the content.
struct DocumentDigest {
    std::string revision;  ///< its identifier
    std::vector<DocumentKind> candidates;
    std::optional<DocumentKindGuess::Level> level;  ///< absent when the classifier said nothing
    bool decided = false;
    DocumentSummary summary;

    [[nodiscard]] std::optional<DocumentKindGuess> guess() const;

    bool operator==(const DocumentDigest&) const = default;
};

template <class Fields>
void describe(Fields& fields, DocumentDigest& digest) {
    fields.required("revision", digest.revision);
    fields.required("candidates", digest.candidates);
    fields.optional("level", digest.level);
    fields.required("decided", digest.decided);
    fields.required("summary", digest.summary);
}

namespace DocumentDigests {

/// Longest part of a text that is looked at, in bytes: a page of two hundred thousand characters in any script.
inline constexpr std::size_t readingLimit = 1 << 20;

/// The digest of the document's last revision. Without a content, which may be cut at `readingLimit`, title and path
/// alone are judged.
[[nodiscard]] DocumentDigest make(const DocumentRecord& document, std::optional<std::string_view> content);

/// The raw extract of a text that reads as prose; nothing for any other document.
[[nodiscard]] std::optional<DocumentSummaryExtract> extract(const DocumentRecord& document, std::string_view content,
                                                            bool isComplete);

/// The document's kind: what structure, the writing subagent's role and the digest say.
[[nodiscard]] std::optional<DocumentKindDecision> decide(const DocumentRecord& document, const DocumentDigest* digest);

}  // namespace DocumentDigests

}  // namespace vellark
