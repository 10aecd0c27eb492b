#include <VellarkDomain/Conversations/Text/ConversationText.hpp>
#include <VellarkDomain/Conversations/Text/WrapperScanner.hpp>

namespace vellark::ConversationText {

namespace {

/// Wrappers inside wrappers that are looked for.
constexpr int greatestNesting = 4;

// Runs of three and more line feeds become two.
std::string joiningBlankLines(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    std::size_t feeds = 0;
    for (const char byte : text) {
        feeds = byte == '\n' ? feeds + 1 : 0;
        if (feeds <= 2) result += byte;
    }
    return result;
}

}  // namespace

std::string removingWrappers(std::string_view text) {
    std::string current(text);
    if (text.find('<') != std::string_view::npos) {
        for (const auto pass : {WrapperScanner::withoutElements, WrapperScanner::withoutDanglingTags}) {
            for (int round = 0; round < greatestNesting; ++round) {
                auto changed = pass(current);
                if (!changed) break;
                current = std::move(*changed);
            }
        }
    }
    return joiningBlankLines(current);
}

}  // namespace vellark::ConversationText
