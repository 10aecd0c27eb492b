#include "Documents/Kinds/SmallVocabulary.hpp"
#include <VellarkDomain/Documents/Kinds/Classifier/DocumentKindClassifier.hpp>

#include <gtest/gtest.h>

#include <ostream>

namespace vellark {

void PrintTo(DocumentKind kind, std::ostream* stream) {
    *stream << rawValue(kind);
}

void PrintTo(DocumentKindGuess::Level level, std::ostream* stream) {
    *stream << rawValue(level);
}

namespace {

using enum DocumentKind;
using Level = DocumentKindGuess::Level;
using Guess = std::optional<DocumentKindGuess>;

Guess classify(const DocumentKindEvidence& evidence) {
    return DocumentKindClassifier::classify(evidence, testing::smallLexicon());
}

Guess sure(DocumentKind kind, Level level) {
    return DocumentKindGuess{{kind}, level, true};
}

TEST(DocumentKindClassifier, findsTheHeadOfTitles) {
    struct Row {
        const char* title;
        std::optional<DocumentKind> kind;
    };
    const Row rows[] = {
        {"", std::nullopt},
        {"Q3 marketing plan", plan},
        {"plan for the report", plan},
        {"For the plan, a report", report},
        {"About the report", report},
        {"Report template v2 (final)", report},
        {"Report on plans", report},
        {"report plan overview", std::nullopt},
        {"기획서 리뷰: 사업계획서 초안 2", plan},
        {"회의록 정리", meetingNotes},
        {"회의록은 리뷰", std::nullopt},
        {"3월 회의록", meetingNotes},
        {"회의록_3월_김", meetingNotes},
        {"meeting_minutes_kim", std::nullopt},
        {"Team - meeting minutes - kim", meetingNotes},
        {"ADR 12 use a queue", designDoc},
        {"howto bake", guide},
        {"we know howto bake", std::nullopt},
        {"pricing plan", std::nullopt},
        {"Projektspezifikation", spec},
        {"Spezifikation der Schnittstelle", spec},
        {"Fragen zur Spezifikation", std::nullopt},
        {"Cahier des charges du portail", spec},
        {"Le rapport annuel", report},
        {"Mon rapport annuel", std::nullopt},
        {"Rapport sur la spécification", report},
        {"Plan de test", plan},
        {"Test de la spécification", quiz},
        {"plan des plane", plan},
        {"plane de la Seine", plan},
        {"plane ticket", std::nullopt},
        {"жилийн тайлан", report},
        {"тайлан бичих", std::nullopt},
        {"รายงานของทีม", report},
        {"ทีมรายงาน", std::nullopt},
        {"summary", std::nullopt},
        {":()[]", std::nullopt},
        {"plan:\u0301x", std::nullopt},
        {"\xFFplan\xC0", plan},
    };
    for (const Row& row : rows) {
        const Guess guess = classify({.title = row.title});
        EXPECT_EQ(guess, row.kind ? sure(*row.kind, Level::name) : std::nullopt) << row.title;
    }
}

TEST(DocumentKindClassifier, asksOnePlaceAfterAnother) {
    const DocumentKindEvidence all = {.title = "Sync",
                                      .path = "/w/app/guides/report/sync.md",
                                      .root = "/w/app",
                                      .declared = {"x", "the sprint, mail"},
                                      .tags = {"guide"},
                                      .headings = {"", "SYNC", "보고서"},
                                      .body = "Attendees. Agenda. Decisions."};
    struct Row {
        const char* name;
        void (*change)(DocumentKindEvidence&);
        Guess expected;
    };
    const Row rows[] = {
        {"file name", [](auto& one) { one.path = "a/CHANGELOG.md", one.title = "plan"; },
         sure(changelog, Level::fileName)},
        {"title", [](auto& one) { one.title = "plan", one.path = "report.md"; }, sure(plan, Level::name)},
        {"stem", [](auto& one) { one.path = "report.md"; }, sure(report, Level::name)},
        {"nearest folder", [](auto&) {}, sure(report, Level::folder)},
        {"declared", [](auto& one) { one.path.reset(); }, sure(email, Level::declared)},
        {"heading", [](auto& one) { one.path.reset(), one.declared.clear(); }, sure(report, Level::heading)},
        {"tags",
         [](auto& one) {
             one.path.reset(), one.declared.clear();
             one.headings.clear();
         },
         sure(guide, Level::declared)},
        {"topic", [](auto& one) { one = {.title = "강의 정리"}; },
         DocumentKindGuess{{lectureNotes, studyNotes}, Level::cue, false}},
        {"body", [](auto& one) { one = {.title = "Sync", .body = one.body}; }, sure(meetingNotes, Level::body)},
    };
    for (const Row& row : rows) {
        DocumentKindEvidence evidence = all;
        row.change(evidence);
        EXPECT_EQ(classify(evidence), row.expected) << row.name;
    }
}

TEST(DocumentKindClassifier, refinesGenericNouns) {
    EXPECT_EQ(classify({.title = "meeting notes"}), (DocumentKindGuess{{report, meetingNotes}, Level::cue, false}));
    EXPECT_EQ(classify({.title = "lecture notes, draft"})->candidates, (std::vector{lectureNotes, studyNotes}));
    EXPECT_EQ(classify({.title = "Summary of the lecture"})->candidates, (std::vector{lectureNotes, studyNotes}));
    EXPECT_EQ(classify({.title = "summary lecture"}), std::nullopt) << "what follows the noun is no topic of it";
    EXPECT_EQ(classify({.title = "survey topic notes"}),
              (DocumentKindGuess{{other, report, meetingNotes}, Level::cue, false}));
    EXPECT_EQ(classify({.title = "architecture notes"}), std::nullopt) << "no kind of the topic's group";
    EXPECT_EQ(classify({.title = "inbox mail"}), sure(email, Level::cue));
    EXPECT_EQ(classify({.title = "meeting mail"}), std::nullopt);
    EXPECT_EQ(classify({.title = "inbox: mail"}), std::nullopt) << "the topic stands in another segment";
    EXPECT_EQ(classify({.title = "courrier inbox"}), sure(email, Level::cue));
}

TEST(DocumentKindClassifier, settlesSeveralKindsByVotes) {
    const DocumentKindGuess open = {{codeReview, essay, other}, Level::name, false};
    EXPECT_EQ(classify({.title = "Review"}), open);
    EXPECT_EQ(classify({.title = "Novel review"}), (DocumentKindGuess{{essay, codeReview}, Level::name, true}));
    EXPECT_EQ(classify({.title = "Review", .path = "onboarding/x.md"}),
              (DocumentKindGuess{{codeReview, essay}, Level::name, true}));
    EXPECT_EQ(classify({.title = "Novel review", .path = "onboarding/x.md"}), open) << "a tie";
    EXPECT_EQ(classify({.title = "Review", .tags = {"novel"}})->candidates.front(), essay);
    EXPECT_EQ(classify({.title = "Review of a review"}), open) << "its own pattern has no vote";

    EXPECT_EQ(open.kind({}), codeReview);
    EXPECT_EQ(open.kind({DocumentKindGroup::content}), essay);
    EXPECT_EQ(open.kind({DocumentKindGroup::personal}), codeReview);
    EXPECT_EQ((DocumentKindGuess{{codeReview, essay}, Level::name, true}).kind({DocumentKindGroup::content}),
              codeReview);
    EXPECT_EQ((DocumentKindGuess{{other, essay}, Level::cue, false}).kind({}), std::nullopt);
    EXPECT_TRUE(open.isNamed());
    EXPECT_FALSE(open.wantsContent());
    EXPECT_TRUE(sure(plan, Level::declared)->wantsContent());
    EXPECT_FALSE(sure(plan, Level::cue)->isNamed());
}

TEST(DocumentKindClassifier, countsDistinctMarkers) {
    EXPECT_EQ(classify({.body = "agenda agenda agenda, attendees"}), std::nullopt);
    EXPECT_EQ(classify({.headings = {"Agenda"}, .body = "attendees\n- action items"}), sure(meetingNotes, Level::body));
    EXPECT_EQ(classify({.body = "What went well. Keep, problem, try. Action items. Agenda. Attendees"}),
              (DocumentKindGuess{{meetingNotes, retrospective}, Level::body, false}));
    EXPECT_EQ(classify({.checkboxes = 3}), sure(checklist, Level::body));
    EXPECT_EQ(classify({.checkboxes = 2}), std::nullopt);
    EXPECT_EQ(classify({.body = "agenda, attendees, decisions", .checkboxes = 3}),
              (DocumentKindGuess{{meetingNotes, checklist}, Level::body, false}));
    EXPECT_EQ(classify({.body = "agenda, attendees, decisions. To pack", .checkboxes = 3}),
              sure(checklist, Level::body));
}

// Long titles, each the worst for one rule; a product of their words would not end within the test's time.
TEST(DocumentKindClassifier, isLinearInHostileTitles) {
    for (const std::string_view piece :
         {"(", "a", "plan ", "plan rapport ", "le rapport ", "de ", "pricing plan ", "plan de plane ", "회의록",
          "notes lecture ", "mail inbox ", "_가", "(plan)"}) {
        std::string title;
        while (title.size() < 200'000) {
            title += piece;
        }
        EXPECT_NO_THROW((void)classify({.title = title, .path = title, .tags = {title}, .body = title})) << piece;
    }
}

}  // namespace
}  // namespace vellark
