#include <VellarkDomain/Documents/Summary/SummaryCandidates.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>

#include <algorithm>

// A bracket expression ends at the first closing bracket behind its start, so all starts before one closing bracket
// fare alike: either one of them matches, or the search goes on behind it. That makes the walks linear.

namespace vellark::SummaryCandidates {

namespace {

constexpr std::size_t npos = std::string_view::npos;

bool isASCII(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

bool isLetter(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

bool isSpace(char byte) {
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

// White space, or the first byte of a scalar that may be.
bool maySpace(char byte) {
    return isSpace(byte) || !isASCII(byte);
}

// White space or a digit beyond ASCII.
bool maySpaceOrDigit(std::string_view text, std::string_view::const_iterator place) {
    if (isASCII(*place)) return false;
    const char32_t scalar = UTF8::decode(text, static_cast<std::size_t>(place - text.begin())).scalar;
    return CharacterClass::isWhitespace(scalar) || CharacterClass::isDecimalDigit(scalar);
}

bool stands(std::string_view text, std::size_t offset, char byte) {
    return offset < text.size() && text[offset] == byte;
}

// Links in brackets. `single` opens "[label](target)" and `paired` opens "[[name]]"; either may be empty.
std::size_t bracketed(std::string_view text, std::size_t from, std::size_t lastRound, std::string_view single,
                      std::string_view paired) {
    const std::string_view opener = single.empty() ? paired : single;
    while (true) {
        const std::size_t start = text.find(opener, from);
        if (start == npos) return npos;
        const std::size_t close = text.find(']', start + opener.size());
        if (close == npos) return npos;
        if (!single.empty() && stands(text, close + 1, '(') && lastRound != npos && lastRound > close + 1) return start;
        if (!paired.empty() && stands(text, close + 1, ']')) {
            const std::size_t found = text.substr(0, close).find(paired, start);
            if (found != npos) return found;
        }
        from = close + 1;
    }
}

// Whether text from the first to the second dollar sign may be mathematics: closely fitted, no digit behind it.
bool mayBeMathematics(std::string_view text, std::size_t dollar) {
    const std::size_t close = text.find('$', dollar + 1);
    if (close == npos || isSpace(text[dollar + 1]) || isSpace(text[close - 1])) return false;
    return close + 1 == text.size() || !isDigit(text[close + 1]);
}

bool startsLink(std::string_view rest) {
    return rest.starts_with("http://") || rest.starts_with("https://");
}

bool isStruck(std::string_view text, std::size_t start) {
    if (!stands(text, start + 1, '~')) return false;
    const std::size_t close = text.find('~', start + 2);
    return close != npos && stands(text, close + 1, '~');
}

}  // namespace

std::size_t embed(std::string_view text, std::size_t from, std::size_t lastBracket) {
    return bracketed(text, from, lastBracket, "![", "![[");
}

std::size_t wikiLink(std::string_view text, std::size_t from, std::size_t) {
    return bracketed(text, from, npos, "", "[[");
}

std::size_t inlineLink(std::string_view text, std::size_t from, std::size_t lastBracket) {
    return bracketed(text, from, lastBracket, "[", "");
}

std::size_t linkToken(std::string_view text, std::size_t from, std::size_t lastBracket) {
    const std::size_t start = bracketed(text, from, lastBracket, "[", "[[");
    return start != npos && start > from && text[start - 1] == '!' ? start - 1 : start;
}

std::size_t tag(std::string_view text, std::size_t from, std::size_t lastBracket) {
    if (lastBracket == npos) return npos;
    for (std::size_t start = text.find('<', from); start < lastBracket; start = text.find('<', start + 1)) {
        const std::size_t name = start + (stands(text, start + 1, '/') ? 2 : 1);
        if (name < lastBracket && isLetter(text[name])) return start;
    }
    return npos;
}

std::size_t underscore(std::string_view text, std::size_t from, std::size_t) {
    return text.find('_', from);
}

std::size_t struck(std::string_view text, std::size_t from, std::size_t) {
    std::size_t start = text.find("~~", from);
    while (start != npos && !isStruck(text, start))
        start = text.find("~~", start + 1);
    return start;
}

std::size_t wikiAlias(std::string_view text, std::size_t from, std::size_t) {
    constexpr std::size_t longestPart = 200;  // in scalars
    const auto fits = [&](std::size_t start, std::size_t end) {
        const std::size_t size = end - start;
        return size <= longestPart ||
               (size <= 4 * longestPart && UTF8::scalarCount(text.substr(start, size)) <= longestPart);
    };
    while (true) {
        const std::size_t start = text.find("[[", from);
        if (start == npos) return npos;
        const std::size_t close = text.find(']', start + 2);
        if (close == npos) return npos;
        const std::size_t bar = text.substr(0, close).find('|', start + 2);
        if (!stands(text, close + 1, ']') || bar == npos) {
            from = close + 1;
        } else if (!fits(bar + 1, close)) {
            from = bar + 1;
        } else if (fits(start + 2, bar)) {
            return start;
        } else {
            from = std::max(start + 1, bar - std::min(bar, 4 * longestPart + 2));
        }
    }
}

std::size_t markedText(std::string_view text, std::size_t from, std::size_t) {
    for (std::size_t start = text.find_first_of("`h~$", from); start != npos;
         start = text.find_first_of("`h~$", start + 1)) {
        switch (text[start]) {
            case '`':
                if (text.find('`', start + 1) != npos) return start;
                break;
            case 'h':
                if (startsLink(text.substr(start))) return start;
                break;
            case '~':
                if (isStruck(text, start)) return start;
                break;
            default:
                if (mayBeMathematics(text, start)) return start;
        }
    }
    return npos;
}

std::size_t loneStar(std::string_view text, std::size_t from, std::size_t) {
    for (std::size_t start = text.find('*', from); start != npos; start = text.find('*', start + 1)) {
        if (start == 0 || text[start - 1] == '*' || stands(text, start + 1, '*')) continue;
        return start;
    }
    return npos;
}

std::size_t lineMark(std::string_view text, std::size_t from, std::size_t) {
    if (from > 0) return npos;
    const auto isPassed = [](char byte) { return isSpace(byte); };
    const auto first = std::find_if_not(text.begin(), text.end(), isPassed);
    if (first == text.end()) return npos;
    const bool isMark = std::string_view("#>-*+").find(*first) != npos;
    return isMark || isDigit(*first) || maySpaceOrDigit(text, first) ? 0 : npos;
}

std::size_t itemMark(std::string_view text, std::size_t from, std::size_t) {
    if (from > 0 || text.empty()) return npos;
    const char first = text.front();
    if (!isASCII(first)) return CharacterClass::isDecimalDigit(UTF8::decode(text, 0).scalar) ? 0 : npos;
    std::size_t end = 1;
    if (isDigit(first)) {
        while (end < text.size() && isDigit(text[end]))
            ++end;
        if (end == text.size()) return npos;
        if (!isASCII(text[end])) return 0;
        if (text[end] != '.' && text[end] != ')') return npos;
        ++end;
    } else if (first != '-' && first != '*' && first != '+') {
        return npos;
    }
    return end < text.size() && maySpace(text[end]) ? 0 : npos;
}

std::size_t headingMark(std::string_view text, std::size_t from, std::size_t) {
    return from == 0 && text.starts_with('#') ? 0 : npos;
}

std::size_t sectionNumber(std::string_view text, std::size_t from, std::size_t) {
    if (from > 0 || text.empty()) return npos;
    const char first = text.front();
    const bool isRoman = std::string_view("IVXivx").find(first) != npos || text.starts_with("\xE2\x85");  // U+2160 on
    const bool isOther = isSpace(first) || isDigit(first) || maySpaceOrDigit(text, text.begin());
    return isRoman || isOther || text.starts_with("제") ? 0 : npos;
}

}  // namespace vellark::SummaryCandidates
