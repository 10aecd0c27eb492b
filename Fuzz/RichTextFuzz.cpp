#include "FuzzTarget.hpp"
#include <VellarkDomain/Conversations/Code/CodeHighlighter.hpp>
#include <VellarkDomain/Conversations/RichText/ConversationRichText.hpp>

using namespace vellark;

// Any bytes are a message, and its plain text holds what stands outside of markup: of a paragraph without any mark,
// every byte. Any bytes are code in every language, and its tokens stand in order.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzz::text(data, size);
    const ConversationRichText rich(text, true);
    for (const auto& block : rich.blocks)
        (void)ConversationRichText::plain({&block, 1});
    fuzz::require(ConversationRichText("x" + std::string(size % 7, 'y')).plainText.size() == 1 + size % 7,
                  "a plain word is kept");
    for (const char* language : {"swift", "py", "ts", "sh", "json", "diff", ""}) {
        const CodeBlock block = CodeHighlighter::code(language, text);
        std::size_t last = 0;
        for (const CodeToken& token : block.tokens) {
            fuzz::require(token.start >= last && token.end > token.start, "tokens stand in order");
            last = token.end;
        }
        fuzz::require(last <= block.tailStart && block.lineEnds.size() <= block.lineCount, "tokens end with the head");
    }
    return 0;
}
