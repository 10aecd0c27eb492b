#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace vellark {

/// What a piece of code is, which is what its colour shows.
enum class CodeTokenKind : std::uint8_t { plain, keyword, string, number, comment, key, added, removed, hunk, meta };

/// A piece of one line, as bytes of the block's text. A head of 40,000 bytes is the most that has tokens.
struct CodeToken {
    std::uint32_t start = 0;
    std::uint32_t end = 0;
    CodeTokenKind kind = CodeTokenKind::plain;

    bool operator==(const CodeToken&) const = default;
};

/// A block of code, JSON or a patch, ready to be drawn: the lines of its head in coloured tokens, and the rest of its
/// text as one plain tail, so that a huge paste costs no more than a small one.
struct CodeBlock {
    struct Code {
        std::string language;  ///< as the writer named it; may be empty

        bool operator==(const Code&) const = default;
    };

    struct JSON {
        std::size_t count = 0;  ///< entries of the outermost object or array
        bool isObject = false;

        bool operator==(const JSON&) const = default;
    };

    struct Diff {
        std::size_t added = 0;    ///< lines, of the whole text
        std::size_t removed = 0;  ///< lines, of the whole text

        bool operator==(const Diff&) const = default;
    };

    std::variant<Code, JSON, Diff> kind;
    std::string text;                     ///< what is shown: of JSON the re-indented text
    std::vector<CodeToken> tokens;        ///< of all lines, in order
    std::vector<std::uint32_t> lineEnds;  ///< of each line, the number of tokens up to its end
    std::size_t tailStart = 0;            ///< byte at which the head ends
    std::size_t lineCount = 0;            ///< lines of the whole text

    /// The text behind the head, shown without colours; empty when the head is all.
    [[nodiscard]] std::string_view tail() const { return std::string_view(text).substr(tailStart); }

    /// The tokens of a line of the head; none for an empty line.
    [[nodiscard]] std::span<const CodeToken> line(std::size_t index) const {
        const std::uint32_t first = index == 0 ? 0 : lineEnds[index - 1];
        return std::span(tokens).subspan(first, lineEnds[index] - first);
    }

    [[nodiscard]] std::string_view textOf(const CodeToken& token) const {
        return std::string_view(text).substr(token.start, token.end - token.start);
    }

    bool operator==(const CodeBlock&) const = default;
};

}  // namespace vellark
