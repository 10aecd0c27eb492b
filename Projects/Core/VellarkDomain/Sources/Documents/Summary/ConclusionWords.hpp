#pragma once

#include <array>
#include <string_view>

/// The words by which a conclusion is known, in the languages of the shelf. All in lower case and in NFC.
namespace vellark::ConclusionWords {

/// Headings and labels that announce a conclusion, without white space.
inline constexpr auto names = std::to_array<std::string_view>({
    "결론",           "최종결론",
    "결정",           "결정사항",
    "최종결정",       "권고",
    "권고사항",       "제언",  // Korean
    "conclusion",     "conclusions",
    "decision",       "decisions",
    "finaldecision",  // English
    "recommendation", "recommendations",
    "verdict",        "bottomline",
    "tl;dr",          "tldr",  //
    "結論",           "決定",
    "決定事項",       "最終決定",
    "提言",           "推奨",  // Japanese
    "结论",           "决定",
    "最终决定",       "建议",
    "建議",  // Chinese
    "conclusión",     "decisión",
    "recomendación",  // Spanish
    "fazit",          "entscheidung",
    "empfehlung",                        // German
    "décision",       "recommandation",  // French
    "вывод",          "выводы",
    "заключение",     "решение",
    "рекомендация",  // Russian
    "kếtluận",        "quyếtđịnh",
    "khuyếnnghị",                 // Vietnamese
    "ข้อสรุป",                      // Thai
    "дүгнэлт",        "шийдвэр",  // Mongolian
});

/// Texts that say that nothing has been settled.
inline constexpr auto unsettledValues = std::to_array<std::string_view>({
    "미정", "없음", "추후 결정", "추후 공유", "논의 중", "검토 중", "작성 중", "작성 예정", "tbd", "tba",
    "n/a",  "na",   "none",      "pending",   "未定",    "なし",    "待定",    "无",        "無",
});

/// Parts of headings over what is only shown as an example.
inline constexpr auto excludedSections = std::to_array<std::string_view>({
    "예시",
    "예제",
    "샘플",
    "템플릿",
    "양식",
    "목차",
    "example",
    "sample",
    "template",
    "contents",
});

/// What joins two names in one heading; the first name counts.
inline constexpr auto nameSeparators =
    std::to_array<std::string_view>({" 및 ", " and ", " & ", "과 ", "와 ", "·", "/"});

/// Phrases that point to the list below them.
inline constexpr auto leadIns =
    std::to_array<std::string_view>({"다음과 같", "아래와 같", "as follows", "the following"});

}  // namespace vellark::ConclusionWords
