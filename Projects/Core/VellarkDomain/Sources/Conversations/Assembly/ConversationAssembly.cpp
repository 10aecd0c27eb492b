// Entries are moved, never copied: the feed of 200,000 entries costs one sort of small keys and two moves of each.

#include <VellarkDomain/Conversations/Assembly/ConversationAssembly.hpp>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <optional>
#include <tuple>
#include <utility>

namespace vellark::ConversationAssembly {

namespace {

// An entry's place in the feed.
struct Place {
    double time;
    std::uint32_t part;
    std::uint32_t index;

    bool operator<(const Place& other) const {
        return std::tie(time, part, index) < std::tie(other.time, other.part, other.index);
    }
};

// A moment that is no number would have no place in an order; it goes last.
double sortable(Date date) {
    const double seconds = date.secondsSince1970;
    return std::isnan(seconds) ? std::numeric_limits<double>::infinity() : seconds;
}

void giveReport(std::vector<ConversationEntry>& entries) {
    const auto isReport = [](const ConversationEntry& entry) { return entry.is<ConversationEntry::Report>(); };
    if (std::any_of(entries.begin(), entries.end(), isReport)) return;
    const auto last = std::find_if(entries.rbegin(), entries.rend(), [](const ConversationEntry& entry) {
        return entry.is<ConversationEntry::Message>() && entry.author.role == ConversationAuthor::Role::subagent;
    });
    if (last != entries.rend()) last->kind = ConversationEntry::Report();
}

void appendPlaces(std::vector<Place>& places, const Part& part, std::size_t partIndex) {
    double time = sortable(part.session.startedAt);
    for (std::size_t index = 0; index < part.entries.size(); ++index) {
        if (part.entries[index].time) time = sortable(*part.entries[index].time);
        places.push_back({time, static_cast<std::uint32_t>(partIndex), static_cast<std::uint32_t>(index)});
    }
}

}  // namespace

std::vector<ConversationEntry> merged(std::vector<ConversationEntry> entries) {
    std::size_t kept = 0;
    std::optional<ConversationActivityFold> fold;  // of the last kept entry, once a second activity has joined it
    for (std::size_t index = 0; index < entries.size(); ++index) {
        ConversationEntry& entry = entries[index];
        const auto* activity = std::get_if<ConversationActivity>(&entry.kind);
        ConversationEntry* last = kept > 0 ? &entries[kept - 1] : nullptr;
        auto* lastActivity = last != nullptr ? std::get_if<ConversationActivity>(&last->kind) : nullptr;
        if (activity != nullptr && lastActivity != nullptr && entry.topic == last->topic) {
            if (!fold) fold.emplace(*lastActivity);
            fold->merge(*activity);
            std::move(entry.todos.begin(), entry.todos.end(), std::back_inserter(last->todos));
            continue;
        }
        fold.reset();
        if (kept != index) entries[kept] = std::move(entry);
        ++kept;
    }
    entries.resize(kept);
    return entries;
}

std::vector<ConversationEntry> feed(std::vector<Part> parts) {
    std::size_t count = 0;
    for (Part& part : parts) {
        part.entries = merged(std::move(part.entries));
        if (!part.isRoot && part.session.finished) giveReport(part.entries);
        count += part.entries.size();
    }
    std::vector<Place> places;
    places.reserve(count);
    for (std::size_t index = 0; index < parts.size(); ++index)
        appendPlaces(places, parts[index], index);
    std::sort(places.begin(), places.end());
    std::vector<ConversationEntry> result;
    result.reserve(count);
    for (const Place& place : places)
        result.push_back(std::move(parts[place.part].entries[place.index]));
    return result;
}

}  // namespace vellark::ConversationAssembly
