#include <VellarkDomain/Documents/Summary/ConclusionWords.hpp>
#include <VellarkDomain/Documents/Summary/DocumentSummaryExtractor.hpp>
#include <VellarkDomain/Documents/Summary/SummaryText.hpp>
#include <VellarkFoundation/Unicode/UnicodeCase.hpp>

#include <gtest/gtest.h>

namespace vellark {
namespace {

namespace Extractor = DocumentSummaryExtractor;

std::string conclusionOf(std::string_view text, bool isComplete = true) {
    return Extractor::conclusion(SummaryText::lines(text), true, isComplete).value_or("-");
}

TEST(SummaryConclusion, findsTheVerdict) {
    struct Row {
        const char* text;
        const char* conclusion;
    };
    const Row rows[] = {
        {"## 1. 결론\n\n간다. 둘째.", "결론: 간다."},
        {"### 결론 및 제언\n간다.", "결론 및 제언: 간다."},
        {"## 제3장 결론:\n간다.", "결론: 간다."},
        {"## \u1100\u1167\u11AF\u1105\u1169\u11AB\n간다.", "\u1100\u1167\u11AF\u1105\u1169\u11AB: 간다."},
        {"결론: 미정", "-"},
        {"결론: 미정.\n결정：**간다**", "결정：간다"},
        {"TL;DR: it works", "TL;DR: it works"},
        {"Verdict: $5 is enough?", "-"},
        {"Verdict: {fill in}", "-"},
        {"Verdict: +", "-"},
        {"> Verdict: quoted", "-"},
        {"- **Decision:** we go", "Decision: we go"},
        {"Decision: `x`", "-"},
        {"Something long before the colon that ends in a decision: x", "-"},
        {"## 예시\n결론: 아니다\n### 결론\n아니다.\n## 본문\n결론: 맞다", "결론: 맞다"},
        {"# Template\nDecision: no\n# Text\ntext", "-"},
        {"## 결론 및 예시\n간다.", "결론 및 예시: 간다."},
        {"## Decision: we go\ntext", "Decision: we go"},
        {"# Decision: we go\ntext", "-"},
        {"Decision: early\n## Conclusion\nLate.", "Conclusion: Late."},
        {"## 결론\n다음과 같습니다:\n\n- [x] 간다. 온다\n", "결론: 간다."},
        {"## Conclusion\nAs follows.\n\nNo list.", "-"},
        {"## 결론\n갈까?\n## Decision\nGo.", "Decision: Go."},
        {"## Policy\nx\n## Conclusion\nU.S. policy stands. Second.", "Conclusion: U.S. policy stands."},
        {"## Conclusion\nU.S. policy", "Conclusion: U.S. policy"},
        {"## Conclusion\nVerdict: yes. No.", "Verdict: yes."},
        {"## Conclusion\n```\ncode.\n```\nText。More", "Conclusion: Text。"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(conclusionOf(row.text), row.conclusion) << row.text;
    EXPECT_EQ(conclusionOf("## Decision\nGo.", false), "-");
    const std::string cut = conclusionOf("## Decision\n" + std::string(200, 'a'));
    EXPECT_EQ(cut, "Decision: " + std::string(110, 'a') + "…");
}

TEST(SummaryConclusion, knowsItsNames) {
    for (const std::string_view name : ConclusionWords::names) {
        EXPECT_TRUE(Extractor::isConclusionName(name)) << name;
        EXPECT_TRUE(Extractor::isConclusionName("IV. " + UnicodeCase::upper(name) + " :")) << name;
        EXPECT_EQ(conclusionOf("## " + std::string(name) + "\nYes."), std::string(name) + ": Yes.");
    }
    for (const std::string_view value : ConclusionWords::unsettledValues)
        EXPECT_EQ(conclusionOf("결론: " + std::string(value) + "."), "-") << value;
    for (const char* name :
         {"Final Decision and outlook", "Ⅳ 결론", "결론과 제언", "Bottom line", "결론/제언", "Kết luận"})
        EXPECT_TRUE(Extractor::isConclusionName(name)) << name;
    for (const char* name : {"Outlook and decision", "결론적으로", "", "Decisionmaking"})
        EXPECT_FALSE(Extractor::isConclusionName(name)) << name;
}

TEST(SummaryConclusion, knowsWhatIsStated) {
    EXPECT_TRUE(Extractor::isConclusion("결론: 비용이 낮다.", "모두 보아 비용이  낮다고 한다"));
    EXPECT_TRUE(Extractor::isConclusion("Decision: We GO!", "so we go home"));
    EXPECT_FALSE(Extractor::isConclusion("Decision: we go", "decision: we stay"));
    EXPECT_FALSE(Extractor::isConclusion("Decision: …", "anything"));
    EXPECT_TRUE(Extractor::isConclusion("간다", "\u1100\u1161\u11AB\u1103\u1161"));
}

}  // namespace
}  // namespace vellark
