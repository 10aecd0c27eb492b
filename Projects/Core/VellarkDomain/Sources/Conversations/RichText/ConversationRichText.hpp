#pragma once

#include <VellarkDomain/Conversations/Code/CodeBlock.hpp>
#include <VellarkFoundation/Records/Enumeration.hpp>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace vellark {

/// What an agent said, as a tree of blocks and inline runs that a native view can draw. The dialect is Markdown as
/// agents write it: JSON and patches need no fence, an indent makes no code block, a single "~" stays as it is, and
/// quotes nest three deep. Any bytes are taken; the cost is linear in them.
///
///     ConversationRichText("# Done\n- fixed `a.cpp`").blocks    a heading, a list
struct ConversationRichText {
    /// A text over this many bytes is one plain run: its inline Markdown is not looked at.
    static constexpr std::size_t inlineLimit = 4'000;

    struct Run {
        /// A set of bits.
        struct Traits {
            static constexpr std::uint32_t bold = 1;
            static constexpr std::uint32_t italic = 2;
            static constexpr std::uint32_t strikethrough = 4;
            static constexpr std::uint32_t code = 8;
            static constexpr std::uint32_t path = 16;  ///< a file's path

            std::uint32_t rawValue = 0;

            [[nodiscard]] bool contains(std::uint32_t bit) const { return (rawValue & bit) != 0; }

            bool operator==(const Traits&) const = default;
        };

        std::string text;
        Traits traits;
        std::optional<std::string> link;  ///< an absolute address with the scheme http, https or mailto
        std::optional<std::string> full;  ///< the path behind a shortened one

        bool operator==(const Run&) const = default;
    };

    struct ListItem {
        std::size_t depth = 0;
        std::optional<std::int64_t> number;  ///< of a numbered item
        std::vector<Run> content;

        bool operator==(const ListItem&) const = default;
    };

    struct Table {
        enum class Alignment { leading, center, trailing };
        using Cell = std::vector<Run>;

        std::vector<Alignment> alignments;
        std::vector<Cell> header;
        std::vector<std::vector<Cell>> rows;  ///< each as long as the header
        std::string source;                   ///< the table's lines, joined by line feeds

        bool operator==(const Table&) const = default;
    };

    using Code = CodeBlock;

    struct Block;

    struct Paragraph {
        std::vector<Run> runs;
        bool operator==(const Paragraph&) const = default;
    };

    struct Heading {
        int level = 1;  ///< 1 to 6
        std::vector<Run> runs;
        bool operator==(const Heading&) const = default;
    };

    struct List {
        std::vector<ListItem> items;
        bool operator==(const List&) const = default;
    };

    struct Quote {
        std::vector<Block> blocks;
        friend bool operator==(const Quote& left, const Quote& right);
    };

    struct Rule {
        bool operator==(const Rule&) const = default;
    };

    struct Block {
        std::variant<Paragraph, Heading, List, Quote, Code, Table, Rule> content;
        friend bool operator==(const Block& left, const Block& right);
    };

    std::vector<Block> blocks;
    std::string plainText;  ///< what the blocks say, without markup

    ConversationRichText() = default;
    explicit ConversationRichText(std::string_view text, bool shortensPaths = false);

    /// The runs of a text's inline Markdown, white space kept. Neighbours differ in traits or link, none is empty.
    [[nodiscard]] static std::vector<Run> inlineRuns(std::string_view text);

    /// A path of more than `limit` characters and five pieces as its first three and last two pieces with "…" between
    /// them; every other path as it is.
    [[nodiscard]] static std::string shortenedPath(std::string_view path, std::size_t limit);

    /// The runs with each long path, absolute or in the home directory, shortened and kept whole beside it.
    [[nodiscard]] static std::vector<Run> shorteningPaths(std::vector<Run> runs);
    [[nodiscard]] static Block shorteningPaths(Block block);

    /// The words of blocks, one line for each block and list item; rules give none.
    [[nodiscard]] static std::string plain(std::span<const Block> blocks);

    friend bool operator==(const ConversationRichText& left, const ConversationRichText& right);
};

}  // namespace vellark
