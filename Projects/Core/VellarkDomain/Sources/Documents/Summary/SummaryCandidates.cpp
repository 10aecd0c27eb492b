#include <VellarkDomain/Documents/Summary/SummaryCandidates.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>

#include <algorithm>

namespace vellark::SummaryCandidates {

namespace {

constexpr std::size_t npos = std::string_view::npos;

bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

bool isSpace(char byte) {
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

bool stands(std::string_view text, std::size_t offset, char byte) {
    return offset < text.size() && text[offset] == byte;
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
    for (std::size_t start = from; start < text.size(); ++start) {
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
            case '$':
                if (mayBeMathematics(text, start)) return start;
                break;
            default:
                break;
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

std::size_t headingMark(std::string_view text, std::size_t from, std::size_t) {
    return from == 0 && text.starts_with('#') ? 0 : npos;
}

}  // namespace vellark::SummaryCandidates
