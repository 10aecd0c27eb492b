#pragma once

#include <VellarkDomain/Documents/Rendering/DocumentContentFormat.hpp>
#include <VellarkDomain/Documents/Summary/DocumentSummaryExtract.hpp>

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vellark {

/// Reads a text the way a hurried reader does, by fixed rules and without a model: the paragraph that stands for it,
/// its headings, what it costs, by when it is due, what it decides. The same text always gives the same digest.
///
/// A character is an extended grapheme cluster, and all lengths are in characters. CR LF is one character and no line
/// feed. Ill-formed UTF-8 is read as U+FFFD. All functions are pure and safe on any thread.
namespace DocumentSummaryExtractor {

/// Longest paragraph, in characters, not counting the ellipsis behind it.
inline constexpr std::size_t summaryLength = 2'000;

/// Characters of a text that are read; the rest of a longer one is never looked at.
inline constexpr std::size_t readingLimit = 200'000;

/// Keys of front matter whose value is better than any paragraph, the best one first.
inline constexpr auto frontMatterKeys = std::to_array<std::string_view>(
    {"summary", "description", "decision", "요약", "설명", "摘要", "简介", "描述", "簡介", "說明"});

using Lines = std::span<const std::string_view>;

/// The digest of a text. `isComplete` is false when the text was cut off somewhere: its last line then counts for
/// neither facts nor conclusion, and neither does that of a text beyond the reading limit.
[[nodiscard]] DocumentSummaryExtract extract(std::string_view text, const DocumentContentFormat& format,
                                             bool isComplete = true);

/// The text without inline markup, its white space collapsed to single blanks: "a **b** [c](d)" gives "a b c".
[[nodiscard]] std::string plainInline(std::string_view text);

/// As `plainInline`, without the mark of a heading, a quote or a list item too: "- [x] a" gives "a".
[[nodiscard]] std::string plainLine(std::string_view text);

/// The text itself up to `limit` characters. A longer one ends behind its last full sentence inside the limit, or, if
/// there is none worth it, in "…" behind `limit` characters, a number at that place being kept whole.
[[nodiscard]] std::string cut(std::string_view text, std::size_t limit);

/// What follows the mark of a list item; nothing when the text is none.
[[nodiscard]] std::optional<std::string_view> listItem(std::string_view text);

/// The level of a "#" heading, 1 to 6; nothing for another line.
[[nodiscard]] std::optional<int> headingLevel(std::string_view line);

/// Whether the line is made up of links, as menus and badge rows are.
[[nodiscard]] bool isNavigation(std::string_view line);

struct Prose {
    std::string text;                ///< the first paragraph, or the items joined
    std::vector<std::string> items;  ///< at most three; none when there is a paragraph

    bool operator==(const Prose&) const = default;
};

/// The first paragraph or the first list, whichever comes first.
[[nodiscard]] Prose prose(Lines lines);

/// Front matter, and what follows it. The lines are parts of the text.
struct FrontMatter {
    std::map<std::string, std::string> values;  ///< by key, in lower case and NFC
    std::vector<std::string_view> body;         ///< all lines when there is no front matter
};

/// Reads the flat keys, lists and block texts between "---" lines at the start. Anything that does not look like front
/// matter makes all of it body.
[[nodiscard]] FrontMatter frontMatter(std::string_view text);

/// The first three headings of level 2 or, without any, of levels 1 and 3; none from fenced code.
[[nodiscard]] std::vector<std::string> keyHeadings(Lines lines);

/// The text of the nearest heading on or above a line. Nothing without one, and for a negative index.
[[nodiscard]] std::optional<std::string> nearestHeading(Lines lines, std::ptrdiff_t atOrAbove);

/// At most two facts: the last totals, or else the first amount of money; then the first due date. A fact is the
/// writer's own sentence, cut down to about 120 characters around its value.
[[nodiscard]] std::vector<std::string> facts(Lines lines, bool markdown, bool isComplete);

/// Whether the context states all values of the fact; for a fact without a number, whether it holds its words.
[[nodiscard]] bool isFact(std::string_view fact, std::string_view statedIn);

/// The offset, in characters, behind the number or amount that a cut at character `crossing` would split.
[[nodiscard]] std::optional<std::size_t> valueEnd(std::size_t crossing, std::string_view text);

/// What the document decides or advises: the first sentence under such a heading, or else the first such labelled
/// line. At most 120 characters and an ellipsis.
[[nodiscard]] std::optional<std::string> conclusion(Lines lines, bool markdown, bool isComplete);

/// The lines without fenced and indented code; without `markdown`, all lines. The last line of an incomplete text is
/// left out.
[[nodiscard]] std::vector<std::string_view> proseLines(Lines lines, bool markdown, bool isComplete);

/// Whether the text is a heading such as "3. Conclusion and outlook".
[[nodiscard]] bool isConclusionName(std::string_view text);

/// Whether the text holds what the conclusion says behind its label, whatever the case and the white space.
[[nodiscard]] bool isConclusion(std::string_view conclusion, std::string_view statedIn);

}  // namespace DocumentSummaryExtractor

}  // namespace vellark
