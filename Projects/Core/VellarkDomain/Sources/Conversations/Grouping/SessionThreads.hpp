#pragma once

#include <VellarkDomain/Conversations/Records/ConversationSession.hpp>

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace vellark {

/// The threads of sessions and what hangs below them. A thread is known by its key, the agent and the thread's
/// identifier joined by ":"; several sessions may be of one thread. Threads and sessions are meant by their places, in
/// the order of first appearance. The sessions must outlive it.
class SessionThreads {
public:
    using Place = std::uint32_t;
    using Sessions = std::vector<const ConversationSession*>;

    explicit SessionThreads(std::span<const ConversationSession> sessions);

    [[nodiscard]] std::size_t count() const { return threads_.size(); }
    [[nodiscard]] const std::string& key(Place thread) const { return threads_[thread].key; }
    [[nodiscard]] const Sessions& sessions(Place thread) const { return threads_[thread].sessions; }

    /// For each thread the sessions of the group that it heads: its own and those of all threads whose root it is. With
    /// `everyThread` a thread that is no root heads a group too, of itself and all that is below it.
    [[nodiscard]] std::vector<Sessions> groups(bool everyThread) const;

private:
    struct Thread {
        std::string key;
        Sessions sessions;
        std::optional<Place> parent;  // of those that were read
    };

    [[nodiscard]] std::vector<Place> lineage(Place thread) const;

    std::vector<Thread> threads_;
};

}  // namespace vellark
