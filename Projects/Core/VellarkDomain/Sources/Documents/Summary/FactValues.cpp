#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkDomain/Documents/Summary/FactPattern.hpp>
#include <VellarkDomain/Documents/Summary/FactValues.hpp>
#include <VellarkDomain/Documents/Summary/SummaryText.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>
#include <VellarkFoundation/Unicode/Normalization.hpp>

#include <algorithm>
#include <set>
#include <vector>

namespace vellark {

namespace FactValues {

namespace {

bool isDigitAt(std::string_view text, std::size_t offset) {
    return offset < text.size() && CharacterClass::isDecimalDigit(UTF8::decode(text, offset).scalar);
}

bool isPoint(char byte) {
    return byte == '.' || byte == ',';
}

bool isInsideNumber(std::string_view text, ByteRange range) {
    if (range.start > 0) {
        const std::size_t before = UTF8::previousOffset(text, range.start);
        if (isPoint(text[before]) || isDigitAt(text, before)) return true;
    }
    if (isDigitAt(text, range.end)) return true;
    return range.end < text.size() && isPoint(text[range.end]) && isDigitAt(text, range.end + 1);
}

// Where the value stands; the start of the text when it is nowhere.
ByteRange placeOf(std::string_view value, std::string_view text) {
    if (const auto written = writtenRange(value, text)) return *written;
    const std::size_t found = SummaryText::find(text, value);
    if (found == text.npos) return {};
    return {found, found + value.size()};
}

std::string_view sentenceAround(ByteRange value, std::string_view text) {
    std::size_t start = 0;
    std::size_t end = text.size();
    if (const auto& sentenceEnd = FactPattern::shared().sentenceEnd) {
        const RegexText prepared(text);
        RegexMatcher marks(*sentenceEnd, prepared);
        while (marks.find() == RegexOutcome::match) {
            const ByteRange mark = marks.range();
            if (mark.end <= value.start) {
                start = mark.end;
            } else if (mark.start >= value.end) {
                end = mark.end;
                break;
            }
        }
    }
    return Whitespace::trimmed(text.substr(start, end - start));
}

}  // namespace

std::optional<ByteRange> writtenRange(std::string_view value, std::string_view text) {
    for (std::size_t start = text.find(value); start != text.npos; start = text.find(value, start + 1)) {
        const ByteRange range{start, start + value.size()};
        if (!isInsideNumber(text, range)) return range;
    }
    return std::nullopt;
}

std::string fitted(std::string_view text, std::string_view value) {
    constexpr std::size_t leadingLength = 40;
    if (!GraphemeBreak::exceeds(text, factLength)) return std::string(text);
    const std::string_view sentence = sentenceAround(placeOf(value, text), text);
    const Graphemes characters(sentence);
    if (!characters.exceeds(factLength)) return std::string(sentence);
    const std::size_t place = characters.characterAt(placeOf(value, sentence).start);
    if (place <= leadingLength) return DocumentSummaryExtractor::cut(sentence, factLength);
    const std::string_view rest = sentence.substr(characters.byteOffset(place - leadingLength));
    return "…" + DocumentSummaryExtractor::cut(rest, factLength);
}

}  // namespace FactValues

namespace DocumentSummaryExtractor {

namespace {

std::vector<std::string_view> matchesOf(const std::optional<Regex>& expression, std::string_view text) {
    std::vector<std::string_view> result;
    if (!expression) return result;
    const RegexText prepared(text);
    RegexMatcher matcher(*expression, prepared);
    while (matcher.find() == RegexOutcome::match)
        result.push_back(matcher.string());
    return result;
}

std::set<std::string> numbersIn(std::string_view text) {
    std::set<std::string> result;
    for (const std::string_view match : matchesOf(FactPattern::shared().number, text))
        result.insert(SummaryText::replacing(match, ",", ""));
    return result;
}

bool isLongNumber(std::string_view number) {
    constexpr int shortNumber = 3;
    int digits = 0;
    for (const char32_t scalar : Scalars(number))
        digits += CharacterClass::isDecimalDigit(scalar) ? 1 : 0;
    return digits > shortNumber;
}

// Long numbers are told apart by their digits alone; short ones and words of scale need the writing around them.
bool isAmount(std::string_view value, std::string_view context) {
    const auto& scale = FactPattern::shared().scale;
    const auto stated = numbersIn(value);
    const bool hasScale = scale && containsMatch(*scale, value);
    if (!hasScale && std::all_of(stated.begin(), stated.end(), isLongNumber)) {
        const auto known = numbersIn(context);
        return std::includes(known.begin(), known.end(), stated.begin(), stated.end());
    }
    const std::string written = SummaryText::withoutWhitespace(value);
    return FactValues::writtenRange(SummaryText::trimmed(written, ",."), SummaryText::withoutWhitespace(context))
        .has_value();
}

std::vector<std::string_view> statedValues(std::string_view fact) {
    std::vector<std::string_view> result;
    const SummarySubject subject(fact);
    SummaryMatches values(FactPattern::shared().statedValue, subject);
    while (const auto value = values.next())
        result.push_back(value->of(fact));
    return result;
}

std::string_view withoutLabel(std::string_view fact) {
    const auto& labelEnd = FactPattern::shared().labelEnd;
    if (!labelEnd) return fact;
    const RegexText text(fact);
    RegexMatcher matcher(*labelEnd, text);
    return matcher.find() == RegexOutcome::match ? fact.substr(matcher.range().end) : fact;
}

}  // namespace

bool isFact(std::string_view fact, std::string_view statedIn) {
    const auto values = statedValues(fact);
    if (!values.empty()) {
        return std::all_of(values.begin(), values.end(),
                           [&](std::string_view value) { return isAmount(value, statedIn); });
    }
    const std::string_view rest = withoutLabel(fact);
    const auto tokens = matchesOf(FactPattern::shared().numberWithUnit, rest);
    if (tokens.empty()) return SummaryText::contains(Normalization::nfc(statedIn), Normalization::nfc(rest));
    return std::all_of(tokens.begin(), tokens.end(),
                       [&](std::string_view token) { return FactValues::writtenRange(token, statedIn).has_value(); });
}

}  // namespace DocumentSummaryExtractor

}  // namespace vellark
