#include <VellarkDomain/Documents/Summary/ConclusionWords.hpp>
#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkDomain/Documents/Summary/FactPattern.hpp>
#include <VellarkDomain/Documents/Summary/SummaryBytes.hpp>
#include <VellarkDomain/Documents/Summary/SummaryConclusion.hpp>
#include <VellarkDomain/Documents/Summary/SummaryInline.hpp>
#include <VellarkDomain/Documents/Summary/SummaryMarkers.hpp>
#include <VellarkDomain/Documents/Summary/SummaryText.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>
#include <VellarkFoundation/Unicode/Normalization.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <algorithm>
#include <optional>

namespace vellark {

namespace {

using DocumentSummaryExtractor::cut;
using DocumentSummaryExtractor::headingLevel;
using DocumentSummaryExtractor::isConclusionName;
using DocumentSummaryExtractor::Lines;
using SummaryText::startsWith;

constexpr std::size_t conclusionLength = 120;

// Whether only ASCII has cases, and nothing can compose: ASCII, Chinese characters and Hangul syllables.
bool isPlainlyCased(std::string_view text) {
    for (std::size_t offset = 0; offset < text.size(); ++offset) {
        const auto byte = static_cast<unsigned char>(text[offset]);
        const bool isContinuation = byte >= 0x80 && byte < 0xC0;
        if (byte >= 0x80 && !isContinuation && !SummaryBytes::isSyllable(text, offset)) return false;
    }
    return true;
}

// Texts are looked up in lower case and NFC: decomposed Korean and Vietnamese come with many files.
std::string lookedUp(std::string_view text) {
    if (isPlainlyCased(text)) {
        std::string result(text);
        for (char& byte : result) {
            if (byte >= 'A' && byte <= 'Z') byte = static_cast<char>(byte - 'A' + 'a');
        }
        return result;
    }
    return Normalization::nfc(UnicodeCase::lower(text));
}

template <class Words>
bool isAmong(const Words& words, std::string_view text) {
    return std::find(words.begin(), words.end(), text) != words.end();
}

template <class Words>
bool holdsAny(std::string_view text, const Words& words) {
    return std::any_of(words.begin(), words.end(),
                       [&](std::string_view word) { return SummaryText::contains(text, word); });
}

std::string_view withoutTitleNumber(std::string_view text) {
    return text.substr(SummaryMarkers::sectionNumber(text));
}

bool isTrimmedFromStatement(char32_t scalar) {
    return Whitespace::isWhitespace(scalar) || CharacterClass::isPunctuation(scalar);
}

std::string_view withoutOuterPunctuation(std::string_view text) {
    while (!text.empty() && isTrimmedFromStatement(UTF8::decode(text, 0).scalar))
        text.remove_prefix(UTF8::decode(text, 0).byteCount);
    while (!text.empty()) {
        const std::size_t last = UTF8::previousOffset(text, text.size());
        if (!isTrimmedFromStatement(UTF8::decode(text, last).scalar)) break;
        text = text.substr(0, last);
    }
    return text;
}

bool endsWith(std::string_view text, std::string_view mark) {
    return text.ends_with(mark) && SummaryText::isBoundary(text, text.size() - mark.size());
}

bool holdsLetterOrNumber(std::string_view text) {
    const char32_t first = UTF8::decode(text, 0).scalar;
    if (CharacterClass::isLetter(first) || CharacterClass::isNumber(first)) return true;
    const Graphemes characters(text);
    for (std::size_t index = 0; index < characters.count(); ++index) {
        if (CharacterClass::isLetter(characters[index]) || CharacterClass::isNumber(characters[index])) return true;
    }
    return false;
}

// Whether the text states something: no question, no placeholder, no "to be decided".
bool isStatement(std::string_view text) {
    const std::string lowered = lookedUp(withoutOuterPunctuation(text));
    if (lowered.empty() || isAmong(ConclusionWords::unsettledValues, lowered)) return false;
    const std::string_view trimmed = SummaryText::trimmed(text);
    if (endsWith(trimmed, "?") || endsWith(trimmed, "？")) return false;
    if (startsWith(trimmed, "{") || startsWith(trimmed, "[")) return false;
    return holdsLetterOrNumber(lowered);
}

bool startsOtherBlock(std::string_view line) {
    constexpr auto marks = std::to_array<std::string_view>({"|", ">", "<", "![", "%%", "#"});
    if (line.empty() || std::string_view("|><!%#").find(line.front()) == line.npos) return false;
    return std::any_of(marks.begin(), marks.end(), [&](std::string_view mark) { return startsWith(line, mark); });
}

// A label, a colon and a statement: "Decision: we move."
std::optional<std::string> labelledConclusion(std::string_view line) {
    constexpr std::size_t longestLabel = 32;
    const auto labelEnd = SummaryText::findColon(line).offset;
    if (labelEnd == line.npos) return std::nullopt;
    const std::string_view label = line.substr(0, labelEnd);
    if (GraphemeBreak::exceeds(label, longestLabel) || startsOtherBlock(line)) return std::nullopt;
    const std::string plainLabel = DocumentSummaryExtractor::plainLine(label);
    if (!isConclusionName(plainLabel)) return std::nullopt;

    constexpr SummaryBytes::Traits marks =
        SummaryBytes::tick | SummaryBytes::slash | SummaryBytes::tilde | SummaryBytes::dollar;
    std::string cleaned(line);
    if ((SummaryBytes::of(line) & marks) != 0) replaceMatches(FactPattern::shared().notValueText, cleaned, "");
    const std::string text = DocumentSummaryExtractor::plainLine(cleaned);
    if (text.empty() || DocumentSummaryExtractor::isNavigation(line)) return std::nullopt;
    const auto colon = SummaryText::findColon(text);
    if (colon.offset == text.npos) return std::nullopt;
    const std::string_view name = std::string_view(text).substr(0, colon.offset);
    const std::string_view statement = std::string_view(text).substr(colon.offset + colon.size);
    if (!isStatement(statement) || (name != plainLabel && !isConclusionName(name))) return std::nullopt;
    return cut(text, conclusionLength);
}

// "U.S." and the like: a point behind one capital that stands behind another point.
bool endsInitials(const Graphemes& characters, std::size_t point) {
    const std::size_t index = characters.characterAt(point);
    return index >= 2 && characters[index - 2] == "." && CharacterClass::isUppercase(characters[index - 1]);
}

std::string_view upToFirstSentenceEnd(std::string_view text) {
    static const auto sentenceEnd = Regex::compile(R"([.!?](?=\s|$)|[。！？])");
    if (!sentenceEnd) return text;
    const RegexText prepared(text);
    RegexMatcher marks(*sentenceEnd, prepared);
    const Graphemes characters(text);
    while (marks.find() == RegexOutcome::match) {
        const ByteRange mark = marks.range();
        if (mark.of(text) == "." && endsInitials(characters, mark.start)) continue;
        return text.substr(0, mark.end);
    }
    return text;
}

bool pointsToList(std::string_view text) {
    return endsWith(text, ":") || endsWith(text, "：") || holdsAny(lookedUp(text), ConclusionWords::leadIns);
}

std::optional<std::string> firstItem(Lines lines) {
    for (const std::string_view line : lines) {
        if (const auto item = DocumentSummaryExtractor::listItem(SummaryText::trimmed(line))) {
            return DocumentSummaryExtractor::plainInline(*item);
        }
    }
    return std::nullopt;
}

// The first statement of a section.
std::optional<std::string> firstSentence(Lines lines) {
    auto [text, items] = DocumentSummaryExtractor::prose(lines);
    if (!items.empty()) text = items.front();
    if (text.empty()) return std::nullopt;
    if (pointsToList(text)) {
        auto item = firstItem(lines);
        if (!item) return std::nullopt;
        text = std::move(*item);
    }
    const std::string_view sentence = upToFirstSentenceEnd(text);
    if (!isStatement(sentence)) return std::nullopt;
    return std::string(sentence);
}

// The lines from the index on, up to the next heading.
Lines sectionBody(Lines lines, std::size_t first) {
    std::size_t end = first;
    while (end < lines.size() && !headingLevel(lines[end]))
        ++end;
    return lines.subspan(first, end - first);
}

bool isExcludedSection(std::string_view name) {
    constexpr std::size_t shortestWord = 6;  // bytes, before and behind lower case
    return name.size() >= shortestWord && holdsAny(lookedUp(name), ConclusionWords::excludedSections);
}

std::string sectionName(std::string_view heading) {
    const std::string text = SummaryInline::headingText(heading);
    return std::string(SummaryText::trimmed(withoutTitleNumber(text), U":： "));
}

// The walk over the headings and labelled lines of a document.
class ConclusionSearch {
public:
    explicit ConclusionSearch(Lines lines) : lines_(lines) {}

    std::optional<std::string> run() {
        for (std::size_t index = 0; index < lines_.size(); ++index) {
            const auto level = headingLevel(lines_[index]);
            if (!level) {
                if (isActive_ && !labelled_) labelled_ = labelledConclusion(SummaryText::trimmed(lines_[index]));
            } else if (isActive_ || sectionLevel_ >= *level) {
                if (auto found = enterSection(index, *level)) return found;
            }
        }
        return labelled_;
    }

private:
    std::optional<std::string> enterSection(std::size_t index, int level) {
        const std::string name = sectionName(lines_[index]);
        const bool isExcluded = isExcludedSection(name);
        isActive_ = !isExcluded;
        sectionLevel_ = isExcluded ? level : 0;
        if (isConclusionName(name)) return conclusionUnder(name, index);
        if (level >= 2 && !isExcluded && !labelled_) labelled_ = labelledConclusion(name);
        return std::nullopt;
    }

    [[nodiscard]] std::optional<std::string> conclusionUnder(const std::string& name, std::size_t heading) const {
        const auto sentence = firstSentence(sectionBody(lines_, heading + 1));
        if (!sentence) return std::nullopt;
        return cut(labelledConclusion(*sentence).value_or(name + ": " + *sentence), conclusionLength);
    }

    Lines lines_;
    std::optional<std::string> labelled_;  // stands in when no section concludes
    bool isActive_ = true;                 // false inside a section of examples
    int sectionLevel_ = 0;                 // of that section
};

// Whether a byte stands in the name that one of the separators must have.
bool mayHoldSeparator(std::string_view name) {
    return std::any_of(name.begin(), name.end(),
                       [](char byte) { return byte == ' ' || byte == '/' || byte == "·"[0]; });
}

std::string compact(std::string_view text) {
    return Normalization::nfc(SummaryText::withoutWhitespace(UnicodeCase::lower(text)));
}

}  // namespace

std::optional<std::string> SummaryConclusion::conclusionOf(Lines prose) {
    return ConclusionSearch(prose).run();
}

namespace DocumentSummaryExtractor {

std::optional<std::string> conclusion(Lines lines, bool markdown, bool isComplete) {
    return SummaryConclusion::conclusionOf(proseLines(lines, markdown, isComplete));
}

bool isConclusionName(std::string_view text) {
    constexpr std::size_t shortestName = 4;  // bytes
    if (text.size() < shortestName) return false;
    const std::string name = lookedUp(withoutTitleNumber(text));
    std::string_view first = name;
    if (mayHoldSeparator(name)) {
        for (const std::string_view separator : ConclusionWords::nameSeparators)
            first = first.substr(0, SummaryText::find(first, separator));
    }
    std::string plain = SummaryText::withoutWhitespace(first);
    for (const std::string_view colon : {":", "："}) {
        if (plain.find(colon) != plain.npos) plain = SummaryText::replacing(plain, colon, "");
    }
    return isAmong(ConclusionWords::names, plain);
}

bool isConclusion(std::string_view conclusion, std::string_view statedIn) {
    const auto colon = SummaryText::findColon(conclusion);
    const std::string_view tail =
        colon.offset == conclusion.npos ? conclusion : conclusion.substr(colon.offset + colon.size);
    const std::string needle = compact(SummaryText::trimmed(tail, U"….。!！ "));
    return !needle.empty() && SummaryText::contains(compact(statedIn), needle);
}

}  // namespace DocumentSummaryExtractor

}  // namespace vellark
