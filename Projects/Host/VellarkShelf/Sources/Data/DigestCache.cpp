#include <VellarkFoundation/Files/BoundedFile.hpp>
#include <VellarkFoundation/Files/FileDescriptor.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>
#include <VellarkShelf/Data/DigestCache.hpp>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <limits>

namespace vellark {

DigestCache DigestCache::read(const DataDirectory& directory) {
    DigestCache cache(directory.digests());
    const auto text = BoundedFile::read(cache.path_, std::numeric_limits<std::uint32_t>::max());
    if (!text) return cache;
    std::string_view rest = *text;
    cache.byRevision_.reserve(static_cast<std::size_t>(std::count(rest.begin(), rest.end(), '\n')));
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        if (auto digest = readRecord<DocumentDigest>(rest.substr(0, end))) cache.index(*std::move(digest));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return cache;
}

const DocumentDigest* DigestCache::find(std::string_view revision) const {
    const auto found = byRevision_.find(revision);
    return found == byRevision_.end() ? nullptr : found->second;
}

void DigestCache::index(DocumentDigest digest) {
    digests_.push_back(std::move(digest));
    const DocumentDigest& kept = digests_.back();
    byRevision_.insert_or_assign(kept.revision, &kept);
}

void DigestCache::add(DocumentDigest digest) {
    if (const auto line = writeRecord(digest)) added_ += *line + "\n";
    index(std::move(digest));
}

bool DigestCache::save() {
    if (added_.empty()) return true;
    const FileDescriptor file(
        ::open(path_.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600));
    if (!file.isOpen()) return false;
    // One write, behind a line feed that ends whatever an interrupted one has left.
    const std::string lines = "\n" + added_;
    std::string_view rest = lines;
    while (!rest.empty()) {
        const ssize_t count = ::write(file.get(), rest.data(), rest.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        rest.remove_prefix(static_cast<std::size_t>(count));
    }
    added_.clear();
    return true;
}

}  // namespace vellark
