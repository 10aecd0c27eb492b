#pragma once

#include <VellarkDomain/Conversations/RichText/ConversationRichText.hpp>

#include <cstddef>
#include <string_view>
#include <vector>

namespace vellark {

/// The block grammar of messages: one pass over their lines.
namespace RichTextParser {

/// Quotes that are parsed inside one another; a deeper one is plain text.
inline constexpr std::size_t greatestQuoteDepth = 3;

/// The blocks of lines that stand inside `depth` quotes.
[[nodiscard]] std::vector<ConversationRichText::Block> blocks(std::vector<std::string_view> lines,
                                                              std::size_t depth = 0);

}  // namespace RichTextParser

}  // namespace vellark
