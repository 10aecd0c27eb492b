#pragma once

#include <VellarkDomain/Documents/Kinds/Lexicon/DocumentKindLexicon.hpp>
#include <VellarkDomain/Documents/Kinds/Rules/DocumentKindRules.hpp>

namespace vellark::testing {

/// A vocabulary of few words, so that tests of the rules do not hang on the word lists.
inline const DocumentKindVocabulary& smallVocabulary() {
    using V = DocumentKindVocabulary;
    using enum DocumentKind;
    using enum DocumentKindLanguage;
    static const std::vector<V::SharedRow> shared = {
        {.kinds = {report, meetingNotes, lectureNotes, studyNotes},
         .names = {},
         .generics = {"정리", "summary", "notes", "まとめ", "정리 노트"}},
        {.kinds = {codeReview, essay, other}, .names = {"review"}},
        {.kinds = {other, research}, .cues = {"survey topic"}},
    };
    static const std::vector<V::KindRow> table = {
        {.kind = plan, .names = {"plan", "계획서", "로드맵"}, .cues = {"sprint"}},
        {.kind = meetingNotes, .names = {"회의록", "회의 노트", "meeting minutes"}, .cues = {"회의", "meeting"}},
        {.kind = report, .names = {"report", "보고서"}},
        {.kind = spec, .names = {"spec sheet", "기획 명세"}},
        {.kind = guide, .names = {"guide", "howto"}, .cues = {"onboarding"}},
        {.kind = designDoc, .names = {"adr"}, .cues = {"architecture"}},
        {.kind = lectureNotes, .names = {}, .cues = {"lecture", "강의"}},
        {.kind = essay, .names = {"칼럼"}, .cues = {"novel"}},
        {.kind = email, .names = {}, .cues = {"inbox"}},
    };
    static const std::vector<V::WordRow> weak = {{email, {"mail", "메일"}}};
    static const std::vector<V::WordRow> markers = {
        {meetingNotes, {"attendees", "action items", "agenda", "decisions"}},
        {retrospective, {"what went well", "keep problem try", "action items"}},
        {checklist, {"to pack"}},
    };
    static const V::Words blocked = {"pricing plan", "핵심과제"};
    static const std::vector<V::LanguageRow> french = {{plan, {"plan", "plane"}},
                                                       {spec, {"spécification", "cahier des charges"}},
                                                       {report, {"rapport", "thèse"}},
                                                       {quiz, {"test"}},
                                                       {email, {}, {"courrier"}}};
    static const std::vector<V::LanguageRow> german = {{spec, {"spezifikation", "prüfplan"}}, {plan, {"fahrplan"}}};
    static const std::vector<V::LanguageRow> mongolian = {{report, {"тайлан"}}};
    static const std::vector<V::LanguageRow> thai = {{report, {"รายงาน"}}};
    static const V vocabulary = {
        .shared = shared,
        .table = table,
        .weak = weak,
        .markers = markers,
        .blocked = blocked,
        .prepositions = DocumentKindRules::prepositions(),
        .languages = {{fr, french, DocumentKindRules::complements(fr), DocumentKindRules::exclusions(fr)},
                      {de, german, DocumentKindRules::complements(de), {}},
                      {mn, mongolian, {}, {}},
                      {th, thai, DocumentKindRules::complements(th), {}}},
    };
    return vocabulary;
}

inline const DocumentKindLexicon& smallLexicon() {
    static const DocumentKindLexicon lexicon(smallVocabulary());
    return lexicon;
}

}  // namespace vellark::testing
