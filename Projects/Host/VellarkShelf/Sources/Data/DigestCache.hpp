#pragma once

#include <VellarkShelf/Data/DataDirectory.hpp>
#include <VellarkShelf/Shelf/DocumentDigest.hpp>

#include <deque>
#include <memory>
#include <memory_resource>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace vellark {

/// The digests of revisions, kept in "digests.jsonl": one JSON object a line, in no order, a later one of a revision
/// counting before an earlier. Everything in it can be made anew, so a line that cannot be read is left out, and the
/// file may be deleted at any time.
class DigestCache {
public:
    /// What the file holds; nothing when there is none.
    [[nodiscard]] static DigestCache read(const DataDirectory& directory);

    /// Nothing when the revision has none.
    [[nodiscard]] std::optional<DocumentDigest> find(std::string_view revision) const;

    /// Remembers a digest, and notes it for `save`.
    void add(const DocumentDigest& digest);

    /// Appends what was added to the file. False when it cannot be written.
    bool save();

private:
    explicit DigestCache(std::string path) : path_(std::move(path)) {}

    // Lines are parsed when they are asked for. A shelf has many, and most questions are about few of them.
    struct Lines {
        std::string text;              // of the file
        std::deque<std::string> more;  // texts that stand nowhere in it
        std::pmr::monotonic_buffer_resource memory;
        std::pmr::unordered_map<std::string_view, std::string_view> byRevision{&memory};
    };

    static void index(Lines& lines, std::string_view line);

    std::string path_;
    std::unique_ptr<Lines> lines_ = std::make_unique<Lines>();  // views of its texts stay good when this moves
    std::string added_;                                         // lines that the file lacks
};

}  // namespace vellark
