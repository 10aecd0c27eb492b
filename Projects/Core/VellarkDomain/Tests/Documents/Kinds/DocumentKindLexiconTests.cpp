#include "Documents/Kinds/SmallVocabulary.hpp"
#include "Support/RandomInput.hpp"
#include <VellarkDomain/Documents/Kinds/Lexicon/DocumentKindLexicon.hpp>
#include <VellarkDomain/Documents/Kinds/Rules/DocumentKindRules.hpp>

#include <gtest/gtest.h>

#include <algorithm>

namespace vellark {
namespace {

using Role = DocumentKindTerm::Role;
using enum DocumentKindLanguage;

// The terms of the pattern that matches the whole text.
std::vector<DocumentKindTerm> termsOf(std::string_view text) {
    const DocumentKindLexicon& lexicon = testing::smallLexicon();
    const std::u32string scalars = DocumentKindMatcher::normalize(text);
    for (const auto& hit : lexicon.matcher().hits(scalars)) {
        if (hit.start == 0 && hit.end == scalars.size()) return lexicon.terms()[hit.pattern];
    }
    return {};
}

DocumentKindTerm only(std::string_view text) {
    const auto terms = termsOf(text);
    EXPECT_EQ(terms.size(), 1U) << text;
    return terms.empty() ? DocumentKindTerm() : terms.front();
}

TEST(DocumentKindLexicon, joinsForms) {
    EXPECT_EQ(only("회의 노트"), only("회의노트"));
    EXPECT_EQ(only("회의노트").kinds, std::vector{DocumentKind::meetingNotes});
    EXPECT_TRUE(termsOf("meetingminutes").empty()) << "Latin words keep their blank";
    using Forms = std::vector<std::u32string>;
    EXPECT_EQ(DocumentKindLexicon::variants(U"api 회의 노트"), (Forms{U"api 회의 노트", U"api 회의노트"}));
    EXPECT_EQ(DocumentKindLexicon::variants(U"계획"), Forms{U"계획"});
    EXPECT_EQ(DocumentKindLexicon::variants(U"แผน งาน"), Forms{U"แผน งาน"});
    EXPECT_TRUE(DocumentKindLexicon::variants(U"").empty());
}

TEST(DocumentKindLexicon, tellsOrigins) {
    const DocumentKindTerm plan = only("plan");
    EXPECT_TRUE(plan.base);
    EXPECT_TRUE(plan.languages.contains(fr));
    EXPECT_FALSE(plan.homograph);
    EXPECT_TRUE(plan.headInitial());
    const DocumentKindTerm plane = only("plane");
    EXPECT_FALSE(plane.base);
    EXPECT_TRUE(plane.homograph);
    EXPECT_FALSE(only("тайлан").headInitial());
    EXPECT_EQ(only("notes").role, Role::generic);
    EXPECT_EQ(only("action items").kinds, (std::vector{DocumentKind::meetingNotes, DocumentKind::retrospective}));
    EXPECT_EQ(only("für").role, Role::complement);
}

TEST(DocumentKindLexicon, addsPlainForms) {
    EXPECT_EQ(only("specification").kinds, std::vector{DocumentKind::spec});
    EXPECT_EQ(only("pruefplan").kinds, std::vector{DocumentKind::spec});
    EXPECT_TRUE(termsOf("these").empty()) << "an English word";
    EXPECT_EQ(asciiForm("đặc tả", vi), "dac ta");
    EXPECT_EQ(asciiForm("spe\u0301cification", fr), "specification");
    EXPECT_EQ(asciiForm("Maßnahmenübersicht", de), "Massnahmenuebersicht");
    EXPECT_EQ(asciiForm("Übersicht", de), std::nullopt);  // a capital umlaut has no plain form
    EXPECT_EQ(asciiForm("naïve план", fr), std::nullopt);
    EXPECT_EQ(asciiForm("plan", fr), std::nullopt);
    EXPECT_EQ(asciiForm("план", ru), std::nullopt);
    EXPECT_EQ(asciiForm("thèses", fr), std::nullopt);
}

TEST(DocumentKindLexicon, marksCompoundsAndSuffixHeads) {
    const auto found = [](std::string_view text) {
        return !testing::smallLexicon().matcher().hits(DocumentKindMatcher::normalize(text)).empty();
    };
    EXPECT_TRUE(found("projektspezifikation"));
    EXPECT_FALSE(found("projektspécification"));
    EXPECT_TRUE(found("사업계획서"));
    EXPECT_FALSE(found("사업로드맵"));
    EXPECT_TRUE(DocumentKindRules::isSuffixHead(U"기획서"));
    EXPECT_FALSE(DocumentKindRules::isSuffixHead(U"지원서"));
    EXPECT_FALSE(DocumentKindRules::isSuffixHead(U"문서"));
    EXPECT_FALSE(DocumentKindRules::isSuffixHead(U"회의 문서"));
}

TEST(DocumentKindLexicon, tellsDuplicates) {
    using V = DocumentKindVocabulary;
    const std::vector<V::SharedRow> shared = {{.kinds = {DocumentKind::plan, DocumentKind::spec}, .names = {"draft"}}};
    const std::vector<V::KindRow> table = {{.kind = DocumentKind::plan, .names = {"Plan", "plan!", "메모장", "-"}},
                                           {.kind = DocumentKind::spec, .names = {"PLAN", "draft", "메모 장"}}};
    const std::vector<V::WordRow> markers = {{DocumentKind::plan, {"goal"}}, {DocumentKind::spec, {"goal"}}};
    const DocumentKindLexicon lexicon(V{.shared = shared, .table = table, .markers = markers});
    EXPECT_EQ(lexicon.duplicates(), (std::vector<std::string>{"PLAN", "draft", "메모 장"}));
    EXPECT_EQ(lexicon.terms().size(), 5U);
}

TEST(DocumentKindLexicon, hidesWhatExclusionsCover) {
    std::vector<DocumentKindMatcher::Hit> hits;
    const std::u32string text = DocumentKindMatcher::normalize("plan, pricing plan, plan");
    testing::smallLexicon().hits(text, hits);
    ASSERT_EQ(hits.size(), 2U);
    EXPECT_EQ(hits[0].start, 0U);
    EXPECT_EQ(hits[1].start, 18U);
}

// Over the real words, put side by side with and without blanks, so that exclusions, endings and compounds occur.
TEST(DocumentKindLexicon, findsTheMarkersAmongAllHits) {
    const DocumentKindLexicon& lexicon = DocumentKindLexicon::shared();
    std::vector<std::string> pieces = {" ", " ", " ", " ", "s ", "es", ". ", "은 ", "x", "가", "の"};
    for (const auto& row : DocumentKindRules::markers()) {
        pieces.insert(pieces.end(), row.words.begin(), row.words.end());
    }
    const auto blocked = DocumentKindRules::blocked();
    pieces.insert(pieces.end(), blocked.begin(), blocked.end());
    for (const auto& row : DocumentKindRules::words(de)) {
        pieces.insert(pieces.end(), row.nouns.begin(), row.nouns.end());
    }
    for (std::size_t count = pieces.size() / 2; count > 0; --count) {
        pieces.emplace_back(" ");
    }
    std::vector<DocumentKindMatcher::Hit> all;
    std::vector<DocumentKindMatcher::Hit> markers;
    std::size_t found = 0;
    for (const std::string& text : testing::randomTexts(3, 2'000, 40, pieces)) {
        const std::u32string scalars = DocumentKindMatcher::normalize(text);
        lexicon.hits(scalars, all);
        std::erase_if(all, [&](const auto& hit) {
            return std::ranges::find(lexicon.terms()[hit.pattern], Role::marker, &DocumentKindTerm::role) ==
                   lexicon.terms()[hit.pattern].end();
        });
        lexicon.markerHits(scalars, markers);
        ASSERT_EQ(markers, all) << text;
        found += markers.size();
    }
    EXPECT_GT(found, 5'000U);
}

}  // namespace
}  // namespace vellark
