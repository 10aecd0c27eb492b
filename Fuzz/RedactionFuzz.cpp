#include "FuzzTarget.hpp"
#include <VellarkDomain/Conversations/Redaction/Redaction.hpp>
#include <VellarkDomain/Conversations/Redaction/SecretPatterns.hpp>
#include <VellarkDomain/Conversations/Redaction/SecretScanner.hpp>
#include <VellarkDomain/Conversations/Text/ConversationText.hpp>

using namespace vellark;

// Redacting twice gives what redacting once gave, and what a pattern still finds was blanked before. The letter in
// front is there because a text without any letter or number is left alone.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text = "a " + std::string(fuzz::text(data, size));
    const std::string redacted = Redaction::redact(text);
    fuzz::require(Redaction::redact(redacted) == redacted, "redacting again changes nothing");
    for (std::size_t pattern = 0; pattern < secretPatternCount; ++pattern) {
        for (const ByteRange& range : SecretScanner::targets(redacted, pattern)) {
            fuzz::require(range.of(redacted).ends_with(Redaction::mark), "no secret is left");
        }
    }
    (void)ConversationText::instruction(text);
    (void)ConversationText::preview(text, ConversationText::previewLimit);
    return 0;
}
