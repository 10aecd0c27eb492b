#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkDomain/Documents/Summary/SummaryText.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>
#include <VellarkFoundation/Unicode/Normalization.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <algorithm>
#include <array>

// A small reader of the YAML that people write above their notes, not a YAML parser: flat keys, lists, block texts.
// It either understands every line of the block or takes the whole block for text.

namespace vellark::DocumentSummaryExtractor {

namespace {

using GraphemeBreak::startsWith;

bool isBlockIndicator(std::string_view value) {
    constexpr auto indicators = std::to_array<std::string_view>({">", "|", ">-", "|-", ">+", "|+"});
    return std::find(indicators.begin(), indicators.end(), value) != indicators.end();
}

std::string_view unquoted(std::string_view text) {
    if (text.size() < 2) return text;
    const std::string_view quote = text.substr(0, 1);
    if (quote != "\"" && quote != "'") return text;
    if (!startsWith(text, quote) || !text.ends_with(quote) || !SummaryText::isBoundary(text, text.size() - 1)) {
        return text;
    }
    return text.substr(1, text.size() - 2);
}

bool startsWithWhitespace(std::string_view line) {
    return !line.empty() && CharacterClass::isWhitespace(line);
}

bool isKey(std::string_view key) {
    if (key.empty()) return false;
    for (std::size_t start = 0, end = 0; start < key.size(); start = end) {
        end = GraphemeBreak::next(key, start);
        const std::string_view character = key.substr(start, end - start);
        const bool isKeyCharacter = character == "_" || character == "-" || CharacterClass::isLetter(character) ||
                                    CharacterClass::isNumber(character);
        if (!isKeyCharacter) return false;
    }
    return true;
}

// Collects the pieces of a value that has several.
class Pieces {
public:
    explicit Pieces(std::string_view separator) : separator_(separator) {}

    void add(std::string_view piece) {
        const std::string_view text = unquoted(piece);
        if (text.empty()) return;
        if (!value_.empty()) value_ += separator_;
        value_ += text;
    }

    [[nodiscard]] std::string take() { return std::move(value_); }

private:
    std::string_view separator_;
    std::string value_;
};

constexpr std::string_view listSeparator = " · ";

std::string flowList(std::string_view value) {
    Pieces pieces(listSeparator);
    for (const std::string_view piece : SummaryText::split(value.substr(1, value.size() - 2), ","))
        pieces.add(Whitespace::trimmed(piece));
    return pieces.take();
}

bool isFlowList(std::string_view value) {
    return value.size() >= 2 && startsWith(value, "[") && value.ends_with(']') &&
           SummaryText::isBoundary(value, value.size() - 1);
}

// Reads the lines between the two delimiters.
class BlockReader {
public:
    explicit BlockReader(Lines block) : block_(block) {}

    /// False when the block is no front matter.
    bool read() {
        while (next_ < block_.size()) {
            if (!readEntry(block_[next_++])) return false;
        }
        return !values_.empty();
    }

    [[nodiscard]] std::map<std::string, std::string> takeValues() { return std::move(values_); }

private:
    bool readEntry(std::string_view line) {
        const std::string_view trimmed = Whitespace::trimmed(line);
        if (trimmed.empty() || startsWith(trimmed, "#")) return true;
        const bool isContinuation = startsWithWhitespace(line) || trimmed == "-" || startsWith(trimmed, "- ");
        if (isContinuation) return !values_.empty();

        const std::size_t colon = SummaryText::find(line, ":");
        if (colon == line.npos) return false;
        std::string key = UnicodeCase::lower(Whitespace::trimmed(line.substr(0, colon)));
        if (!isKey(key)) return false;
        const std::string_view written = Whitespace::trimmed(line.substr(colon + 1));
        const std::string value = valueOf(written);
        values_.emplace(Normalization::nfc(key), unquoted(value));
        return true;
    }

    std::string valueOf(std::string_view written) {
        if (written.empty() || isBlockIndicator(written)) return block(written.empty());
        if (isFlowList(written)) return flowList(written);
        return std::string(written);
    }

    std::string block(bool isList) {
        Pieces pieces(isList ? listSeparator : " ");
        for (; next_ < block_.size(); ++next_) {
            const std::string_view line = block_[next_];
            std::string_view piece = Whitespace::trimmed(line);
            const bool isEntry = startsWith(piece, "- ");
            if (!line.empty() && !startsWithWhitespace(line) && !isEntry) break;
            if (isList && isEntry) piece.remove_prefix(2);
            pieces.add(piece);
        }
        return pieces.take();
    }

    Lines block_;
    std::size_t next_ = 0;
    std::map<std::string, std::string> values_;
};

}  // namespace

FrontMatter frontMatter(std::string_view text) {
    std::vector<std::string_view> lines = SummaryText::lines(text);
    for (std::string_view& line : lines) {
        if (line.ends_with('\r')) line.remove_suffix(1);
    }
    if (Whitespace::trimmed(lines.front()) != "---") return {{}, std::move(lines)};
    const auto close = std::find_if(lines.begin() + 1, lines.end(), [](std::string_view line) {
        const std::string_view trimmed = Whitespace::trimmed(line);
        return trimmed == "---" || trimmed == "...";
    });
    if (close == lines.end()) return {{}, std::move(lines)};
    BlockReader reader(Lines(lines.begin() + 1, close));
    if (!reader.read()) return {{}, std::move(lines)};
    return {reader.takeValues(), {close + 1, lines.end()}};
}

}  // namespace vellark::DocumentSummaryExtractor
