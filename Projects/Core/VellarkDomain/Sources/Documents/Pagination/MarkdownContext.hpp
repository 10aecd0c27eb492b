#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vellark {

/// What a page of Markdown must know of the pages before it, so that it can be rendered by itself: the code fence that
/// is still open, and the table that its first rows may belong to.
///
/// A line ends at U+000A and nowhere else. The carriage return of a CR LF is the last byte of its line; it counts in
/// the limits and is repeated with the line.
struct MarkdownContext {
    /// Longest line that opens a fence, or is a table's header or separator, in bytes. What is repeated on every page
    /// must stay small beside the page.
    static constexpr std::size_t maximumLineBytes = 4'096;

    struct Fence {
        char marker = '`';       ///< a backtick or a tilde
        std::size_t length = 3;  ///< of the run of markers, at least 3
        std::string opening;     ///< the whole line, with the language and whatever stands there

        bool operator==(const Fence&) const = default;
    };
    struct Table {
        std::string header;
        std::string separator;

        bool operator==(const Table&) const = default;
    };

    std::optional<Fence> fence;  ///< open behind the last line
    std::optional<Table> table;  ///< goes on behind the last line
    std::string previousLine;    ///< the last whole line

    /// What to put in front of the page: the line that opened the fence, or the head of the table that the page begins
    /// in. `continuesLine` says that the page begins inside a line.
    [[nodiscard]] std::string prefix(std::string_view text, bool continuesLine) const;

    /// What to put behind the page: the end of an open fence, on a line of its own.
    [[nodiscard]] std::string suffix() const;

    /// Goes on over the page's whole lines. The rest of a line with which it begins (`continuesLine`), and the piece of
    /// one with which it ends (`splitsLine`), are no lines.
    void consume(std::string_view text, bool continuesLine, bool splitsLine);

    /// Whether the line separates a table's header from its rows: cells between bars, each of three dashes or more,
    /// with colons around them. "|---|:--:|" lacks a dash and is none, "---" is one.
    [[nodiscard]] static bool isSeparator(std::string_view line);

    bool operator==(const MarkdownContext&) const = default;
};

}  // namespace vellark
