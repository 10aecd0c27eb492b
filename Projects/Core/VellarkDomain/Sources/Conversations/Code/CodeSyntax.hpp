#pragma once

#include <VellarkDomain/Conversations/Code/CodeBlock.hpp>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace vellark {

/// Gathers the tokens of a block's head line by line.
class LineBuilder {
public:
    explicit LineBuilder(CodeBlock& block) : block_(block) {}

    /// Bytes `start` to `end` of the text, in one kind. A line feed in them ends its line and belongs to none; a span
    /// behind one of the same kind on its line joins it.
    void add(std::size_t start, std::size_t end, CodeTokenKind kind);

    /// Ends the current line, which may be empty.
    void finishLine();

    /// Ends the last line, unless a line feed has just ended it.
    void finish();

private:
    CodeBlock& block_;
    bool atLineStart_ = true;
};

/// What the scanner knows of a language.
struct CodeSyntax {
    std::span<const std::string_view> keywords;  ///< in ascending order
    std::string_view quotes;                     ///< bytes that open a string
    bool slashComments = false;                  ///< "//" and "/* */" open comments
    bool hashComments = false;                   ///< "#" opens one, at the start or behind white space
    bool tripleQuotes = false;                   ///< three equal quotes open a string that three close
    bool rawSingleQuotes = false;                ///< a backslash escapes nothing between "'"
    bool attributes = false;                     ///< "@" may begin a word, which is a keyword
    bool json = false;                           ///< a string before ":" is a key; "-" may begin a number

    /// The language of that exact name; null when there is none.
    [[nodiscard]] static const CodeSyntax* named(std::string_view language);

    /// Colours the first `end` bytes of the text, at a cost linear in them.
    void scan(std::string_view text, std::size_t end, LineBuilder& lines) const;
};

}  // namespace vellark
