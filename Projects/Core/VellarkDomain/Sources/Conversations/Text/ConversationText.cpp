#include <VellarkDomain/Capture/HTML/PythonHTMLTitle.hpp>
#include <VellarkDomain/Conversations/Redaction/SecretKeys.hpp>
#include <VellarkDomain/Conversations/Text/ConversationText.hpp>
#include <VellarkFoundation/Text/LineBreaks.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

namespace vellark::ConversationText {

namespace {

constexpr std::string_view ellipsis = "…";

bool isOneOf(std::string_view character, std::string_view set) {
    return character.size() == 1 && set.find(character[0]) != std::string_view::npos;
}

bool isFullStop(std::string_view character) {
    return character == "。" || character == "！" || character == "？";
}

// Byte behind the first sentence of a line.
std::size_t sentenceEnd(std::string_view line) {
    for (std::size_t start = 0; start < line.size();) {
        const std::size_t end = GraphemeBreak::next(line, start);
        const std::string_view character = line.substr(start, end - start);
        if (isFullStop(character)) return end;
        const bool mayEnd = isOneOf(character, ".!?");
        if (mayEnd && (end == line.size() || line.substr(end, GraphemeBreak::next(line, end) - end) == " ")) return end;
        start = end;
    }
    return line.size();
}

std::string_view withoutLeadingMarks(std::string_view line) {
    std::size_t start = 0;
    while (start < line.size()) {
        const std::size_t end = GraphemeBreak::next(line, start);
        if (!isOneOf(line.substr(start, end - start), "#>-* ")) break;
        start = end;
    }
    return line.substr(start);
}

}  // namespace

bool isSecretKey(std::string_view key) {
    return SecretKeys::isSecretKey(key);
}

std::string oneLine(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    std::size_t wordStart = 0;
    const auto addWord = [&](std::size_t end) {
        if (end == wordStart) return;
        if (!result.empty()) result += ' ';
        result += text.substr(wordStart, end - wordStart);
    };
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = GraphemeBreak::next(text, start);
        if (CharacterClass::isWhitespace(text.substr(start, end - start))) {
            addWord(start);
            wordStart = end;
        }
        start = end;
    }
    addWord(text.size());
    return result;
}

std::string firstLine(std::string_view of) {
    std::string unescaped;
    if (of.find('&') != std::string_view::npos) {
        unescaped = PythonHTMLTitle::unescape(of);
        of = unescaped;
    }
    for (std::size_t start = 0; start < of.size();) {
        std::size_t end = start;
        std::size_t length = 0;
        while (end < of.size() && (length = LineBreaks::length(of, end)) == 0)
            ++end;
        const std::string_view line = Whitespace::trimmed(of.substr(start, end - start));
        if (!line.empty()) return oneLine(withoutLeadingMarks(line));
        start = end + length;
    }
    return "";
}

std::string firstSentence(std::string_view of) {
    const std::string line = firstLine(of);
    return clipped(std::string_view(line).substr(0, sentenceEnd(line)), sentenceLimit).text;
}

std::string title(std::string_view from) {
    return clipped(firstLine(from), titleLimit).text;
}

Clipped clipped(std::string_view text, std::size_t limit) {
    if (!GraphemeBreak::exceeds(text, limit)) return {std::string(text), false};
    std::string result(GraphemeBreak::prefix(text, limit == 0 ? 0 : limit - 1));
    result += ellipsis;
    return {std::move(result), true};
}

Clipped excerpt(std::string_view text, std::size_t limit) {
    const std::string redacted = redact(text);
    return clipped(Whitespace::trimmedWithNewlines(redacted), limit);
}

std::string preview(std::string_view text, std::size_t limit) {
    return clipped(oneLine(redact(text)), limit).text;
}

}  // namespace vellark::ConversationText
