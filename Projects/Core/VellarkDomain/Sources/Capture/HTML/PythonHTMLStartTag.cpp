#include <VellarkDomain/Capture/HTML/PythonHTMLStartTag.hpp>

// A tag is a name, then attributes with separators (white space, and "/" that no ">" follows) between them:
//
//     tag        "<" name (separators attribute)* separators (">" | "/>")
//     attribute  name [ spaces "="+ spaces value ]
//     value      "'" ... "'" | '"' ... '"' | bare, up to white space or ">"
//
// An attribute's name may begin behind a separator or a quote only, and may itself begin with "=" or a quote. A quote
// that is never closed opens no value; then the rules below for `scanValue` apply.
//
// A tag that turns out incomplete becomes text, and the walk goes on inside it, where the next tag may run to the end
// of the page again. To stay linear, a scan notes the places through which it comes. What follows behind a place does
// not depend on how it was reached, so when a scan fails all its places are doomed, and a later scan stops at the first
// of them. The finders keep the little that lies between two places cheap.

namespace vellark::PythonHTMLTitle {

using HTMLCharacters::endsInSpace;
using HTMLCharacters::skipSpaces;
using HTMLCharacters::spaceLength;

StartTagScanner::Outcome StartTagScanner::scan(std::size_t start) {
    attributes_.clear();
    path_.clear();
    std::size_t offset = tagNameEnds_.find(text_, start + 1);
    name_ = text_.substr(start + 1, offset - start - 1);
    while (true) {
        if (!enter(Place::betweenAttributes, offset)) return finishIncomplete();
        offset = skipSeparators(offset);
        if (offset == text_.size()) return finishIncomplete();
        if (text_[offset] == '>') return finish(Outcome::startTag, offset + 1);
        if (text_[offset] == '/') return finish(Outcome::selfClosingTag, offset + 2);
        if (!mayBeginName(offset)) {
            return text_[offset] == '\0' ? finish(Outcome::junk, offset) : finishIncomplete();
        }
        const std::size_t nameEnd = nameEnds_.find(text_, offset + 1);
        if (!enter(Place::behindName, nameEnd)) return finishIncomplete();
        RawAttribute& attribute = attributes_.emplace_back();
        attribute.name = text_.substr(offset, nameEnd - offset);
        offset = scanValue(nameEnd, attribute);
    }
}

// Notes that the scan comes through the place; false when no tag can be completed from there.
bool StartTagScanner::enter(Place place, std::size_t offset) {
    const std::size_t number = 2 * offset + static_cast<std::size_t>(place);
    if (!doomed_.empty() && doomed_[number]) return false;
    path_.push_back(number);
    return true;
}

StartTagScanner::Outcome StartTagScanner::finish(Outcome outcome, std::size_t end) {
    end_ = end;
    return outcome;
}

StartTagScanner::Outcome StartTagScanner::finishIncomplete() {
    if (doomed_.empty()) doomed_.resize(2 * (text_.size() + 1));
    for (const std::size_t number : path_) {
        doomed_[number] = true;
    }
    return Outcome::incomplete;
}

std::size_t StartTagScanner::skipSeparators(std::size_t offset) const {
    while (offset < text_.size()) {
        const bool isSlash = text_[offset] == '/';
        if (isSlash && text_.substr(offset + 1).starts_with('>')) break;
        const std::size_t length = isSlash ? 1 : spaceLength(text_, offset);
        if (length == 0) break;
        offset += length;
    }
    return offset;
}

bool StartTagScanner::mayBeginName(std::size_t offset) const {
    const char previous = text_[offset - 1];
    return previous == '/' || previous == '"' || previous == '\'' || endsInSpace(text_, offset);
}

// Reads the value, if there is one, and gives the offset behind it. Before a quote that is never closed,
//   - white space between "=" and the quote makes an empty value;
//   - of several "=" the last one begins a bare value, quote and all;
//   - a single "=" makes no value, and is left for what follows.
std::size_t StartTagScanner::scanValue(std::size_t nameEnd, RawAttribute& attribute) {
    const std::size_t firstSign = skipSpaces(text_, nameEnd);
    if (firstSign == text_.size() || text_[firstSign] != '=') return nameEnd;
    std::size_t signsEnd = firstSign + 1;
    while (signsEnd < text_.size() && text_[signsEnd] == '=') {
        ++signsEnd;
    }
    const std::size_t start = skipSpaces(text_, signsEnd);
    attribute.hasValue = true;
    const bool isQuote = start < text_.size() && (text_[start] == '"' || text_[start] == '\'');
    if (!isQuote) return scanBare(start, attribute);
    if (const std::size_t end = scanQuoted(start, attribute); end != std::string_view::npos) return end;
    if (start > signsEnd) return start;
    if (signsEnd - firstSign > 1) return scanBare(signsEnd - 1, attribute);
    attribute.hasValue = false;
    return nameEnd;
}

// `npos` when the quote is never closed.
std::size_t StartTagScanner::scanQuoted(std::size_t quote, RawAttribute& attribute) {
    HTMLCharacters::ByteFinder& quotes = text_[quote] == '"' ? doubleQuotes_ : singleQuotes_;
    const std::size_t closing = quotes.find(text_, quote + 1);
    if (closing == std::string_view::npos) return closing;
    attribute.value = text_.substr(quote + 1, closing - quote - 1);
    return closing + 1;
}

std::size_t StartTagScanner::scanBare(std::size_t start, RawAttribute& attribute) {
    const std::size_t end = bareEnds_.find(text_, start);
    attribute.value = text_.substr(start, end - start);
    return end;
}

}  // namespace vellark::PythonHTMLTitle
