#include <VellarkDomain/Conversations/Code/CodeHighlighter.hpp>
#include <VellarkDomain/Conversations/RichText/ConversationRichText.hpp>
#include <VellarkDomain/Conversations/RichText/RichTextLine.hpp>
#include <VellarkDomain/Conversations/RichText/RichTextParser.hpp>
#include <VellarkFoundation/Text/LineBreaks.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>

#include <type_traits>
#include <utility>

namespace vellark {

namespace {

using RichText = ConversationRichText;

void append(std::string& text, std::span<const RichText::Run> runs) {
    for (const RichText::Run& run : runs)
        text += run.full ? *run.full : run.text;
}

void append(std::string& text, const RichText::Paragraph& paragraph) {
    append(text, paragraph.runs);
}

void append(std::string& text, const RichText::Heading& heading) {
    append(text, heading.runs);
}

void append(std::string& text, const RichText::List& list) {
    bool isFirst = true;
    for (const RichText::ListItem& item : list.items) {
        if (!std::exchange(isFirst, false)) text += '\n';
        if (item.number) text += std::to_string(*item.number) + ". ";
        append(text, item.content);
    }
}

void append(std::string& text, const RichText::Quote& quote) {
    text += RichText::plain(quote.blocks);
}

void append(std::string& text, const RichText::Code& code) {
    text += code.text;
}

void append(std::string& text, const RichText::Table& table) {
    text += table.source;
}

}  // namespace

bool operator==(const ConversationRichText::Quote& left, const ConversationRichText::Quote& right) {
    return left.blocks == right.blocks;
}

bool operator==(const ConversationRichText::Block& left, const ConversationRichText::Block& right) {
    return left.content == right.content;
}

bool operator==(const ConversationRichText& left, const ConversationRichText& right) {
    return left.blocks == right.blocks && left.plainText == right.plainText;
}

ConversationRichText::ConversationRichText(std::string_view text, bool shortensPaths) {
    const std::string_view trimmed = Whitespace::trimmedWithNewlines(text);
    if (RichTextLine::beginsWith(trimmed, '{') || RichTextLine::beginsWith(trimmed, '[')) {
        if (auto code = CodeHighlighter::json(trimmed)) blocks.push_back({std::move(*code)});
    }
    if (blocks.empty()) blocks = RichTextParser::blocks(LineBreaks::split(text));
    if (shortensPaths) {
        for (Block& block : blocks)
            block = shorteningPaths(std::move(block));
    }
    plainText = plain(blocks);
}

std::string ConversationRichText::plain(std::span<const Block> blocks) {
    std::string text;
    bool isFirst = true;
    for (const Block& block : blocks) {
        std::visit(
            [&](const auto& content) {
                if constexpr (!std::is_same_v<std::decay_t<decltype(content)>, Rule>) {
                    if (!std::exchange(isFirst, false)) text += '\n';
                    append(text, content);
                }
            },
            block.content);
    }
    return text;
}

}  // namespace vellark
