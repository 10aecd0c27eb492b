#pragma once

#include <VellarkShelf/Sessions/SessionSummary.hpp>

#include <string>
#include <unordered_map>
#include <vector>

namespace vellark {

/// Remembers the summaries of record files between two runs, in the data directory's "sessions.json". A summary counts
/// as long as its file has the same fingerprint. A file that is missing, damaged or of another version counts as empty;
/// it is only ever replaced whole.
class SessionCache {
public:
    static constexpr std::int64_t currentVersion = 1;

    [[nodiscard]] static SessionCache read(const std::string& path);

    /// The summary of a file with this fingerprint, which leaves the cache.
    [[nodiscard]] std::optional<SessionSummary> take(const std::string& path,
                                                     const std::vector<std::int64_t>& fingerprint);

    /// How many have not been taken: their files are gone or have changed.
    [[nodiscard]] std::size_t remaining() const { return summaries_.size(); }

    /// Puts these summaries, and no others, into the file. False when it cannot be written.
    static bool write(const std::string& path, std::vector<SessionSummary> summaries);

private:
    std::unordered_map<std::string, SessionSummary> summaries_;  // by path
};

}  // namespace vellark
