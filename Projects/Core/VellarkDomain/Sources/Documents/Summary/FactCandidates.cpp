#include <VellarkDomain/Documents/Summary/FactCandidates.hpp>
#include <VellarkFoundation/Text/UTF8.hpp>
#include <VellarkFoundation/Unicode/CharacterClass.hpp>

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <vector>

namespace vellark::FactCandidates {

namespace {

constexpr std::size_t npos = std::string_view::npos;

bool isASCII(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

bool isSpace(char byte) {
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

bool isAlphanumeric(char byte) {
    return isDigit(byte) || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
}

// What a byte may open.
enum class Opening : std::uint8_t { nothing, digit, dollar, code, otherScript };

constexpr auto openings = [] {
    std::array<Opening, 256> table{};
    for (unsigned char byte = '0'; byte <= '9'; ++byte)
        table[byte] = Opening::digit;
    for (const char letter : std::string_view("ACEGHJKMNRTUV"))
        table[static_cast<unsigned char>(letter)] = Opening::code;
    table['$'] = Opening::dollar;
    // Lead bytes of all currency signs and of all decimal digits beyond ASCII.
    for (const std::size_t lead : {0xC2U, 0xD9U, 0xDBU, 0xDFU, 0xE0U, 0xE1U, 0xE2U, 0xEAU, 0xEFU, 0xF0U})
        table[lead] = Opening::otherScript;
    return table;
}();

bool isCurrencySign(char32_t scalar) {
    return std::u32string_view(U"₩￦€£¥￥₫₽₮฿").find(scalar) != std::u32string_view::npos;
}

bool startsWithCode(std::string_view rest) {
    constexpr auto codes =
        std::to_array<std::string_view>({"US$", "USD", "HK$", "NT$", "A$", "C$", "KRW", "EUR", "JPY", "CNY", "RMB",
                                         "GBP", "HKD", "TWD", "VND", "THB", "RUB", "MNT"});
    return std::any_of(codes.begin(), codes.end(), [&](std::string_view code) { return rest.starts_with(code); });
}

// Whether what stands here may belong to the sum before it: a currency's word, code or sign, a word of scale, or what
// joins groups of digits.
bool mayBeginUnit(std::string_view text, std::size_t offset) {
    if (offset == text.size()) return false;
    const char byte = text[offset];
    if (isASCII(byte)) return std::string_view("deCEGHJKMRTUV").find(byte) != npos;
    const char32_t scalar = UTF8::decode(text, offset).scalar;
    constexpr std::u32string_view units = U"원엔달유위파円元圓십백천만억조千百万萬億亿兆";
    return units.find(scalar) != units.npos || isCurrencySign(scalar) || CharacterClass::isWhitespace(scalar) ||
           CharacterClass::isDecimalDigit(scalar);
}

// Whether what follows a number may make it a sum: a unit, a sign, or another group of digits.
bool mayHaveUnit(std::string_view text, std::size_t end) {
    if (mayBeginUnit(text, end)) return true;
    if (end == text.size() || !isSpace(text[end])) return false;
    return mayBeginUnit(text, end + 1) || (end + 1 < text.size() && isDigit(text[end + 1]));
}

bool isLongOrGrouped(std::string_view number) {
    constexpr std::size_t longNumber = 4;
    if (number.find(',') != npos) return true;
    return number.size() >= longNumber && std::all_of(number.begin(), number.begin() + longNumber, isDigit);
}

std::size_t nextValue(std::string_view text, std::size_t from, bool takesBareNumbers) {
    for (std::size_t start = from; start < text.size(); ++start) {
        switch (openings[static_cast<unsigned char>(text[start])]) {
            case Opening::nothing:
                break;
            case Opening::dollar:
                return start;
            case Opening::code:
                if (start > 0 && isAlphanumeric(text[start - 1])) break;
                if (startsWithCode(text.substr(start))) return start;
                break;
            case Opening::digit: {
                const char before = start == 0 ? ' ' : text[start - 1];
                std::size_t end = start + 1;
                while (end < text.size() && (isDigit(text[end]) || text[end] == ',' || text[end] == '.'))
                    ++end;
                const bool isInside = isAlphanumeric(before) || before == '.' || before == ',';
                const bool isValue =
                    mayHaveUnit(text, end) || (takesBareNumbers && isLongOrGrouped(text.substr(start, end - start)));
                if (!isInside && isValue) return start;
                start = end - 1;
                break;
            }
            case Opening::otherScript: {
                const auto decoded = UTF8::decode(text, start);
                if (CharacterClass::isDecimalDigit(decoded.scalar) || isCurrencySign(decoded.scalar)) return start;
                start += decoded.byteCount - 1;
                break;
            }
        }
    }
    return npos;
}

// The beginnings of some words, found in one walk. Letters of ASCII are given in lower case and stand for both cases;
// other scripts must be given in all forms that fold alike, the long s and the letters of old Cyrillic print included.
class WordStarts {
public:
    WordStarts(std::initializer_list<std::string_view> words) : words_(words) {
        std::stable_sort(words_.begin(), words_.end(),
                         [](std::string_view one, std::string_view other) { return lead(one) < lead(other); });
        for (std::size_t index = 0; index < words_.size(); ++index) {
            Bucket& bucket = buckets_[lead(words_[index])];
            if (bucket.count == 0) bucket.first = static_cast<std::uint8_t>(index);
            ++bucket.count;
        }
        for (std::size_t letter = 'a'; letter <= 'z'; ++letter)
            buckets_[letter - 'a' + 'A'] = buckets_[letter];
    }

    [[nodiscard]] bool startsAt(std::string_view text, std::size_t offset) const {
        const Bucket bucket = buckets_[static_cast<unsigned char>(text[offset])];
        for (std::size_t index = bucket.first; index < std::size_t{bucket.first} + bucket.count; ++index) {
            if (matches(text.substr(offset), words_[index])) return true;
        }
        return false;
    }

    [[nodiscard]] std::size_t next(std::string_view text, std::size_t from) const {
        for (std::size_t start = from; start < text.size(); ++start) {
            if (buckets_[static_cast<unsigned char>(text[start])].count > 0 && startsAt(text, start)) return start;
        }
        return npos;
    }

private:
    struct Bucket {
        std::uint8_t first = 0;
        std::uint8_t count = 0;
    };

    static unsigned char lead(std::string_view word) { return static_cast<unsigned char>(word.front()); }

    static char lower(char byte) { return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 'a' - 'A') : byte; }

    static bool matches(std::string_view rest, std::string_view word) {
        if (rest.size() < word.size()) return false;
        return std::equal(word.begin(), word.end(), rest.begin(),
                          [](char expected, char byte) { return expected == lower(byte); });
    }

    std::vector<std::string_view> words_;
    std::array<Bucket, 256> buckets_{};
};

const WordStarts& totalWords() {
    static const WordStarts words{
        "total",   "amount", "balance", "endbetrag", "gesamt", "geſamt", "summe", "ſumme",            // English, German
        "ит",      "иТ",     "Ит",      "ИТ",        "иᲄ",  "Иᲄ",  "иᲅ", "Иᲅ",            // Russian
        "вс",      "вС",     "Вс",      "ВС",        "вᲃ",  "Вᲃ",  "ᲀс", "ᲀС", "ᲀᲃ",  //
        "ни",      "нИ",     "Ни",      "НИ",                                                         // Mongolian
        "tổ",      "tỔ",                                                                              // Vietnamese
        "합",      "총",     "최종",    "견적",      "결제",   "청구",   "납부",                      // Korean
        "合",      "總",     "总",      "総",        "請求",   "お見",   "見積",  "御見",  // Chinese, Japanese
        "รวมทั้งสิ้น", "ยอดรวม",                                                               // Thai
    };
    return words;
}

const WordStarts& deadlineWords() {
    static const WordStarts words{
        "due",  "deadline", "valid", "expire",                            // English
        "fä",   "fÄ",       "frist", "friſt",  "fri\uFB05", "fri\uFB06",  // German, with the ligatures of st
        "éch",  "Éch",      "date",  "fecha",                             // French, Spanish
        "ср",   "сР",       "Ср",    "СР",     "ᲃр",     "ᲃР",      // Russian
        "thờ",  "thỜ",      "hạ",    "hẠ",                                // Vietnamese
        "마감", "기한",     "유효",  "납기",                              // Korean
        "期限", "締切",     "締め",  "納期",   "截止",      "有效期",    "有効期間",  // Japanese, Chinese
    };
    return words;
}

// A digit at the start or behind white space.
bool startsDate(std::string_view text, std::size_t offset) {
    const bool isBehindWord = offset > 0 && isASCII(text[offset - 1]) && !isSpace(text[offset - 1]);
    if (isBehindWord || (isASCII(text[offset]) && !isDigit(text[offset]))) return false;
    return CharacterClass::isDecimalDigit(UTF8::decode(text, offset).scalar);
}

}  // namespace

std::size_t amount(std::string_view text, std::size_t from, std::size_t) {
    return nextValue(text, from, false);
}

std::size_t value(std::string_view text, std::size_t from, std::size_t) {
    return nextValue(text, from, true);
}

std::size_t totalWord(std::string_view text, std::size_t from, std::size_t) {
    return totalWords().next(text, from);
}

std::size_t totalWordAtStart(std::string_view text, std::size_t from, std::size_t) {
    return from == 0 && !text.empty() && totalWords().startsAt(text, 0) ? 0 : npos;
}

std::size_t deadlineWord(std::string_view text, std::size_t from, std::size_t) {
    return deadlineWords().next(text, from);
}

std::size_t deadlineBehindDate(std::string_view text) {
    const std::size_t one = text.rfind("마감");
    const std::size_t other = text.rfind("납기");
    if (one == npos || other == npos) return std::min(one, other);
    return std::max(one, other);
}

std::size_t deadline(std::string_view text, std::size_t from, std::size_t lastWord) {
    if (lastWord == npos) return deadlineWord(text, from);
    for (std::size_t start = from; start < text.size(); ++start) {
        if (deadlineWords().startsAt(text, start)) return start;
        if (start < lastWord && startsDate(text, start)) return start;
    }
    return npos;
}

}  // namespace vellark::FactCandidates
