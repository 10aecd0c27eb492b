#include <VellarkDomain/Feedback/DocumentFeedbackAnchor.hpp>
#include <VellarkFoundation/Text/ByteScan.hpp>

#include <charconv>
#include <limits>
#include <span>

namespace vellark {

namespace {

// Whole lines as unsigned numbers: nothing for the wrong way round. The full range of 64 bits fits but for one value,
// which no text has lines for.
std::optional<std::uint64_t> spanOf(std::int64_t startLine, std::int64_t endLine) {
    if (endLine < startLine) return std::nullopt;
    const std::uint64_t distance = static_cast<std::uint64_t>(endLine) - static_cast<std::uint64_t>(startLine);
    if (distance == std::numeric_limits<std::uint64_t>::max()) return std::nullopt;
    return distance + 1;
}

std::optional<std::uint64_t> hashOf(std::string_view anchor) {
    if (anchor.starts_with('+')) anchor.remove_prefix(1);
    std::uint64_t hash = 0;
    const char* const end = anchor.data() + anchor.size();
    const auto [stop, error] = std::from_chars(anchor.data(), end, hash, 16);
    if (error != std::errc() || stop != end) return std::nullopt;
    return hash;
}

// The line, counted from 0, at which the note's stretch begins in the text; nothing when it does not stand there.
std::optional<std::size_t> place(const DocumentFeedbackNote& note, const FeedbackLineIndex& index) {
    if (!index.isSearchable()) return std::nullopt;
    const auto span = spanOf(note.startLine, note.endLine);
    const auto hash = hashOf(note.anchor);
    if (!span || *span > index.lineCount() || !hash) return std::nullopt;

    const auto count = static_cast<std::size_t>(*span);
    if (note.startLine < 1) return index.nearestStretch(*hash, count, 0);
    const auto old = static_cast<std::uint64_t>(note.startLine) - 1;
    if (old >= index.lineCount()) return index.nearestStretch(*hash, count, index.lineCount());
    const auto start = static_cast<std::size_t>(old);
    if (start <= index.lineCount() - count && index.stretchHash(start, count) == *hash) return start;
    return index.nearestStretch(*hash, count, start);
}

}  // namespace

std::vector<std::string_view> DocumentFeedbackAnchor::lines(std::string_view text) {
    std::vector<std::string_view> lines;
    lines.reserve(ByteScan::count(text, '\n') + 1);
    for (std::size_t feed = text.find('\n'); feed != std::string_view::npos; feed = text.find('\n')) {
        std::string_view line = text.substr(0, feed);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(line);
        text.remove_prefix(feed + 1);
    }
    lines.push_back(text);
    return lines;
}

std::optional<std::string> DocumentFeedbackAnchor::fingerprint(std::string_view text, std::int64_t startLine,
                                                               std::int64_t endLine) {
    const auto all = lines(text);
    const auto count = static_cast<std::int64_t>(all.size());
    if (startLine < 1 || endLine < startLine || endLine > count) return std::nullopt;
    const auto first = static_cast<std::size_t>(startLine - 1);
    return fingerprint(std::span(all).subspan(first, static_cast<std::size_t>(endLine) - first));
}

DocumentFeedbackNote DocumentFeedbackAnchor::relocate(const DocumentFeedbackNote& note, std::string_view revisionID,
                                                      const FeedbackLineIndex& index) {
    DocumentFeedbackNote relocated = note;
    const auto start = place(note, index);
    relocated.isStale = !start;
    if (!start) return relocated;
    const std::int64_t span = note.endLine - note.startLine;
    relocated.revisionID = revisionID;
    relocated.startLine = static_cast<std::int64_t>(*start) + 1;
    relocated.endLine = relocated.startLine + span;
    return relocated;
}

DocumentFeedbackNote DocumentFeedbackAnchor::relocate(const DocumentFeedbackNote& note, std::string_view revisionID,
                                                      std::string_view text) {
    return relocate(note, revisionID, FeedbackLineIndex(text));
}

}  // namespace vellark
