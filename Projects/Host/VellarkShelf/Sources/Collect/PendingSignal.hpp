#pragma once

#include <VellarkFoundation/JSON/JSONValue.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// What the helper left for the shelf, one file for each event of an agent.
struct PendingSignal {
    std::string path;
    std::string identifier;  ///< the random part of the file's name, by which a signal is known for ever
    std::string source;
    JSONObject payload;

    /// The text under a key of the payload; "" when there is none.
    [[nodiscard]] std::string_view text(std::string_view key) const;

    /// Whether a subagent sent it.
    [[nodiscard]] bool isSubagents() const;
};

/// The directory of pending signals, as a reader sees it.
namespace PendingSignals {

struct Listing {
    std::vector<PendingSignal> signals;   ///< in the order of their writing
    std::vector<std::string> unknown;     ///< files of another version; they stay where they are
    std::vector<std::string> damaged;     ///< files that are no signals at all
    std::vector<std::string> unfinished;  ///< temporary files that nobody writes any more
    bool exists = false;                  ///< the directory is there and can be listed
};

/// A temporary file that is older, in seconds, belongs to a helper that was killed: one lives for two seconds at most.
inline constexpr double staleAfter = 600;

/// Reads all that is pending. Nothing is changed.
[[nodiscard]] Listing read(const std::string& directory);

/// Takes damaged files out of the way, under a hidden name that counts as pending nowhere, and removes unfinished ones.
void clearLeftovers(const Listing& listing);

}  // namespace PendingSignals

}  // namespace vellark
