#include <VellarkDomain/Conversations/Code/CodeHighlighter.hpp>
#include <VellarkDomain/Conversations/Code/CodeSyntax.hpp>
#include <VellarkDomain/Conversations/Code/JSONPrinter.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <algorithm>
#include <utility>

namespace vellark::CodeHighlighter {

namespace {

std::size_t lineFeeds(std::string_view text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

// A block of which only the tokens are missing.
CodeBlock blockOf(std::string text) {
    CodeBlock block;
    block.tailStart = highlightCut(text);
    block.lineCount = lineFeeds(text) + 1;
    block.text = std::move(text);
    return block;
}

// The first character that is not white space, when it is one scalar of ASCII; otherwise 0.
char firstCharacter(std::string_view text) {
    const std::size_t start = text.size() - CharacterClass::trimmedStart(text).size();
    if (start == text.size() || GraphemeBreak::next(text, start) != start + 1) return 0;
    return text[start];
}

bool mayBeJSON(std::string_view language, std::string_view text) {
    if (language == "json") return true;
    const char first = language.empty() ? firstCharacter(text) : '\0';
    return first == '{' || first == '[';
}

bool isDiff(std::string_view language, std::string_view text) {
    if (language == "diff") return true;
    return language.empty() &&
           (GraphemeBreak::startsWith(text, "diff --git ") || GraphemeBreak::startsWith(text, "--- "));
}

struct LineStart {
    std::string_view text;
    CodeTokenKind kind;
};

// The first row that a line begins with says what it is.
constexpr LineStart lineStarts[] = {
    {"+++ ", CodeTokenKind::meta},   {"--- ", CodeTokenKind::meta}, {"diff ", CodeTokenKind::meta},
    {"index ", CodeTokenKind::meta}, {"+", CodeTokenKind::added},   {"-", CodeTokenKind::removed},
    {"@@", CodeTokenKind::hunk},
};

CodeTokenKind lineKind(std::string_view line) {
    for (const LineStart& row : lineStarts) {
        if (line.starts_with(row.text)) return row.kind;
    }
    return CodeTokenKind::plain;
}

template <class Visit>
void forEachLine(std::string_view text, Visit visit) {
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        visit(start, end);
        start = end + 1;
    }
}

}  // namespace

std::size_t highlightCut(std::string_view text) {
    const std::string_view head = text.substr(0, headBytes);
    std::size_t end = 0;  // behind the last line feed
    std::size_t count = 0;
    for (std::size_t feed = head.find('\n'); feed != std::string_view::npos; feed = head.find('\n', feed + 1)) {
        end = feed + 1;
        if (++count == headLines) return end;
    }
    if (text.size() <= headBytes) return text.size();
    if (end > 0) return end;
    end = headBytes;
    while (end > headBytes - 4 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80)
        --end;
    return end;
}

CodeBlock code(std::string_view language, std::string_view text) {
    if (mayBeJSON(language, text)) {
        if (auto block = json(text)) return std::move(*block);
    }
    if (isDiff(language, text)) return diff(text);
    CodeBlock block = blockOf(std::string(text));
    block.kind = CodeBlock::Code{std::string(language)};
    LineBuilder lines(block);
    if (const CodeSyntax* syntax = CodeSyntax::named(language)) {
        syntax->scan(block.text, block.tailStart, lines);
    } else {
        lines.add(0, block.tailStart, CodeTokenKind::plain);
    }
    lines.finish();
    return block;
}

std::optional<CodeBlock> json(std::string_view text) {
    auto printed = printJSON(text);
    if (!printed || (!printed->isObject && printed->count < 2)) return std::nullopt;
    CodeBlock block = blockOf(std::move(printed->text));
    block.kind = CodeBlock::JSON{.count = printed->count, .isObject = printed->isObject};
    LineBuilder lines(block);
    CodeSyntax::named("json")->scan(block.text, block.tailStart, lines);
    lines.finish();
    return block;
}

CodeBlock diff(std::string_view text) {
    CodeBlock block = blockOf(std::string(text));
    CodeBlock::Diff counts;
    LineBuilder lines(block);
    forEachLine(block.text, [&](std::size_t start, std::size_t end) {
        const CodeTokenKind kind = lineKind(std::string_view(block.text).substr(start, end - start));
        counts.added += kind == CodeTokenKind::added ? 1 : 0;
        counts.removed += kind == CodeTokenKind::removed ? 1 : 0;
        if (start >= block.tailStart) return;
        lines.add(start, std::min(end, block.tailStart), kind);
        if (end < block.tailStart) lines.finishLine();
    });
    lines.finish();
    block.kind = counts;
    return block;
}

}  // namespace vellark::CodeHighlighter
