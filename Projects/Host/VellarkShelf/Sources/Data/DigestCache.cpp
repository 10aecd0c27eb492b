#include <VellarkFoundation/Files/BoundedFile.hpp>
#include <VellarkFoundation/Files/FileDescriptor.hpp>
#include <VellarkFoundation/Files/FileTransfer.hpp>
#include <VellarkFoundation/JSON/JSONCursor.hpp>
#include <VellarkFoundation/Records/DirectRecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkShelf/Data/DigestCache.hpp>

#include <fcntl.h>

#include <algorithm>
#include <limits>

namespace vellark {

DigestCache DigestCache::read(const DataDirectory& directory) {
    DigestCache cache(directory.digests());
    auto text = BoundedFile::read(cache.path_, std::numeric_limits<std::uint32_t>::max());
    if (!text) return cache;
    Lines& lines = *cache.lines_;
    lines.text = *std::move(text);
    std::string_view rest = lines.text;
    lines.byRevision.reserve(static_cast<std::size_t>(std::count(rest.begin(), rest.end(), '\n')));
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        index(lines, rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return cache;
}

// A line of ours begins with the revision. Of any other one the revision is found by reading all of it.
void DigestCache::index(Lines& lines, std::string_view line) {
    if (!UTF8::isValid(line)) return;
    JSONCursor cursor(line);
    JSONCursor::StringNode revision;
    if (cursor.open('{') && cursor.takeKey("revision") && cursor.plainString(revision)) {
        lines.byRevision.insert_or_assign(*revision.node().string(), line);
        return;
    }
    if (const auto digest = readRecord<DocumentDigest>(line)) {
        const std::string& key = lines.more.emplace_back(digest->revision);
        lines.byRevision.insert_or_assign(key, line);
    }
}

std::optional<DocumentDigest> DigestCache::find(std::string_view revision) const {
    const auto found = lines_->byRevision.find(revision);
    if (found == lines_->byRevision.end()) return std::nullopt;
    std::optional<DocumentDigest> digest(std::in_place);
    JSONCursor cursor(found->second);  // over a line of ours; `index` has seen that it is UTF-8
    if (readDirectly(cursor, *digest) && cursor.isAtEnd()) return digest;
    auto read = readRecord<DocumentDigest>(found->second);
    if (!read) return std::nullopt;
    digest = *std::move(read);
    return digest;
}

void DigestCache::add(const DocumentDigest& digest) {
    const auto line = writeRecord(digest);
    if (!line) return;
    added_ += *line + "\n";
    index(*lines_, lines_->more.emplace_back(*line));
}

bool DigestCache::save() {
    if (added_.empty()) return true;
    const FileDescriptor file(
        ::open(path_.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600));
    if (!file.isOpen()) return false;
    // One write, behind a line feed that ends whatever an interrupted one has left.
    const std::string lines = "\n" + added_;
    if (!FileTransfer::write(file.get(), lines)) return false;
    added_.clear();
    return true;
}

}  // namespace vellark
