#pragma once

#include <VellarkDomain/Conversations/Records/AgentConversation.hpp>
#include <VellarkDomain/Conversations/Records/ConversationTextLocation.hpp>

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

namespace vellark {

/// Finds a conversation's runs by what records say of them. Of runs that share a text the last one is found. The runs
/// must outlive the index.
class ConversationRunIndex {
public:
    using Place = std::optional<std::size_t>;

    explicit ConversationRunIndex(std::span<const ConversationRun> runs);

    /// The run that the tool call started.
    [[nodiscard]] Place ofDelegation(const std::optional<std::string>& callID) const;

    /// The run whose record holds the place: by its file, and by its thread where threads share the file.
    [[nodiscard]] Place ofLocation(const std::optional<ConversationTextLocation>& location);

    [[nodiscard]] Place ofThread(std::string_view threadID) const { return found(threads_, threadID); }
    [[nodiscard]] Place ofName(std::string_view name) const { return found(names_, name); }

    /// By its thread, or the last component of its thread.
    [[nodiscard]] Place ofAlias(std::string_view alias) const { return found(aliases_, alias); }

private:
    using Table = std::unordered_map<std::string_view, std::size_t>;

    template <class Map>
    static Place found(const Map& table, const typename Map::key_type& key) {
        const auto row = table.find(key);
        return row == table.end() ? std::nullopt : Place(row->second);
    }

    Table delegations_;
    Table threads_;
    Table aliases_;
    Table names_;
    std::unordered_map<std::string, std::size_t> paths_;
    std::string key_;  // of the location that is looked up; kept for its memory
};

}  // namespace vellark
