#include <VellarkDomain/Agents/AgentSourceProfile.hpp>
#include <VellarkLocalization/L10n.hpp>
#include <VellarkShelf/Shelf/ShelfLine.hpp>

#include <time.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace vellark {

namespace {

constexpr double secondsPerDay = 86'400;

std::int64_t localDay(Date date) {
    const auto seconds = static_cast<time_t>(std::floor(date.secondsSince1970));
    tm local{};
    ::localtime_r(&seconds, &local);
    return std::int64_t{local.tm_year} * 400 + local.tm_yday;
}

template <class Key, class Make>
const std::string& remembered(std::map<Key, std::string>& known, const Key& key, Make make) {
    const auto found = known.find(key);
    if (found != known.end()) return found->second;
    return known.emplace(key, make()).first->second;
}

}  // namespace

ShelfLine ShelfLines::line(const DocumentRecord& document, const std::optional<DocumentDigest>& digest) {
    const auto decision = DocumentDigests::decide(document, digest ? &*digest : nullptr);
    const DocumentRevision* latest = document.latestRevision();
    const std::string source = latest != nullptr ? latest->source.value_or(document.source) : document.source;
    return {.id = document.id,
            .kind = decision ? std::optional(decision->kind) : std::nullopt,
            .kindTitle = decision
                             ? remembered(kinds_, decision->kind, [&] { return DocumentKinds::title(decision->kind); })
                             : document.categoryTitle(),
            .title = document.title,
            .headline = digest ? digest->summary.headline : "",
            .source = source,
            .sourceTitle = remembered(sources_, source, [&] { return AgentSourceProfile::providerTitle(source); }),
            .project = document.project,
            .path = document.sourcePath,
            .updatedAt = document.updatedAt,
            .age = age(document.updatedAt),
            .revisions = static_cast<std::int64_t>(document.revisions.size())};
}

// Which dates share their words: those of one second in the first minute, of one minute in the first day, and of one
// day of the local calendar before and after that.
const std::string& ShelfLines::age(const std::string& moment) {
    const auto date = L10n::timestamp(moment);
    if (!date) return remembered(ages_, std::pair(Span::unknown, std::int64_t{0}), [] { return std::string(); });
    const double seconds = std::floor(now_.secondsSince1970 - date->secondsSince1970);
    std::pair key(Span::day, localDay(*date));
    if (std::abs(seconds) < secondsPerDay) {
        key = seconds < 60 ? std::pair(Span::second, static_cast<std::int64_t>(std::max(seconds, 0.0)))
                           : std::pair(Span::minute, static_cast<std::int64_t>(seconds / 60));
    }
    return remembered(ages_, key, [&] { return L10n::shortRelative(*date, now_); });
}

}  // namespace vellark
