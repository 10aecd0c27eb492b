#include <VellarkDomain/Documents/Summary/FactCandidates.hpp>
#include <VellarkDomain/Documents/Summary/FactPattern.hpp>
#include <VellarkDomain/Documents/Summary/SummaryCandidates.hpp>

#include <string>

// Possessive quantifiers, atomic groups and counted bounds keep these expressions from backtracking over long lines of
// digits and brackets; none may be relaxed.

namespace vellark {

namespace {

const std::string currencySigns = "[₩￦€£¥￥₫₽₮฿]";
const std::string currencyCodes = "(?:USD|KRW|EUR|JPY|CNY|RMB|GBP|HKD|TWD|VND|THB|RUB|MNT)";
const std::string behindNoWord = R"((?<![\p{L}\p{N}.,]))";
const std::string scaleWords = "[십백천만억조千百万萬億亿兆]";

// A sum of money.
const std::string amountPattern =
    R"((?<![\p{L}\p{N}$\\/=_])(?:USD?|HK|NT)?\$(?!\d*\.\d+\.\d)(?>\d{2,}|\d[.,]\d)[\d,.]*+(?![\d$^])|)"
    R"((?<![\p{L}\p{N}$\\/=_])[AC]\$\d{1,3}(?:,\d{3})++|)" +
    currencySigns + R"(\s?\d[\d,.]*+|)" + behindNoWord + R"(\d[\d,.]*+(?:[ \x{A0}\x{202F}]\d{3}){0,4}+\s?+)" +
    currencySigns + "|" + behindNoWord + R"((?!\d\s?(?:원|엔|파운드))\d[\d,.]*+\s?+(?:)" + scaleWords +
    R"(++\s?+(?:\d[\d,.]*+\s?+)?+){0,4}+(?:달러|유로|위안|파운드|円|元|圓|dollars?\b|euros?\b|)"
    R"((?:원|엔)(?:(?!\p{L})|(?=[은는이가을를에의도만과와로으부까씩짜정대쯤입임미초내선수상])))|)"
    R"((?<![\p{L}\p{N}]))" +
    currencyCodes + R"(\s?\d[\d,.]*+|)" + behindNoWord + R"(\d[\d,.]*+\s?+)" + currencyCodes + R"((?![\p{L}\p{N}]))";

// What follows a number that counts people, files or days and is no money.
const std::string countGuard =
    R"((?![명개건회번줄쪽장년월일시분초]|\s(?:[명개건회번줄쪽장년일]|시간|개월)(?!\p{L})|)"
    R"(\s?(?i:tests?|files?|users?|items?|lines?|rows?|visits?|views?|people|hours?|words?|pages?|requests?|errors?|)"
    R"(commits?|records?|[kmgt]b)\b))";

const std::string valuePattern = amountPattern + "|" + behindNoWord + R"(\d{1,3}(?:,\d{3})++(?!\d|,\d))" + countGuard;
const std::string dollarPattern = R"(|\$\d[\d,.]*+)";
const std::string bareNumberPattern = "|" + behindNoWord + R"(\d{4,}+(?![.,\-/]\d|\p{L}|\s[A-Za-z]))" + countGuard;

const std::string totalWords =
    R"((?:(?<![\p{L}\p{N}\-])(?<!sub\s)(?:total(?:\s+(?:due|amount|price|cost))?|amount\s+due|balance\s+due|gesamt\w*|)"
    R"(summe|endbetrag|итого|всего|нийт(?:\s+дүн)?|tổng(?:\s+cộng)?)|합\s?계(?:\s?(?:금액|액))?|총액|총계|)"
    R"(총\s?(?:견적\s?)?(?:금액|비용)|최종\s?금액|견적\s?금액|결제\s?금액|청구\s?금액|납부\s?금액|)"
    R"(合計(?:金額)?|合计(?:金额)?|總計|总计|総計|総額|总额|總額|總金額|总金额|請求金額|(?:お?見積り?|御見積)金額|)"
    R"(รวมทั้งสิ้น|ยอดรวม))";

const std::string parenthesis = R"((?:\s*[(（][^)）]{0,80}+[)）])?)";

const std::string totalLabelPattern = "(?i)" + totalWords + parenthesis + R"(\s*[:：=|\-–—]?)" + parenthesis +
                                      R"(\s*[은는이가]?\s*(?:is\s+|of\s+|comes\s+to\s+)?)"
                                      R"((?:약\s*|~\s*|≈\s*|approx\.?\s*|about\s*)?[-−]?$)";

const std::string totalStartPattern = "(?i)^" + totalWords + parenthesis + R"(\s*[:：=])";

const std::string deadlineWords =
    R"((?:(?<![\p{L}\p{N}\-])(?:due(?:\s+date)?|deadline|valid\s+until|expires?|fälligkeit|frist|échéance|)"
    R"(date\s+limite|fecha\s+límite|срок|thời\s+hạn|hạn\s+chót)|마감(?:일자?)?|(?<!무)기한|유효\s?기간|납기일?|)"
    R"(期限|締切日?|締め切り|納期|截止(?:日期|时间|時間)?|有效期|有効期間)(?:\s*[(（][^)）]{0,80}+[)）])?)";

const std::string dayAndMonthNames =
    "(?:monday|tuesday|wednesday|thursday|friday|saturday|sunday|mon|tue|wed|thu|fri|sat|sun|"
    "january|february|march|april|may|june|july|august|september|october|november|december|"
    R"(jan|feb|mar|apr|jun|jul|aug|sep|oct|nov|dec)\b)";

const std::string deadlineLinePattern = "(?i)" + deadlineWords +
                                        R"(\s*(?:[:：=]\s*(?!미정|없음|none\b|never\b|tbd\b|n/?a\b|0\b)\S)"
                                        R"(|[은는이]?\s+(?:\d(?!\d*\s?(?:[건명]|개(?!월)))|[월화수목금토일]요일))"
                                        R"(|\s+(?:by|on|is)\s+(?:\d|)" +
                                        dayAndMonthNames + "))" +
                                        R"(|(?<!\S)\d++(?:월\s*\d++일|일|[./\-]\S*+)\s+(?:마감|납기)\s*$)";

const std::string deadlineCellPattern = "(?i)" + deadlineWords + R"(\s*[:：=]?\s*$)";

FactPattern makePattern() {
    namespace Markup = SummaryCandidates;
    namespace Facts = FactCandidates;
    return {
        .amount{amountPattern, Facts::amount},
        .totalValue{valuePattern + dollarPattern + bareNumberPattern, Facts::value},
        .statedValue{valuePattern + dollarPattern, Facts::value},
        .totalLabel{totalLabelPattern, Facts::totalWord},
        .totalStart{totalStartPattern, Facts::totalWordAtStart},
        .deadlineLine{deadlineLinePattern, Facts::deadline, Facts::deadlineBehindDate},
        .deadlineCell{deadlineCellPattern, Facts::deadlineWord},
        .wikiAlias{R"(\[\[[^\]|]{0,200}+\|([^\]]{0,200}+)\]\])", Markup::wikiAlias},
        .notValueText{R"(`[^`]*`|https?://\S+|~~[^~]*~~|\$(?=\S)[^$]*(?<=\S)(?<!USD|US|NT|HK|A|C)\$(?!\d))",
                      Markup::markedText},
        .multiplication{R"((?<!\*)(?:(?<=[\p{L}\p{N}\p{Sc}]\s)\*(?=\s)|)"
                        R"((?<=[\p{L}\p{N}])\*(?=[\d$₩￦€£¥￥₫₽₮฿]))(?!\*))",
                        Markup::loneStar},
        .number = Regex::compile(R"(\d[\d,.]*\d|\d)"),
        .numberWithUnit = Regex::compile(R"(\d[\d,.]*\d\p{L}?|\d\p{L}?)"),
        .scale = Regex::compile(scaleWords),
        .labelEnd = Regex::compile(R"((?<!\d)[:：=]\s*|\s·\s)"),
        .cutGuard = Regex::compile(amountPattern + R"(|\d[\d,.]*\d)"),
        .sentenceEnd = Regex::compile(R"([.!?。](?=\s))"),
    };
}

}  // namespace

const FactPattern& FactPattern::shared() {
    static const FactPattern pattern = makePattern();
    return pattern;
}

}  // namespace vellark
