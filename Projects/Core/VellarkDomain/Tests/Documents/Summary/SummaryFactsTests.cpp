#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkDomain/Documents/Summary/SummaryText.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

namespace Extractor = DocumentSummaryExtractor;
using Texts = std::vector<std::string>;

Texts factsOf(std::string_view text, bool isComplete = true) {
    return Extractor::facts(SummaryText::lines(text), true, isComplete);
}

TEST(SummaryFacts, statesMoneyAndDates) {
    struct Row {
        const char* text;
        Texts facts;
    };
    const Row rows[] = {
        {"Total: $1,200", {"Total: $1,200"}},
        {"Subtotal: $1,000\nTotal: $1,200", {"Total: $1,200"}},
        {"Sub total 1,000", {}},
        {"합계 1,200명", {}},
        {"합계 1,200원", {"합계 1,200원"}},
        {"총 견적금액(부가세 포함): 약 1,200만 원", {"총 견적금액(부가세 포함): 약 1,200만 원"}},
        {"Total: 1,234 files", {}},
        {"Total: 1,234 dollars", {"Total: 1,234 dollars"}},
        {"It was `$1,200`.", {}},
        {"See [x](https://e.org/$1,200).", {}},
        {"$x^2 + 10,000$", {}},
        {"~~$1,200~~", {}},
        {"마감: 미정", {}},
        {"마감: 3월 5일", {"마감: 3월 5일"}},
        {"3월 5일 마감", {"3월 5일 마감"}},
        {"무기한: 3월", {}},
        {"due by Friday", {"due by Friday"}},
        {"due by him", {}},
        {"DEADLINE: tbd", {}},
        {"Cost $10 and due date: 3 May", {"Cost $10 and due date: 3 May"}},
        {"a $10\nb $20\ndue: 3 May", {"a $10", "due: 3 May"}},
        {"Total $10,000\nTotal $20,000\nTotal $30,000", {"Total $20,000", "Total $30,000"}},
        {"Total $20,000\nTotal: $20000", {"Total $20,000"}},
        {"3 * 4 = $12", {"3 * 4 = $12"}},
        {"**3**: *$12*", {"3: $12"}},
        {"to**tal**: 1**0**,000", {"total: 10,000"}},
        {"    Total: $9,000", {}},
        {"    - Total: $9,000", {"Total: $9,000"}},
        {"```\nTotal: $9,000\n```", {}},
        {"````\n```\nTotal: $9,000\n````\nTotal: $8,000", {"Total: $8,000"}},
        {"# Total: $9,000", {}},
        {"[a]($1,200) [b](c)", {}},
        {"| 합계 | 1,000,000 | 2,000,000 |", {"합계: 1,000,000 · 2,000,000"}},
        {"| 합계 | | 3 |", {}},
        {"| 마감일 | 월요일 |", {"마감일 · 월요일"}},
        {"| Deadline | 3 May |", {"Deadline · 3 May"}},
        {"| Item | x_*50 달러 |", {"Item · x_50 달러"}},
        {"| [[a|Total]] | $1,500 |", {"Total: $1,500"}},
        {"| Total: $1,500 |", {"Total: $1,500"}},
        {"Итого 12 000 ₽", {"Итого 12 000 ₽"}},
        {"Итого: 12\u00A0000\u202F000 ₽", {"Итого: 12 000 000 ₽"}},
        {"お見積り金額：５０００円", {"お見積り金額：５０００円"}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(factsOf(row.text), row.facts) << row.text;
}

TEST(SummaryFacts, looksAtSixteenNumbersAndFourThousandCharacters) {
    std::string numbers = "total x";
    for (int count = 0; count < 16; ++count)
        numbers += " 1,000 x";
    EXPECT_EQ(factsOf(numbers + " total 2,000 y"), Texts{});
    const std::string blanks = "Total: $9,000 " + std::string(4'000, 'x');
    EXPECT_EQ(factsOf(blanks), Texts{"Total: $9,000"});
    EXPECT_EQ(factsOf(std::string(5'000, '1')), Texts{});
    EXPECT_EQ(factsOf("Total: $9,000", false), Texts{});
}

TEST(SummaryFacts, fitsLongLinesAroundTheirValue) {
    const std::string filler =
        "word word word word word word word word word word word word word word word word word word";
    EXPECT_EQ(factsOf(filler + ". It costs $1,200 now. " + filler), Texts{"It costs $1,200 now."});
    const Texts long_ = factsOf(filler + " it costs $1,200 now " + filler);
    ASSERT_EQ(long_.size(), 1U);
    EXPECT_EQ(long_.front().substr(0, 3), "…");
    EXPECT_NE(long_.front().find("it costs $1,200 now"), std::string::npos);
    EXPECT_TRUE(long_.front().ends_with("…"));
}

TEST(SummaryFacts, knowsWhatIsStated) {
    struct Row {
        const char* fact;
        const char* context;
        bool isStated;
    };
    const Row rows[] = {
        {"Cost: $1,234.50", "It is 1234.50 dollars.", true},
        {"총액 1,234,567원", "모두 1234567", true},
        {"총액 1,234,567원", "모두 1,234,5678", false},
        {"5만 원", "모두 5만원", true},
        {"5만 원", "15만원", false},
        {"$12", "it is $12.", true},
        {"$12", "it is $12.5", false},
        {"마감: 3월 5일", "3월 5일까지", true},
        {"마감: 3월 5일", "3월 15일까지", false},
        {"due: Friday", "on Friday", true},
        {"due: Caf\u00E9", "Cafe\u0301", true},
        {"due: Friday", "", false},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Extractor::isFact(row.fact, row.context), row.isStated) << row.fact << " in " << row.context;
}

}  // namespace
}  // namespace vellark
