#include "Support/RandomInput.hpp"
#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkDomain/Documents/Summary/FactPattern.hpp>
#include <VellarkDomain/Documents/Summary/FactValues.hpp>
#include <VellarkDomain/Documents/Summary/SummaryInline.hpp>
#include <VellarkDomain/Documents/Summary/SummaryMarkers.hpp>
#include <VellarkDomain/Documents/Summary/SummaryText.hpp>
#include <VellarkDomain/Documents/Summary/TotalLabel.hpp>
#include <VellarkFoundation/Text/Whitespace.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>
#include <VellarkFoundation/Unicode/Graphemes.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

// Each expression with its cheap test in front must find what the bare expression finds.

namespace vellark {
namespace {

using testing::randomTexts;
using Ranges = std::vector<ByteRange>;

Ranges plainRanges(const Regex& regex, std::string_view text) {
    Ranges result;
    const RegexText prepared(text);
    RegexMatcher matcher(regex, prepared);
    while (matcher.find() == RegexOutcome::match)
        result.push_back(matcher.range());
    return result;
}

Ranges testedRanges(const SummaryExpression& expression, std::string_view text) {
    Ranges result;
    const SummarySubject subject(text);
    SummaryMatches matches(expression, subject);
    while (const auto match = matches.next())
        result.push_back(*match);
    return result;
}

std::string shown(const Ranges& ranges) {
    std::string result;
    for (const ByteRange& range : ranges)
        result += std::to_string(range.start) + "-" + std::to_string(range.end) + " ";
    return result;
}

const std::vector<std::string> markup = {
    "[", "]",  "(", ")",  "![", "[[", "]]", "](", "|",  "<",  ">",  "</", "a",  "B", "1", " ",        "`", "*", "**",
    "~", "~~", "_", "漢", "Ж",  "½",  "١",  "$",  "$1", "US", "가", "é",  "\n", "-", "·", "https://", "#", "2."};

const std::vector<std::string> values = {
    "1",       "23",        "456",  "7890", ",",    ".",      " ",      " ", "\u00A0", "\u202F", "$",  "US",
    "USD",     "HK$",       "EUR",  "C$",   "₩",    "€",      "¥",      "฿", "원",     "만",     "억", "달러",
    "dollars", "euro",      "円",   "명",   "개",   "시간",   "files",  "a", "Z",      "가",     "-",  "/",
    "1,234",   "1,234,567", "12.5", "٣",    "๑๒๓๔", "１２３", "\u0301", "_", "*",      "^",      "=",  "\\",
    "십",      "씩",        "RMB",  "VND",  "\t",   ":",      "(",      ")"};

const std::vector<std::string> labels = {"total",       "TOTAL",
                                         "Total",       " due",
                                         "amount due",  "gesamt",
                                         "geſamt",      "Gesamtbetrag",
                                         "ſumme",       "Summe",
                                         "итого",       "ИТОГО",
                                         "Иᲄого", "всего",
                                         "ᲀсего", "нийт",
                                         "Нийт дүн",    "tổng cộng",
                                         "TỔNG",        "합계",
                                         "합 계",       "총액",
                                         "총 비용",     "최종 금액",
                                         "견적금액",    "合計",
                                         "合计",        "總計",
                                         "见",          "お見積り金額",
                                         "見積金額",    "御見積金額",
                                         "請求金額",    "รวมทั้งสิ้น",
                                         "ยอดรวม",      "due",
                                         "Due date",    "deadline",
                                         "DEADLINE",    "valid until",
                                         "expires",     "fällig",
                                         "Fälligkeit",  "FÄLLIGKEIT",
                                         "frist",       "FriST",
                                         "fri\uFB05",   "friſt",
                                         "échéance",    "ÉCHÉANCE",
                                         "date limite", "fecha límite",
                                         "срок",        "СРОК",
                                         "ᲃрок",   "thời hạn",
                                         "HẠN CHÓT",    "마감",
                                         "마감일",      "기한",
                                         "무기한",      "유효 기간",
                                         "납기",        "期限",
                                         "締切",        "締め切り",
                                         "納期",        "截止日期",
                                         "有效期",      "有効期間",
                                         " by ",        " on ",
                                         "friday",      "월요일",
                                         "3월 5일",     "2025-03-05",
                                         "미정",        "none",
                                         "0",           ":",
                                         "：",          "=",
                                         " ",           " ",
                                         "|",           "(",
                                         ")",           "약 ",
                                         "~",           "-",
                                         "은",          "x",
                                         "3",           "12",
                                         "\n",          "sub ",
                                         "is "};

TEST(SummaryExpression, findsWhatThePlainExpressionFinds) {
    const FactPattern& pattern = FactPattern::shared();
    struct Row {
        const char* name;
        const SummaryExpression& expression;
        const std::vector<std::string>& pieces;
    };
    const Row rows[] = {
        {"amount", pattern.amount, values},
        {"totalValue", pattern.totalValue, values},
        {"statedValue", pattern.statedValue, values},
        {"totalLabel", pattern.totalLabel, labels},
        {"totalStart", pattern.totalStart, labels},
        {"deadlineLine", pattern.deadlineLine, labels},
        {"deadlineCell", pattern.deadlineCell, labels},
        {"wikiAlias", pattern.wikiAlias, markup},
        {"notValueText", pattern.notValueText, markup},
        {"multiplication", pattern.multiplication, markup},
        {"struck", SummaryInline::struck(), markup},
    };
    for (const Row& row : rows) {
        ASSERT_TRUE(row.expression.regex()) << row.name;
        std::size_t matchCount = 0;
        for (const std::string& text : randomTexts(8, 20'000, 12, row.pieces)) {
            const Ranges expected = plainRanges(*row.expression.regex(), text);
            matchCount += expected.size();
            ASSERT_EQ(shown(testedRanges(row.expression, text)), shown(expected)) << row.name << " in " << text;
        }
        EXPECT_GT(matchCount, 10U) << row.name;
    }
}

TEST(TotalLabel, neverRefusesALabel) {
    const Regex& label = *FactPattern::shared().totalLabel.regex();
    const std::vector<std::string> pieces = {
        "total",      " ",     "\u3000",      "due",       "amount",   "price",     "cost",     "co\u017Ft", "gesamt",
        "o",          "of ",   "to",          "is ",       "i\u017F ", "comes to ", "approx. ", "about ",    "summe",
        "\u017Fumme", "итого", "нийт",        "дүн",       "합계",     "총",        "금액",     "은",        "약",
        "(a)",        "（b）", ":",           "=",         "-",        "–",         "balance",  "x",         "9",
        "\n",         "[는",   "ge\u017Famt", "Endbetrag", "ยอดรวม"};
    int labelCount = 0;
    for (const std::string& text : randomTexts(13, 60'000, 6, pieces)) {
        if (!containsMatch(label, text)) continue;
        ++labelCount;
        ASSERT_TRUE(TotalLabel::mayEnd(text)) << text;
    }
    EXPECT_GT(labelCount, 3'000);
    EXPECT_FALSE(TotalLabel::mayEnd("the total of x "));
    EXPECT_FALSE(TotalLabel::mayEnd("costs "));
}

TEST(SummaryExpression, boundsAliasesOfTwoHundredScalars) {
    const SummaryExpression& alias = FactPattern::shared().wikiAlias;
    for (const std::string letter : {"a", "가", "😀"}) {
        for (const int length : {1, 199, 200, 201, 260}) {
            std::string part;
            for (int count = 0; count < length; ++count)
                part += letter;
            for (const std::string& text : {"[[" + part + "|b]]", "[[a|" + part + "]]", "[[[[" + part + "|b]]"}) {
                EXPECT_EQ(shown(testedRanges(alias, text)), shown(plainRanges(*alias.regex(), text))) << text;
            }
        }
    }
}

// The rules one behind the other, on the bare engine.
std::string plainlyCleaned(std::string_view text) {
    static const std::vector<std::pair<Regex, bool>> rules = {
        {Regex(R"(!\[\[[^\]]*\]\]|!\[[^\]]*\]\([^)]*\))"), false},
        {Regex(R"(\[\[(?:[^\]|]*\|)?([^\]]*)\]\])"), true},
        {Regex(R"(\[([^\]]*)\]\([^)]*\))"), true},
        {Regex(R"(</?[A-Za-z][^>]*>)"), false},
        {Regex(R"(`+)"), false},
        {Regex(R"(\*{1,3})"), false},
        {Regex(R"(~~)"), false},
        {Regex(R"((?<![\p{L}\p{N}])_{1,3}|_{1,3}(?![\p{L}\p{N}]))"), false},
    };
    std::string result(text);
    for (const auto& [regex, keepsGroup] : rules) {
        std::string next;
        std::size_t start = 0;
        const RegexText prepared(result);
        RegexMatcher matcher(regex, prepared);
        while (matcher.find() == RegexOutcome::match) {
            next += result.substr(start, matcher.range().start - start);
            if (keepsGroup) next += matcher.groupString(1).value_or("");
            start = matcher.range().end;
        }
        result = next + result.substr(start);
    }
    return result;
}

TEST(SummaryInline, appliesItsRulesAsTheEngineWould) {
    for (const std::string& text : randomTexts(9, 20'000, 14, markup))
        ASSERT_EQ(SummaryInline::withoutMarkup(text), plainlyCleaned(text)) << text;
}

TEST(SummaryInline, findsMarkersAsTheEngineWould) {
    const Regex marker(R"(^\s*(?:#{1,6}\s+|>+\s*|(?:[-*+]|\d+[.)])\s+(?:\[.\]\s*)?))");
    const Regex item(R"(^(?:[-*+]|\d+[.)])\s+(?:\[.\]\s*)?)");
    const std::vector<std::string> pieces = {"#", "##", ">", "-",      "*",   "+",    "1", "23", "٣",
                                             ".", ")",  " ", "\u3000", "[x]", "[ ] ", "a", "가", "\t"};
    for (const std::string& text : randomTexts(10, 20'000, 8, pieces)) {
        const Ranges marks = plainRanges(marker, text);
        const std::string rest = marks.empty() ? text : text.substr(marks.front().end);
        ASSERT_EQ(DocumentSummaryExtractor::plainLine(text), DocumentSummaryExtractor::plainInline(rest)) << text;
        const Ranges items = plainRanges(item, text);
        const auto found = DocumentSummaryExtractor::listItem(text);
        ASSERT_EQ(found.has_value(), !items.empty()) << text;
        if (found) {
            ASSERT_EQ(*found, text.substr(items.front().end)) << text;
        }
    }
}

TEST(SummaryMarkers, findsSectionNumbersAsTheEngineWould) {
    const Regex number(R"(^(?:제?\s*\d+\s*[장절.)]\.?|[IVXivx]+\.|[Ⅰ-Ⅹ]+\.?)\s*)");
    const std::vector<std::string> pieces = {"제", "1", "23", "٣", "장", "절", ".",  ")",  " ", "\u3000",
                                             "I",  "v", "X",  "Ⅳ", "Ⅺ",  "a",  "가", "章", "-"};
    int matchCount = 0;
    for (const std::string& text : randomTexts(14, 20'000, 6, pieces)) {
        const Ranges expected = plainRanges(number, text);
        matchCount += expected.empty() ? 0 : 1;
        ASSERT_EQ(SummaryMarkers::sectionNumber(text), expected.empty() ? 0 : expected.front().end) << text;
    }
    EXPECT_GT(matchCount, 1'000);
}

TEST(SummaryText, collapsesCharacterByCharacter) {
    const std::vector<std::string> pieces = {" ",      "  ",     "a",      "Z",      "가",     "하",     "漢", "é",
                                             "\u0301", "\u0600", "\u200D", "\u00A0", "\u3000", "\u200B", "\r", "\n",
                                             "\r\n",   "\t",     "👩",      "\uA66F", "\u11A8", "ก",      "."};
    for (const std::string& text : randomTexts(15, 20'000, 9, pieces)) {
        std::string collapsed;
        std::string compact;
        bool isApart = false;
        const Graphemes characters(text);
        for (std::size_t index = 0; index < characters.count(); ++index) {
            if (CharacterClass::isWhitespace(characters[index])) {
                isApart = true;
                continue;
            }
            if (isApart && !collapsed.empty()) collapsed += ' ';
            isApart = false;
            collapsed += characters[index];
            compact += characters[index];
        }
        ASSERT_EQ(SummaryText::collapsed(text), collapsed) << text;
        ASSERT_EQ(SummaryText::withoutWhitespace(text), compact) << text;
        ASSERT_EQ(SummaryText::trimmed(text), Whitespace::trimmed(text)) << text;
        for (std::size_t offset = 0; offset < text.size(); ++offset) {
            if ((static_cast<unsigned char>(text[offset]) & 0xC0U) == 0x80) continue;
            const bool isBoundary = characters.byteOffset(characters.characterAt(offset)) == offset;
            ASSERT_EQ(SummaryText::isBoundary(text, offset), isBoundary) << text << " at " << offset;
        }
    }
}

TEST(SummaryInline, tellsMenusAsTheEngineWould) {
    const Regex token(R"(!?\[\[[^\]]*\]\]|!?\[[^\]]*\]\([^)]*\))");
    const Regex separator(R"([\s·|/—–\-,>•→←])");
    const auto without = [](const Regex& regex, const std::string& text) {
        std::string result;
        std::size_t start = 0;
        for (const ByteRange& range : plainRanges(regex, text)) {
            result += text.substr(start, range.start - start);
            start = range.end;
        }
        return result + text.substr(start);
    };
    for (const std::string& text :
         randomTexts(11, 20'000, 20,
                     {"[a](b)", "![i](u)", "[[n]]", "[", "](", ")", "]]", "!", " | ", "→", "word", "가", "-"})) {
        const std::size_t count = plainRanges(token, text).size();
        const std::string rest = without(separator, without(token, text));
        const bool expected = count > 0 && (rest.empty() || (count >= 3 && rest.size() <= 20));
        const bool isClear = rest.empty() || rest.size() <= 20 || rest.size() > 60;  // bytes are characters or not
        if (isClear) {
            ASSERT_EQ(DocumentSummaryExtractor::isNavigation(text), expected) << text;
        }
    }
}

TEST(FactValues, findsAValueAsTheEngineWould) {
    for (const std::string value : {"1,234", "5", "12.5", "3명"}) {
        std::string escaped;
        for (const char byte : value)
            escaped += (byte == '.' ? "\\" : "") + std::string(1, byte);
        const Regex regex(R"((?<![\d,.]))" + escaped + R"((?!\d|[,.]\d))");
        for (const std::string& text :
             randomTexts(12, 3'000, 8, {"1", "2", "5", ",", ".", "1,234", "12.5", "3명", " ", "a", "٣"})) {
            const Ranges expected = plainRanges(regex, text);
            const auto found = FactValues::writtenRange(value, text);
            ASSERT_EQ(found.has_value(), !expected.empty()) << value << " in " << text;
            if (found) {
                ASSERT_EQ(*found, expected.front()) << value << " in " << text;
            }
        }
    }
}

TEST(SummaryText, worksOnWholeCharacters) {
    EXPECT_EQ(SummaryText::collapsed(" a\r\n b\u00A0\u3000c\u200B "), "a b c\u200B");
    EXPECT_EQ(SummaryText::collapsed("a \u0301b"), "a b");  // a blank that carries a mark is white space with its mark
    EXPECT_EQ(SummaryText::withoutWhitespace(" 1 2\t3 "), "123");
    EXPECT_EQ(SummaryText::find("a:\u0301b:c", ":"), 5U);
    EXPECT_EQ(SummaryText::findLast("x. y. \u0301", ". "), 1U);
    EXPECT_EQ(SummaryText::lines("a\nb\r\nc\n"), (std::vector<std::string_view>{"a", "b\r\nc", ""}));
    EXPECT_EQ(SummaryText::split("a|b|\u0301c", "|"), (std::vector<std::string_view>{"a", "b|\u0301c"}));
    EXPECT_FALSE(SummaryText::isBoundary("👩\u200D👩", 7));
    EXPECT_TRUE(SummaryText::isBoundary("가나", 3));
}

}  // namespace
}  // namespace vellark
