#include <VellarkDomain/Conversations/RichText/RichTextLine.hpp>
#include <VellarkFoundation/Text/LineBreaks.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <algorithm>
#include <cstring>

namespace vellark::RichTextLine {

namespace {

constexpr std::size_t leastFence = 3;
constexpr std::size_t leastRule = 3;
constexpr std::size_t leastUnderline = 2;
constexpr std::size_t greatestUnderlineIndent = 3;
constexpr std::size_t greatestNumberDigits = 9;
constexpr std::size_t tabColumns = 4;

bool isASCII(char character) {
    return static_cast<unsigned char>(character) < 0x80;
}

// Whether the byte, which begins a character, is that whole character.
bool isWhole(std::string_view text, std::size_t position) {
    if (position + 1 == text.size()) return true;
    if (isASCII(text[position + 1])) return text[position] != '\r' || text[position + 1] != '\n';
    return GraphemeBreak::next(text, position) == position + 1;
}

bool isAt(std::string_view text, std::size_t position, char character) {
    return position < text.size() && text[position] == character && isWhole(text, position);
}

bool isBlankOrTabAt(std::string_view text, std::size_t position) {
    return isAt(text, position, ' ') || isAt(text, position, '\t');
}

// Length of the run of one character at the start.
std::size_t runLength(std::string_view text, char character) {
    std::size_t length = 0;
    while (isAt(text, length, character))
        ++length;
    return length;
}

bool isWhitespaceAt(std::string_view text, std::size_t position) {
    return position < text.size() && CharacterClass::isWhitespace(text.substr(position));
}

bool isDigitAt(std::string_view text, std::size_t position) {
    return position < text.size() && text[position] >= '0' && text[position] <= '9' && isWhole(text, position);
}

// Whether the text has the character, of ASCII, as a whole one.
bool hasCharacter(std::string_view text, char character) {
    if (text.find(character) == std::string_view::npos) return false;
    if (UTF8::isASCII(text)) return true;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t next = GraphemeBreak::next(text, start);
        if (next == start + 1 && text[start] == character) return true;
        start = next;
    }
    return false;
}

}  // namespace

std::string_view content(std::string_view line) {
    std::size_t start = 0;
    while (start < line.size()) {
        if ((line[start] == ' ' || line[start] == '\t') && isWhole(line, start)) {
            ++start;
        } else if (isASCII(line[start]) && line[start] > ' ') {
            break;
        } else if (isWhitespaceAt(line, start)) {
            start = GraphemeBreak::next(line, start);
        } else {
            break;
        }
    }
    return line.substr(start);
}

bool isBlank(std::string_view line) {
    return content(line).empty();
}

bool beginsWith(std::string_view text, char character) {
    return isAt(text, 0, character);
}

std::size_t indentWidth(std::string_view line) {
    std::size_t width = 0;
    for (std::size_t position = 0; isBlankOrTabAt(line, position); ++position) {
        width += line[position] == '\t' ? tabColumns : 1;
    }
    return width;
}

std::optional<Fence> fence(std::string_view content) {
    if (content.empty() || (content[0] != '`' && content[0] != '~')) return std::nullopt;
    const std::size_t length = runLength(content, content[0]);
    if (length < leastFence) return std::nullopt;
    const std::string_view rest = content.substr(length);
    if (content[0] == '`' && hasCharacter(rest, '`')) return std::nullopt;
    std::size_t start = 0;  // of the first piece
    std::size_t end = 0;
    while (end < rest.size()) {
        const std::size_t next = GraphemeBreak::next(rest, end);
        const bool isSeparator = isWhitespaceAt(rest, end) || isAt(rest, end, '{') || isAt(rest, end, ',');
        if (isSeparator && end > start) break;
        if (isSeparator) start = next;
        end = next;
    }
    return Fence{
        .marker = content[0], .length = length, .language = UnicodeCase::lower(rest.substr(start, end - start))};
}

bool closes(const Fence& fence, std::string_view content) {
    const std::size_t length = runLength(content, fence.marker);
    return length >= fence.length && isBlank(content.substr(length));
}

int headingLevel(std::string_view content) {
    const std::size_t level = runLength(content, '#');
    if (level < 1 || level > 6) return 0;
    if (level < content.size() && !isWhitespaceAt(content, level)) return 0;
    return static_cast<int>(level);
}

std::string_view headingTitle(std::string_view content, int level) {
    const std::string_view title = Whitespace::trimmed(content.substr(static_cast<std::size_t>(level)));
    if (!title.ends_with('#')) return title;
    const Graphemes characters(title);
    std::size_t end = characters.count();
    while (end > 0 && characters[end - 1] == "#")
        --end;
    if (end > 0 && !CharacterClass::isWhitespace(characters[end - 1])) return title;
    return Whitespace::trimmed(characters.prefix(end));
}

bool isRule(std::string_view content) {
    if (content.empty() || (content[0] != '-' && content[0] != '*' && content[0] != '_')) return false;
    std::size_t count = 0;
    for (std::size_t position = 0; position < content.size();) {
        if (isAt(content, position, content[0])) {
            ++count;
        } else if (!isWhitespaceAt(content, position)) {
            return false;
        }
        position = GraphemeBreak::next(content, position);
    }
    return count >= leastRule;
}

int setextLevel(std::string_view line) {
    const std::string_view trimmed = Whitespace::trimmed(line);
    if (trimmed.size() < leastUnderline || (trimmed[0] != '=' && trimmed[0] != '-')) return 0;
    if (runLength(trimmed, trimmed[0]) != trimmed.size() || indentWidth(line) > greatestUnderlineIndent) return 0;
    return trimmed[0] == '=' ? 1 : 2;
}

std::optional<Item> listItem(std::string_view line) {
    std::size_t position = 0;
    while (isBlankOrTabAt(line, position))
        ++position;
    Item item{.indent = indentWidth(line)};
    if (isAt(line, position, '-') || isAt(line, position, '*') || isAt(line, position, '+')) {
        ++position;
    } else {
        const std::size_t first = position;
        std::int64_t number = 0;
        while (isDigitAt(line, position) && position - first <= greatestNumberDigits) {
            number = number * 10 + (line[position++] - '0');
        }
        const std::size_t digits = position - first;
        if (digits < 1 || digits > greatestNumberDigits) return std::nullopt;
        if (!isAt(line, position, '.') && !isAt(line, position, ')')) return std::nullopt;
        ++position;
        item.number = number;
    }
    if (!isBlankOrTabAt(line, position)) return std::nullopt;
    item.content = content(line.substr(position));
    if (item.content.empty()) return std::nullopt;
    return item;
}

bool isHunk(std::string_view line) {
    constexpr std::string_view start = "@@ -";
    return GraphemeBreak::startsWith(line, start) && line.size() > start.size() &&
           CharacterClass::isNumber(line.substr(start.size()));
}

bool startsDiff(std::string_view line, std::optional<std::string_view> next) {
    if (line.empty() || (line[0] != 'd' && line[0] != '@' && line[0] != '-')) return false;
    if (GraphemeBreak::startsWith(line, "diff --git ") || isHunk(line)) return true;
    return GraphemeBreak::startsWith(line, "--- ") && next && GraphemeBreak::startsWith(*next, "+++ ");
}

bool belongsToDiff(std::string_view line) {
    for (const char first : {' ', '+', '-', '\\'}) {
        if (beginsWith(line, first)) return true;
    }
    constexpr std::string_view starts[] = {"@@",           "diff ",        "index ",  "new file",
                                           "deleted file", "similarity",   "rename ", "old mode",
                                           "new mode",     "Binary files", "copy "};
    return std::any_of(std::begin(starts), std::end(starts),
                       [line](std::string_view start) { return GraphemeBreak::startsWith(line, start); });
}

bool continuesDiffBehindBlank(std::string_view line) {
    return beginsWith(line, ' ') || GraphemeBreak::startsWith(line, "@@") || GraphemeBreak::startsWith(line, "diff ");
}

bool hasBar(std::string_view line) {
    return hasCharacter(line, '|');
}

bool isTableStart(std::string_view line, std::optional<std::string_view> next) {
    if (!next || next->find_first_not_of("|:- \t") != std::string_view::npos) return false;
    return next->find('|') != std::string_view::npos && next->find('-') != std::string_view::npos && hasBar(line);
}

std::vector<std::string_view> cells(std::string_view line) {
    std::string_view text = Whitespace::trimmed(line);
    if (beginsWith(text, '|')) text.remove_prefix(1);
    std::vector<std::string_view> result;
    std::size_t cellStart = 0;
    bool isEscaped = false;
    bool endsInBar = false;  // in one that no backslash stands before
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t next = GraphemeBreak::next(text, start);
        const bool isBar = next == start + 1 && text[start] == '|';
        endsInBar = isBar && !(start > 0 && text[start - 1] == '\\');
        if (isBar && !isEscaped) {
            result.push_back(Whitespace::trimmed(text.substr(cellStart, start - cellStart)));
            cellStart = next;
        }
        isEscaped = !isEscaped && next == start + 1 && text[start] == '\\';
        start = next;
    }
    // A bar at the end only closes the last cell.
    if (!(endsInBar && cellStart == text.size())) result.push_back(Whitespace::trimmed(text.substr(cellStart)));
    return result;
}

namespace {

// Skips what `\s*` matches.
std::size_t skipSpace(std::string_view text, std::size_t position) {
    return text.size() - CharacterClass::trimmedStart(text.substr(position)).size();
}

// End of a quoted string that stands on one line, but for escapes; nothing when none stands there.
std::optional<std::size_t> stringEnd(std::string_view text, std::size_t position) {
    if (position >= text.size() || text[position] != '"') return std::nullopt;
    ++position;
    while (position < text.size()) {
        const char current = text[position];
        if (current == '"') return position + 1;
        if (current == '\n') return std::nullopt;
        if (current == '\\') {
            ++position;
            if (position >= text.size() || LineBreaks::length(text, position) > 0) return std::nullopt;
            position += UTF8::decode(text, position).byteCount;
        } else {
            ++position;
        }
    }
    return std::nullopt;
}

}  // namespace

bool looksLikeJSON(std::string_view text) {
    std::size_t position = skipSpace(text, 0);
    while (position < text.size() && text[position] == '[')
        position = skipSpace(text, position + 1);
    if (position >= text.size() || text[position] != '{') return false;
    const auto keyEnd = stringEnd(text, skipSpace(text, position + 1));
    if (!keyEnd) return false;
    const std::size_t colon = skipSpace(text, *keyEnd);
    if (colon >= text.size() || text[colon] != ':') return false;
    const std::string_view trimmed = CharacterClass::trimmed(text);
    const Graphemes end(trimmed.substr(trimmed.size() - std::min<std::size_t>(trimmed.size(), 64)));
    const std::string_view last = end[end.count() - 1];
    return last == "}" || last == "]" || last == "," || last == "…";
}

}  // namespace vellark::RichTextLine
