#pragma once

#include <VellarkDomain/Conversations/Redaction/Redaction.hpp>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// What is done to every text of an agent's session record before a user sees it: machine-made wrappers go, secrets are
/// blanked, and lengths are kept within limits. Lengths are in user-perceived characters; a text that is cut ends in
/// "…" and has exactly the limit's length.
namespace ConversationText {

inline constexpr std::size_t instructionLimit = 600;  ///< of an instruction
inline constexpr std::size_t previewLimit = 160;      ///< of a preview line
inline constexpr std::size_t entryLimit = 1'200;      ///< of one entry of a transcript
inline constexpr std::size_t titleLimit = 80;
inline constexpr std::size_t sentenceLimit = 120;
inline constexpr std::string_view redactionMark = Redaction::mark;

/// The text with all secrets blanked.
[[nodiscard]] inline std::string redact(std::string_view text) {
    return Redaction::redact(text);
}

/// Whether a key such as "clientSecret" names a secret.
[[nodiscard]] bool isSecretKey(std::string_view key);

/// The words of the text with one blank between them.
[[nodiscard]] std::string oneLine(std::string_view text);

/// The first line that is not blank, without heading, quote and list marks, its character references resolved.
[[nodiscard]] std::string firstLine(std::string_view of);

/// The first sentence of that line: up to ".", "!" or "?" before a blank or the end, or up to "。", "！" or "？".
[[nodiscard]] std::string firstSentence(std::string_view of);

/// That line, at most 80 characters.
[[nodiscard]] std::string title(std::string_view from);

struct Clipped {
    std::string text;
    bool isTruncated = false;

    bool operator==(const Clipped&) const = default;
};

/// At most `limit` characters; a limit of 0 still leaves the "…" of a text that is not empty.
[[nodiscard]] Clipped clipped(std::string_view text, std::size_t limit);

/// Redacted, trimmed of white space and line ends, and clipped.
[[nodiscard]] Clipped excerpt(std::string_view text, std::size_t limit);

/// Redacted, on one line, and clipped.
[[nodiscard]] std::string preview(std::string_view text, std::size_t limit);

/// What a user's turn asks for: the text without wrappers and attachments, not clipped and not redacted. Nothing for a
/// turn that a machine made, and for one that asks nothing.
[[nodiscard]] std::optional<std::string> instruction(std::string_view turn);

/// Whether a turn only sums up a conversation whose context was compacted.
[[nodiscard]] bool isCompactionSummary(std::string_view text);

/// The text without the elements in which agents wrap what no user wrote, nested up to four deep. Linear in the text.
[[nodiscard]] std::string removingWrappers(std::string_view text);

/// The text without the lists of attached files and conversations at its start.
[[nodiscard]] std::string removingAttachmentHeaders(std::string_view text);

}  // namespace ConversationText

}  // namespace vellark
