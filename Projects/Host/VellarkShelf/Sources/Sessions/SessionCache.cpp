#include <VellarkFoundation/Files/BoundedFile.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>
#include <VellarkShelf/Data/DataDirectory.hpp>
#include <VellarkShelf/Sessions/SessionCache.hpp>

namespace vellark {

namespace {

constexpr std::size_t maximumBytes = std::size_t{1} << 30;

struct CacheFile {
    std::int64_t version = 0;
    std::vector<SessionSummary> summaries;
};

template <class Fields>
void describe(Fields& fields, CacheFile& file) {
    fields.required("version", file.version);
    fields.required("summaries", file.summaries);
}

}  // namespace

SessionCache SessionCache::read(const std::string& path) {
    SessionCache cache;
    const auto text = BoundedFile::read(path, maximumBytes);
    auto file = text ? readRecord<CacheFile>(std::string_view(*text)) : failure(DecodingError());
    if (!file || file->version != currentVersion) return cache;
    for (SessionSummary& summary : file->summaries) {
        std::string key = summary.path;
        cache.summaries_.insert_or_assign(std::move(key), std::move(summary));
    }
    return cache;
}

std::optional<SessionSummary> SessionCache::take(const std::string& path,
                                                 const std::vector<std::int64_t>& fingerprint) {
    const auto found = summaries_.find(path);
    if (found == summaries_.end() || found->second.fingerprint != fingerprint) return std::nullopt;
    auto summary = std::move(found->second);
    summaries_.erase(found);
    return summary;
}

bool SessionCache::write(const std::string& path, std::vector<SessionSummary> summaries) {
    const auto text = writeRecord(CacheFile{.version = currentVersion, .summaries = std::move(summaries)});
    return text && DataDirectory::replace(path, *text);
}

}  // namespace vellark
