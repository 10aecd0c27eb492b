#pragma once

#include <VellarkDomain/Feedback/DocumentFeedbackNote.hpp>
#include <VellarkDomain/Feedback/FeedbackLineIndex.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// How a note finds its lines again in a text that has changed since.
///
/// A line's hash is FNV-1a, 64 bits, of its UTF-8 bytes without the spaces and tabs at its end. The fingerprint of a
/// stretch of lines is FNV-1a of their hashes, each as eight bytes with the lowest first, in 16 lower-case hexadecimal
/// digits. Ill-formed UTF-8 is hashed as U+FFFD, one for each maximal subpart.
namespace DocumentFeedbackAnchor {

/// A text of more lines than this is not searched: its notes go stale.
inline constexpr std::size_t maximumLineCount = FeedbackLineIndex::maximumLineCount;

/// The lines between the line feeds and the CR LF pairs of a text, empty ones too; a carriage return alone ends none.
/// A text that ends with a line break has an empty last line, an empty text is one empty line.
[[nodiscard]] std::vector<std::string_view> lines(std::string_view text);

/// The fingerprint of lines, which are given one by one and without their breaks.
template <class Lines>
[[nodiscard]] std::string fingerprint(const Lines& lines) {
    std::uint64_t hash = FeedbackHash::offsetBasis;
    for (const auto& line : lines)
        hash = FeedbackHash::combined(hash, FeedbackHash::ofLine(line));
    return FeedbackHash::text(hash);
}

/// The fingerprint of lines `startLine` to `endLine` of a text, both included and counted from 1. Nothing when they
/// are no lines of the text, or the wrong way round.
[[nodiscard]] std::optional<std::string> fingerprint(std::string_view text, std::int64_t startLine,
                                                     std::int64_t endLine);

/// The note on a new revision of its document. Where its lines stand as they did, or anywhere else in the text (of
/// several places the nearest to the old one, of two as near the earlier), the copy names the new revision and their
/// lines and is fresh. Otherwise it is stale and still names the revision that it was written on. `anchor` and
/// `updatedAt` stay.
///
/// A note is stale also when its lines are the wrong way round or more than the text has, when the text has more than
/// `maximumLineCount` lines, and when the anchor is not a hexadecimal number below 2^64; a "+" before it and capital
/// digits are taken.
[[nodiscard]] DocumentFeedbackNote relocate(const DocumentFeedbackNote& note, std::string_view revisionID,
                                            std::string_view text);

/// The same for one of many notes on a text, whose lines were hashed once for all of them.
[[nodiscard]] DocumentFeedbackNote relocate(const DocumentFeedbackNote& note, std::string_view revisionID,
                                            const FeedbackLineIndex& index);

}  // namespace DocumentFeedbackAnchor

}  // namespace vellark
