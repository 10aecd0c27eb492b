// One pass: a table of 256 classes, made per language at compile time, says what a byte may begin; most bytes begin
// nothing and are taken in runs. Words are looked up only when a keyword has their first byte and their length.

#include <VellarkDomain/Conversations/Code/CodeKeywords.hpp>
#include <VellarkDomain/Conversations/Code/CodeSyntax.hpp>

#include <algorithm>
#include <cstring>

namespace vellark {

namespace {

constexpr CodeSyntax swift{
    .keywords = CodeKeywords::swift, .quotes = "\"", .slashComments = true, .tripleQuotes = true, .attributes = true};
constexpr CodeSyntax python{
    .keywords = CodeKeywords::python, .quotes = "\"'", .hashComments = true, .tripleQuotes = true};
constexpr CodeSyntax javaScript{.keywords = CodeKeywords::javaScript, .quotes = "\"'`", .slashComments = true};
constexpr CodeSyntax shell{
    .keywords = CodeKeywords::shell, .quotes = "\"'", .hashComments = true, .rawSingleQuotes = true};
constexpr CodeSyntax jsonSyntax{.keywords = CodeKeywords::json, .quotes = "\"", .slashComments = true, .json = true};

struct NamedSyntax {
    std::string_view name;
    const CodeSyntax* syntax;
};

constexpr NamedSyntax namedSyntaxes[] = {
    {"swift", &swift},
    {"py", &python},
    {"python", &python},
    {"python3", &python},
    {"js", &javaScript},
    {"javascript", &javaScript},
    {"jsx", &javaScript},
    {"mjs", &javaScript},
    {"cjs", &javaScript},
    {"ts", &javaScript},
    {"typescript", &javaScript},
    {"tsx", &javaScript},
    {"sh", &shell},
    {"bash", &shell},
    {"zsh", &shell},
    {"shell", &shell},
    {"console", &shell},
    {"shellscript", &shell},
    {"json", &jsonSyntax},
    {"jsonc", &jsonSyntax},
    {"json5", &jsonSyntax},
};

// What a byte may begin.
enum class Start : std::uint8_t { nothing, word, digit, quote, slash, hash, at, minus };

constexpr bool isDigit(unsigned char byte) {
    return byte >= '0' && byte <= '9';
}

constexpr bool isWordByte(unsigned char byte) {
    return isDigit(byte) || (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || byte == '$' || byte == '_';
}

constexpr auto wordBytes = [] {
    std::array<bool, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        table[byte] = isWordByte(static_cast<unsigned char>(byte)) || byte > 127;
    }
    return table;
}();

// What the scanner asks of a language, byte by byte.
struct ScanTable {
    std::array<Start, 256> starts{};
    std::array<std::uint32_t, 256> keywordLengths{};  // by first byte, a bit for each length that a keyword has
    std::array<std::uint8_t, 256> firstKeyword{};     // by first byte, where its keywords begin in the list

    constexpr explicit ScanTable(const CodeSyntax& syntax) {
        for (std::size_t byte = 0; byte < starts.size(); ++byte)
            starts[byte] = start(syntax, byte);
        for (std::size_t index = syntax.keywords.size(); index-- > 0;) {
            const auto first = static_cast<unsigned char>(syntax.keywords[index][0]);
            keywordLengths[first] |= 1U << syntax.keywords[index].size();
            firstKeyword[first] = static_cast<std::uint8_t>(index);
        }
    }

private:
    static constexpr Start start(const CodeSyntax& syntax, std::size_t byte) {
        if (byte < 128 && syntax.quotes.find(static_cast<char>(byte)) != std::string_view::npos) return Start::quote;
        if (isDigit(static_cast<unsigned char>(byte))) return Start::digit;
        if (wordBytes[byte]) return Start::word;
        if (byte == '/' && syntax.slashComments) return Start::slash;
        if (byte == '#' && syntax.hashComments) return Start::hash;
        if (byte == '@' && syntax.attributes) return Start::at;
        if (byte == '-' && syntax.json) return Start::minus;
        return Start::nothing;
    }
};

const ScanTable& tableOf(const CodeSyntax& syntax) {
    static constexpr ScanTable swiftTable(swift);
    static constexpr ScanTable pythonTable(python);
    static constexpr ScanTable javaScriptTable(javaScript);
    static constexpr ScanTable shellTable(shell);
    static constexpr ScanTable jsonTable(jsonSyntax);
    if (&syntax == &swift) return swiftTable;
    if (&syntax == &python) return pythonTable;
    if (&syntax == &javaScript) return javaScriptTable;
    if (&syntax == &shell) return shellTable;
    return jsonTable;
}

class Scanner {
public:
    Scanner(const CodeSyntax& syntax, std::string_view text, LineBuilder& lines)
        : syntax_(syntax), table_(tableOf(syntax)), text_(text), lines_(lines) {}

    void run() {
        std::size_t plainStart = 0;
        std::size_t position = 0;
        while (position < text_.size()) {
            CodeTokenKind kind = CodeTokenKind::plain;
            const std::size_t end = tokenEnd(position, kind);
            if (kind != CodeTokenKind::plain) {
                lines_.add(plainStart, position, CodeTokenKind::plain);
                lines_.add(position, end, kind);
                plainStart = end;
            }
            position = end;
        }
        lines_.add(plainStart, position, CodeTokenKind::plain);
    }

private:
    unsigned char byte(std::size_t position) const { return static_cast<unsigned char>(text_[position]); }
    bool isAt(std::size_t position, char expected) const {
        return position < text_.size() && text_[position] == expected;
    }
    bool isDigitAt(std::size_t position) const { return position < text_.size() && isDigit(byte(position)); }
    unsigned char previous(std::size_t position) const { return position == 0 ? '\n' : byte(position - 1); }

    // End of the token that begins at the position, which is not behind the text's end; its kind in `kind`.
    std::size_t tokenEnd(std::size_t position, CodeTokenKind& kind) const {
        switch (table_.starts[byte(position)]) {
            case Start::nothing:
                return position + 1;
            case Start::word:
                return word(position, kind);
            case Start::digit:
                if (isWordByte(previous(position))) return position + 1;
                return number(position, false, kind);
            case Start::quote:
                return string(position, kind);
            case Start::slash:
                return slash(position, kind);
            case Start::hash:
                return hash(position, kind);
            case Start::at:
                return attribute(position, kind);
            case Start::minus:
                if (!isDigitAt(position + 1)) return position + 1;
                return number(position, true, kind);
        }
        return position + 1;
    }

    std::size_t wordEnd(std::size_t position) const {
        while (position < text_.size() && wordBytes[byte(position)])
            ++position;
        return position;
    }

    std::size_t word(std::size_t position, CodeTokenKind& kind) const {
        const std::size_t end = wordEnd(position + 1);
        if (isKeyword(text_.substr(position, end - position))) kind = CodeTokenKind::keyword;
        return end;
    }

    bool isKeyword(std::string_view word) const {
        const auto first = static_cast<unsigned char>(word[0]);
        if (word.size() >= 32 || (table_.keywordLengths[first] >> word.size() & 1U) == 0) return false;
        for (std::size_t index = table_.firstKeyword[first]; index < syntax_.keywords.size(); ++index) {
            const std::string_view keyword = syntax_.keywords[index];
            if (keyword[0] != word[0]) return false;
            if (keyword == word) return true;
        }
        return false;
    }

    std::size_t attribute(std::size_t position, CodeTokenKind& kind) const {
        const std::size_t end = wordEnd(position + 1);
        if (end > position + 1) kind = CodeTokenKind::keyword;
        return end;
    }

    std::size_t number(std::size_t position, bool isNegative, CodeTokenKind& kind) const {
        kind = CodeTokenKind::number;
        std::size_t end = position + 1;
        while (end < text_.size()) {
            const bool isPoint = text_[end] == '.' && (isNegative || isDigitAt(end + 1));
            if (!isPoint && !isWordByte(byte(end))) break;
            ++end;
        }
        return end;
    }

    std::size_t lineEnd(std::size_t position) const { return std::min(text_.find('\n', position), text_.size()); }

    std::size_t slash(std::size_t position, CodeTokenKind& kind) const {
        if (isAt(position + 1, '*')) {
            kind = CodeTokenKind::comment;
            const std::size_t close = text_.find("*/", position + 2);
            return close == std::string_view::npos ? text_.size() : close + 2;
        }
        if (!isAt(position + 1, '/')) return position + 1;
        kind = CodeTokenKind::comment;
        return lineEnd(position);
    }

    std::size_t hash(std::size_t position, CodeTokenKind& kind) const {
        const unsigned char before = previous(position);
        if (before != '\t' && before != '\n' && before != ' ') return position + 1;
        kind = CodeTokenKind::comment;
        return lineEnd(position);
    }

    std::size_t string(std::size_t position, CodeTokenKind& kind) const {
        const char quote = text_[position];
        const bool isTriple = syntax_.tripleQuotes && isAt(position + 1, quote) && isAt(position + 2, quote);
        const std::size_t end = isTriple ? tripleEnd(position + 3, quote) : stringEnd(position + 1, quote);
        kind = syntax_.json && isBeforeColon(end) ? CodeTokenKind::key : CodeTokenKind::string;
        return end;
    }

    std::size_t tripleEnd(std::size_t position, char quote) const {
        while (position < text_.size()) {
            if (text_[position] == '\\') {
                position += 2;
            } else if (text_[position] == quote && isAt(position + 1, quote) && isAt(position + 2, quote)) {
                return position + 3;
            } else {
                ++position;
            }
        }
        return text_.size();
    }

    // An escaped line feed goes on with the string; a bare one ends it, but for a template string.
    std::size_t stringEnd(std::size_t position, char quote) const {
        const bool isRaw = syntax_.rawSingleQuotes && quote == '\'';
        while (position < text_.size()) {
            const char current = text_[position];
            if (current == '\\' && !isRaw) {
                position += 2;
            } else if (current == quote) {
                return position + 1;
            } else if (current == '\n' && quote != '`') {
                return position;
            } else {
                ++position;
            }
        }
        return text_.size();
    }

    bool isBeforeColon(std::size_t position) const {
        while (isAt(position, ' ') || isAt(position, '\t'))
            ++position;
        return isAt(position, ':');
    }

    const CodeSyntax& syntax_;
    const ScanTable& table_;
    std::string_view text_;
    LineBuilder& lines_;
};

}  // namespace

void LineBuilder::add(std::size_t start, std::size_t end, CodeTokenKind kind) {
    const std::string_view text = block_.text;
    while (start < end) {
        const void* feed = std::memchr(text.data() + start, '\n', end - start);
        const std::size_t stop =
            feed == nullptr ? end : static_cast<std::size_t>(static_cast<const char*>(feed) - text.data());
        if (stop > start) {
            if (!atLineStart_ && block_.tokens.back().kind == kind) {
                block_.tokens.back().end = static_cast<std::uint32_t>(stop);
            } else {
                block_.tokens.push_back({static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(stop), kind});
            }
            atLineStart_ = false;
        }
        if (feed == nullptr) return;
        finishLine();
        start = stop + 1;
    }
}

void LineBuilder::finishLine() {
    block_.lineEnds.push_back(static_cast<std::uint32_t>(block_.tokens.size()));
    atLineStart_ = true;
}

void LineBuilder::finish() {
    if (!atLineStart_ || block_.lineEnds.empty()) finishLine();
}

const CodeSyntax* CodeSyntax::named(std::string_view language) {
    for (const NamedSyntax& row : namedSyntaxes) {
        if (row.name == language) return row.syntax;
    }
    return nullptr;
}

void CodeSyntax::scan(std::string_view text, std::size_t end, LineBuilder& lines) const {
    Scanner(*this, text.substr(0, end), lines).run();
}

}  // namespace vellark
