#include "Capture/Differential.hpp"
#include <VellarkDomain/Capture/Time/PythonISOTimestamp.hpp>

#include <gtest/gtest.h>

#include <array>
#include <cstdio>

namespace vellark {
namespace {

using PythonISOTimestamp::microseconds;

constexpr std::int64_t newYear2026 = 1'767'225'600'000'000;
constexpr std::int64_t second = 1'000'000;
constexpr std::int64_t hour = 3'600 * second;

TEST(PythonISOTimestamp, reads) {
    struct Row {
        const char* text;
        std::int64_t value;
    };
    const Row rows[] = {
        {"2026-01-01T00:00:00+00:00", newYear2026},
        {"2026-01-01T00Z", newYear2026},
        {"20260101 000000Z", newYear2026},
        {"2026-W01-4\xED\x95\x9C"
         "00:00Z",
         newYear2026},
        {"2026W014-00-00", newYear2026},
        {"2026-01-01T00:00:00.1234569Z", newYear2026 + 123'456},
        {"2026-01-01T00:00:00,5-00:00:00.25", newYear2026 + 750'000},
        {"2026-01-01T00:00:00+00:00:00.1", newYear2026 - 100'000},
        {"2026-01-01T09:00+09", newYear2026},
        {"2025-12-31T24:00:00.0000009Z", newYear2026},
        {"2026-01-01T00:00+00:99", newYear2026 - 99 * 60 * second},
        {"2026-01-01T00:00+23:59:59.999999", newYear2026 - 24 * hour + 1},
        {"1970-01-01T00:00Z", 0},
        {"0001-01-01T00:00Z", -62'135'596'800'000'000},
        {"9999-12-31T23:59:59.999999Z", 253'402'300'799'999'999},
        {"2026-01-01\xFF"
         "00Z",
         newYear2026},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(microseconds(row.text), row.value) << row.text;
    }
}

TEST(PythonISOTimestamp, refuses) {
    const char* const texts[] = {
        "",
        "2026-01-01",
        "2026-01-01T00:00:00",        // no offset
        "2026-01-01T24:00:01+00:00",  // hour 24 is midnight alone
        "2026-01-01T24:00:00.000001Z",
        "9999-12-31T24:00Z",  // no year 10000
        "9999-W52-7T00Z",
        "0000-01-01T00Z",
        "2026-02-29T00Z",
        "2025-W53-1T00Z",
        "2026-01-01T00:60Z",
        "2026-01-01T00:00:60Z",
        "2026-01-01T25Z",
        "2026-01-01T00:00z",
        "2026-01-01T00:00ZZ",
        "2026-01-01T00:00Z+00",
        "2026-01-01T00:00:00 +00:00",
        "2026-01-01T00:00.5Z",  // a fraction of minutes
        "2026-01-01T00:00:00.Z",
        "2026-01-01T00:00:00.123456x+00",
        "2026-01-01T0000:00Z",
        "2026-01-01T00:0000Z",
        "2026-01-01T00:00+24:00",
        "2026-01-01T00:00+0:00",
        "2026-0101T00:00Z",
        "\xEF\xBC\x92"
        "026-01-01T00:00Z",  // a full-width digit
    };
    for (const char* const text : texts) {
        EXPECT_EQ(microseconds(text), std::nullopt) << text;
    }
}

// Python's own reader is the model, with the accidents of its C code taken out: what follows the date must have the
// documented form, an offset's fraction counts even when the rest of the offset is zero, and hour 24 is the next day's
// midnight, as in later versions.
constexpr std::string_view model = R"(
import datetime, re
reader = datetime.datetime.fromisoformat
sys.modules['_datetime'] = None
del sys.modules['datetime']
import datetime as documented
clock = r'(\d\d)(?::(\d\d)(?::(\d\d)([.,]\d+)?)?|(\d\d)(?:(\d\d)([.,]\d+)?)?)?'
tail = re.compile(f'(?P<time>{clock})(?P<offset>Z|[+-]{clock})', re.A)
epoch = reader('1970-01-01T00:00:00+00:00')
def micros(fraction): return int((fraction[1:] + '000000')[:6]) if fraction else 0
def answer(case):
    text = case.decode('utf-8', 'replace')
    if len(text) < 7: return b''
    try: end = documented._find_isoformat_datetime_separator(text)
    except ValueError: return b''
    match = tail.fullmatch(text[end + 1:])
    if not match: return b''
    time, offset, plain, extra = match['time'], match['offset'], True, 0
    if time[:2] == '24':
        groups = match.groups()
        if any(int(g or 0) for g in (groups[2], groups[3], groups[5], groups[6])): return b''
        if micros(groups[4]) or micros(groups[7]): return b''
        time, extra, plain = '00', 86400000000, False
    fraction = re.search('[.,].*', offset)
    if fraction:
        extra += micros(fraction[0]) * (1 if offset[0] == '-' else -1)
        offset, plain = offset[:fraction.start()], False
    try: moment = reader(text if plain else text[:end] + 'T' + time + offset)
    except ValueError: return b''
    value = (moment - epoch) // datetime.timedelta(microseconds=1)
    if time == '00' and match['time'][:2] == '24' and text[:4] == '9999' and moment.month == 12 and moment.day == 31:
        return b''
    return str(value + extra).encode()
)";

class TimestampTexts {
public:
    std::string make() {
        std::string text = date() + separator() + clock() + offset();
        for (std::size_t count = generator_.chance(2) ? generator_.below(3) : 0; count > 0 && !text.empty(); --count) {
            mutate(text);
        }
        return text;
    }

private:
    std::string number(std::size_t digits, std::size_t bound) {
        std::string text = std::to_string(generator_.below(bound));
        return std::string(digits - std::min(digits, text.size()), '0') + text;
    }

    std::string date() {
        static constexpr std::string_view borders[] = {"9999-12-31", "0001-01-01", "2024-02-29", "2020-W53-7",
                                                       "9999W525",   "2000-02-29", "1900-02-29", "20261231"};
        if (generator_.chance(8)) return std::string(generator_.pick(borders));
        const std::string dash = generator_.chance(2) ? "-" : "";
        const std::string year = generator_.chance(4) ? number(4, 10'000) : "20" + number(2, 100);
        if (generator_.chance(2)) return year + dash + number(2, 14) + dash + number(2, 33);
        const std::string week = year + dash + "W" + number(2, 55);
        return generator_.chance(3) ? week : week + dash + number(1, 9);
    }

    std::string separator() {
        static constexpr std::string_view separators[] = {
            "T", "T", "T", " ", "-", "1", "t", "\xC3\xA9", "\xF0\x9F\x98\x80"};
        return std::string(generator_.pick(separators));
    }

    std::string clock() {
        const std::string colon = generator_.chance(3) ? "" : ":";
        std::string text = generator_.chance(12) ? "24" : number(2, 25);
        const bool isZero = text == "24" && generator_.chance(2);
        const auto pair = [&] { return isZero ? "00" : number(2, 62); };
        if (generator_.chance(6)) return text;
        text += colon + pair();
        if (generator_.chance(4)) return text;
        text += colon + pair();
        if (generator_.chance(2)) text += fraction(isZero);
        return text;
    }

    std::string fraction(bool isZero) {
        std::string text = generator_.chance(4) ? "," : ".";
        for (std::size_t count = generator_.below(9); count > 0; --count) {
            text += isZero ? "0" : number(1, 10);
        }
        return text;
    }

    std::string offset() {
        if (generator_.chance(3)) return "Z";
        const std::string sign = generator_.chance(2) ? "-" : "+";
        return generator_.chance(8) ? "" : sign + clock();
    }

    void mutate(std::string& text) {
        static constexpr std::string_view noise = "0123456789-:.,+ZWT z\x00\xFF";
        const std::size_t at = generator_.below(text.size());
        switch (generator_.below(4)) {
            case 0:
                text.erase(at, 1);
                break;
            case 1:
                text.insert(at, 1, generator_.pick(noise));
                break;
            case 2:
                text[at] = generator_.pick(noise);
                break;
            default:
                text.resize(at);
                break;
        }
    }

    testing::Generator generator_{20'260'101};
};

// Every day there is, counted one by one, and the days behind the end of each month.
TEST(PythonISOTimestamp, knowsEachDay) {
    const std::array<int, 12> lengths = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    std::int64_t expected = -62'135'596'800'000'000;
    for (int year = 1; year <= 9999; ++year) {
        const bool isLeapYear = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
        for (int month = 1; month <= 12; ++month) {
            const int length = lengths[static_cast<std::size_t>(month - 1)] + (month == 2 && isLeapYear ? 1 : 0);
            for (int day = 1; day <= 32; ++day) {
                std::array<char, 64> text{};
                std::snprintf(text.data(), text.size(), "%04d-%02d-%02dT00:00:00Z", year, month, day);
                if (day > length) {
                    ASSERT_EQ(microseconds(text.data()), std::nullopt) << text.data();
                } else {
                    ASSERT_EQ(microseconds(text.data()), expected) << text.data();
                    expected += 86'400'000'000;
                }
            }
        }
    }
}

TEST(PythonISOTimestamp, agreesWithPython) {
    TimestampTexts texts;
    std::vector<std::string> cases;
    for (int count = 0; count < 250'000; ++count) {
        cases.push_back(texts.make());
    }
    std::size_t readCount = 0;
    testing::expectSameAsPython(model, cases, [&](const std::string& text) {
        const auto value = microseconds(text);
        readCount += value ? 1 : 0;
        return value ? std::to_string(*value) : std::string();
    });
    if (IsSkipped()) return;
    EXPECT_GT(readCount, cases.size() / 5);
}

}  // namespace
}  // namespace vellark
