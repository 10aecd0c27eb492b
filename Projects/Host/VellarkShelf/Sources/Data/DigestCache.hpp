#pragma once

#include <VellarkShelf/Data/DataDirectory.hpp>
#include <VellarkShelf/Shelf/DocumentDigest.hpp>

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vellark {

/// The digests of revisions, kept in "digests.jsonl": one JSON object a line, in no order, a later one of a revision
/// counting before an earlier. Everything in it can be made anew, so a line that cannot be read is left out, and the
/// file may be deleted at any time.
class DigestCache {
public:
    /// What the file holds; nothing when there is none.
    [[nodiscard]] static DigestCache read(const DataDirectory& directory);

    /// A null pointer when the revision has none.
    [[nodiscard]] const DocumentDigest* find(std::string_view revision) const;

    /// Remembers a digest, and notes it for `save`.
    void add(DocumentDigest digest);

    /// Appends what was added to the file. False when it cannot be written.
    bool save();

private:
    void index(DocumentDigest digest);

    explicit DigestCache(std::string path) : path_(std::move(path)) {}

    std::string path_;
    std::deque<DocumentDigest> digests_;  // at addresses that stay
    std::unordered_map<std::string_view, const DocumentDigest*> byRevision_;
    std::string added_;  // lines that the file lacks
};

}  // namespace vellark
