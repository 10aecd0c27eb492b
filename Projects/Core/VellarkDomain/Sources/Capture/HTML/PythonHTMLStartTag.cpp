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
// of the page again. What follows behind certain places does not depend on how they were reached. So an incomplete tag
// is walked once more to doom all places through which it comes, and a later scan stops at the first doomed place: each
// place is passed in vain twice at most. The finders keep the little that lies between two places cheap.

namespace vellark::PythonHTMLTitle {

using HTMLCharacters::endsInSpace;
using HTMLCharacters::skipSpaces;
using HTMLCharacters::spaceLength;

StartTagScanner::Outcome StartTagScanner::scan(std::size_t start) {
    const Outcome outcome = walk(start);
    if (outcome == Outcome::incomplete) {
        if (doomed_.empty()) doomed_.resize(2 * (text_.size() + 1));
        isDooming_ = true;
        walk(start);
        isDooming_ = false;
    }
    return outcome;
}

StartTagScanner::Outcome StartTagScanner::walk(std::size_t start) {
    attributes_.clear();
    const HTMLCharacters::Run tagName = tagNameEnds_.find(text_, start + 1);
    name_ = text_.substr(start + 1, tagName.stop - start - 1);
    mayLowerName_ = (tagName.seen & HTMLCharacters::mayLower) != 0;
    std::size_t offset = tagName.stop;
    while (true) {
        if (!enter(Place::betweenAttributes, offset)) return Outcome::incomplete;
        const std::size_t nameStart = skipSeparators(offset);
        if (nameStart == text_.size()) return Outcome::incomplete;
        if (text_[nameStart] == '>') return finish(Outcome::startTag, nameStart + 1);
        if (text_[nameStart] == '/') return finish(Outcome::selfClosingTag, nameStart + 2);
        if (nameStart == offset && !mayBeginName(offset)) {
            return text_[offset] == '\0' ? finish(Outcome::junk, offset) : Outcome::incomplete;
        }
        const HTMLCharacters::Run name = nameEnds_.find(text_, nameStart + 1);
        if (!enter(Place::behindName, name.stop)) return Outcome::incomplete;
        RawAttribute& attribute = attributes_.emplace_back();
        attribute.name = text_.substr(nameStart, name.stop - nameStart);
        attribute.mayLower = ((name.seen | HTMLCharacters::classOf(text_[nameStart])) & HTMLCharacters::mayLower) != 0;
        offset = scanValue(name.stop, attribute);
    }
}

// False when no tag can be completed from the place.
bool StartTagScanner::enter(Place place, std::size_t offset) {
    if (doomed_.empty()) return true;
    const std::size_t number = 2 * offset + static_cast<std::size_t>(place);
    if (doomed_[number]) return false;
    if (isDooming_) doomed_[number] = true;
    return true;
}

StartTagScanner::Outcome StartTagScanner::finish(Outcome outcome, std::size_t end) {
    end_ = end;
    return outcome;
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

// True when a quote or white space stands before the offset. (A tag's name may end in white space that is none of
// HTML's.)
bool StartTagScanner::mayBeginName(std::size_t offset) const {
    const char previous = text_[offset - 1];
    return previous == '"' || previous == '\'' || endsInSpace(text_, offset);
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
    const std::size_t end = bareEnds_.find(text_, start).stop;
    attribute.value = text_.substr(start, end - start);
    return end;
}

}  // namespace vellark::PythonHTMLTitle
