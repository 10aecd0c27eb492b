#include <VellarkDomain/Conversations/Redaction/Redaction.hpp>
#include <VellarkDomain/Conversations/Redaction/SecretKeys.hpp>
#include <VellarkDomain/Conversations/Redaction/SecretPatterns.hpp>
#include <VellarkDomain/Conversations/Redaction/SecretScanner.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <algorithm>
#include <vector>

namespace vellark::Redaction {

namespace {

// The text with the mark in the place of each range, of which the first `kept` bytes stay. What ends in a mark already
// was blanked before.
std::string blanked(std::string_view text, const std::vector<ByteRange>& ranges, std::size_t kept) {
    std::string result;
    result.reserve(text.size());
    std::size_t done = 0;
    for (const ByteRange& range : ranges) {
        if (range.of(text).ends_with(mark)) continue;
        const std::size_t start = std::min(range.start + kept, range.end);
        result += text.substr(done, start - done);
        result += mark;
        done = range.end;
    }
    result += text.substr(done);
    return result;
}

// Every secret is made of letters and digits, at least in part; a text without any is left alone.
bool hasLetterOrNumber(std::string_view text) {
    for (std::size_t start = 0; start < text.size(); start = GraphemeBreak::next(text, start)) {
        const std::string_view character = text.substr(start);
        if (CharacterClass::isLetter(character) || CharacterClass::isNumber(character)) return true;
    }
    return false;
}

}  // namespace

std::string redact(std::string_view text) {
    const auto candidates = SecretScanner::candidates(text);
    if (candidates.none() || !hasLetterOrNumber(text)) return std::string(text);
    std::string current(text);
    bool hasChanged = false;
    for (std::size_t pattern = 0; pattern < secretPatternCount; ++pattern) {
        if (!candidates[pattern]) continue;
        const auto targets = SecretScanner::targets(current, pattern);
        if (targets.empty()) continue;
        current = blanked(current, targets, secretPatterns[pattern].kept);
        hasChanged = true;
    }
    // Where a secret went, a key may have come to stand by itself.
    if (!hasChanged && !candidates[SecretScanner::keyCandidate]) return current;
    const auto values = SecretKeys::values(current, mark);
    return values.empty() ? current : blanked(current, values, 0);
}

}  // namespace vellark::Redaction
